// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <libheif/heif.h>

#include <memory>

namespace BatchWorker {

/// A HEIF or AVIF file, opened by its own library for what the imaging library does not tell.
class HeifFile
{
public:
    explicit HeifFile(const QString& path);

    bool IsRead() const { return isRead; }
    heif_context* Get() const { return context.get(); }

private:
    std::shared_ptr<void> contents; ///< what the library reads, where it cannot open the file itself
    std::unique_ptr<heif_context, decltype(&heif_context_free)> context{heif_context_alloc(), heif_context_free};
    bool isRead = false;
};

} // namespace BatchWorker
