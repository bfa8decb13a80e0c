// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

class ZVFileBookmark
{
public:
    ZVFileBookmark() = default;
    explicit ZVFileBookmark(const QString& path)
        : path(path)
    {
    }

    bool IsEmpty() const { return path.isEmpty(); }
    QString Path() const { return path; }

private:
    QString path;
};
