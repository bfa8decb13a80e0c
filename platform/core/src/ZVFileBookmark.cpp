// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZVFileBookmark.h"

#include <QFileInfo>

ZVFileBookmark::ZVFileBookmark(const QString& path)
    : path(path)
{
}

bool ZVFileBookmark::IsEmpty() const
{
    return path.isEmpty();
}

QString ZVFileBookmark::Path() const
{
    return path;
}

bool ZVFileBookmark::Exists() const
{
    return !path.isEmpty() && QFileInfo::exists(path);
}
