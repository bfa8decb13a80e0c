// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>
#include <QString>

/// How this system says that there is no file `path`.
inline QString WordsForMissing(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString() : file.errorString();
}
