// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PrivateTempDir.h"

#include <QDir>

PrivateTempDir::PrivateTempDir()
    : previous(qgetenv("TMPDIR"))
{
    if (!folder.isValid()) {
        qFatal("No temporary folder could be made: %s", qUtf8Printable(folder.errorString()));
    }
    qputenv("TMPDIR", QFile::encodeName(folder.path()));
}

PrivateTempDir::~PrivateTempDir()
{
    if (previous.isNull()) {
        qunsetenv("TMPDIR");
    } else {
        qputenv("TMPDIR", previous);
    }
}

QString PrivateTempDir::FilePath(const QString& name) const
{
    return folder.filePath(name);
}

QStringList PrivateTempDir::Entries() const
{
    return QDir(folder.path())
        .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}
