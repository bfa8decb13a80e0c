// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <exiv2/exiv2.hpp>
#include <memory>

namespace BatchWorker {

/// A file with metadata, opened by the metadata library, whose errors its functions throw.
class MetadataFile
{
public:
    enum class Use { Reading, Writing };

    MetadataFile(const QString& path, Use use);

    Exiv2::Image& Image() { return *image; }

    /// Writes the metadata of Image() into the file, which was opened for writing.
    void Write();

private:
    QString path;
    std::shared_ptr<void> contents; ///< what the library reads, where it cannot open the file itself
    std::unique_ptr<Exiv2::Image> image;
};

} // namespace BatchWorker
