// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WorkerProgram.h"

#include <QCoreApplication>
#include <QDir>

namespace BatchProtocol {

QString WorkerProgram()
{
#ifdef Q_OS_WIN
    const QString name = QStringLiteral("VelkoraBatchWorker.exe");
#else
    const QString name = QStringLiteral("VelkoraBatchWorker");
#endif
    return QDir(QCoreApplication::applicationDirPath()).filePath(name);
}

} // namespace BatchProtocol
