// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QString>

/// The file name of the program `name` on this system.
inline QString ProgramFileName(const QString& name)
{
#ifdef Q_OS_WIN
    return name + QStringLiteral(".exe");
#else
    return name;
#endif
}

/// The path of the program `name` in the folder of this program.
inline QString BuiltProgram(const QString& name)
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(ProgramFileName(name));
}
