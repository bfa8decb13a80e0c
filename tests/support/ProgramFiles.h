#pragma once

#include <QCoreApplication>
#include <QDir>
#include <QString>

/// The name of the file in which the system keeps the program `name`.
inline QString ProgramFileName(const QString& name)
{
#ifdef Q_OS_WIN
    return name + QStringLiteral(".exe");
#else
    return name;
#endif
}

/// The path of the program `name` that was built beside this one.
inline QString BuiltProgram(const QString& name)
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(ProgramFileName(name));
}
