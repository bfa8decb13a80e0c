// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QString>

#include <exiv2/exiv2.hpp>

namespace BatchWorker {

/// A file with metadata, opened by the metadata library, whose errors its functions throw.
class MetadataFile
{
public:
    explicit MetadataFile(const QString& path);

    Exiv2::Image& Image() { return *image; }

    /// Writes the metadata of Image() into the file.
    void Write();

private:
    QFile file;             ///< for the library's pixels and metadata, where it cannot open the file itself
    uchar* bytes = nullptr; ///< of `file`, in memory
    Exiv2::Image::AutoPtr image;
};

} // namespace BatchWorker
