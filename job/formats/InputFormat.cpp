// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputFormat.h"

#include "FormatCatalog.h"

#include <QFile>
#include <QFileInfo>

namespace BatchJob {

QString FormatOfFileAt(const QString& path)
{
    const QFileInfo info(path);
    QFile file(path);
    // Opening anything else, such as a named pipe, could block for ever.
    if (!info.isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return {};
    }
    return FormatOfFile(file.read(formatHeadSize), info.suffix());
}

bool IsSlowToDecode(const QString& path)
{
    const FormatSchema* const format = FindReadableFormat(FormatOfFileAt(path));
    return format && format->isSlowToDecode;
}

} // namespace BatchJob
