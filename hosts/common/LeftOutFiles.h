// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

namespace BatchHost {

/// A file of a folder that begins like a picture, but was left out because of its extension.
struct LeftOutFile
{
    QString path;
    QString format; ///< as FormatOfFile() names it
};

using LeftOutFiles = QVector<LeftOutFile>;

/// The format that the first bytes of the file `path` tell, although its extension tells none. Empty for files that are
/// no pictures or cannot be read, and for files that accompany pictures, such as the thumbnails of cameras.
QString FormatOfUnknownFile(const QString& path);

} // namespace BatchHost
