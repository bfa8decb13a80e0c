// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vips/vips8>

#include <QtGlobal>

#include <memory>

namespace BatchWorker {

/// An empty file in the temporary folder that is gone with this object, and with the process, however that ends: it has
/// no name, or the system removes it when it is closed, so nothing can be left behind.
class NamelessFile
{
public:
    NamelessFile();
    ~NamelessFile();

    int Descriptor() const { return descriptor; } ///< -1 when there is no file

    /// The bytes of the file as an image whose pixels have `pixelSize` bands of 8 bits. This object has to live longer.
    /// Null, with the text of the imaging library, when that fails.
    VipsImage* NewImage(int width, int height, int pixelSize);

private:
    Q_DISABLE_COPY(NamelessFile)

    int descriptor;
    std::shared_ptr<void> view; ///< of the file in memory, where the imaging library cannot open it
};

} // namespace BatchWorker
