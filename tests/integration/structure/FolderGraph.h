// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

// Which folder includes headers of which other folder.
class FolderGraph
{
public:
    // Place is where the include is written; the first place of a pair of folders is kept.
    void Add(const QString& from, const QString& to, const QString& place);

    // One shortest circle through every folder that lies on any, each as "a -> b (place) -> a (place)".
    QStringList Circles() const;

private:
    QStringList ShortestCircle(const QString& start) const;

    QMap<QString, QMap<QString, QString>> places;
};
