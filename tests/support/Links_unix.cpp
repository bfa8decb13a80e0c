// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Links.h"

#include <QFile>

#include <unistd.h>

bool MakeLink(const QString& target, const QString& path)
{
    if (::symlink(QFile::encodeName(target).constData(), QFile::encodeName(path).constData()) != 0) {
        qFatal("The link %s cannot be made.", qUtf8Printable(path));
    }
    return true;
}

bool MakeHardLink(const QString& path, const QString& name)
{
    return ::link(QFile::encodeName(path).constData(), QFile::encodeName(name).constData()) == 0;
}
