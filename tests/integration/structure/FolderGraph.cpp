// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FolderGraph.h"

#include <QSet>

void FolderGraph::Add(const QString& from, const QString& to, const QString& place)
{
    if (from != to && !places[from].contains(to))
        places[from].insert(to, place);
}

QStringList FolderGraph::Circles() const
{
    QStringList circles;
    QSet<QString> reported;
    for (auto folder = places.cbegin(); folder != places.cend(); ++folder) {
        if (reported.contains(folder.key()))
            continue;
        const QStringList circle = ShortestCircle(folder.key());
        if (circle.isEmpty())
            continue;
        QString text = circle.first();
        for (int i = 1; i < circle.size(); ++i) {
            text += QStringLiteral(" -> %1 (%2)").arg(circle[i], places[circle[i - 1]][circle[i]]);
            reported.insert(circle[i]);
        }
        circles.append(text);
    }
    return circles;
}

// The folders on the way, start first and last; empty if no way leads back.
QStringList FolderGraph::ShortestCircle(const QString& start) const
{
    QMap<QString, QString> reachedFrom;
    QStringList queue{start};
    for (int i = 0; i < queue.size(); ++i) {
        const QStringList nextFolders = places.value(queue[i]).keys();
        for (const QString& next : nextFolders) {
            if (reachedFrom.contains(next))
                continue;
            reachedFrom.insert(next, queue[i]);
            if (next != start) {
                queue.append(next);
                continue;
            }
            QStringList circle{start};
            do {
                circle.prepend(reachedFrom[circle.first()]);
            } while (circle.first() != start);
            return circle;
        }
    }
    return {};
}
