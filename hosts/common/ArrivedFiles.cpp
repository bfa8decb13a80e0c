// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ArrivedFiles.h"

#include <algorithm>

namespace BatchHost {

void ArrivedFiles::NoteWriting(const QString& path, qint64 now)
{
    writing.insert(path, now);
    movedIn.remove(path);
}

void ArrivedFiles::NoteMovedIn(const QString& path)
{
    writing.remove(path);
    movedIn.insert(path);
}

void ArrivedFiles::ForgetNotes()
{
    writing.clear();
    movedIn.clear();
}

void ArrivedFiles::Look(const QVector<SeenFile>& files, qint64 now)
{
    QHash<QString, Waiting> before;
    for (const Waiting& each : qAsConst(waiting)) {
        before.insert(each.file.path, each);
    }
    waiting.clear();
    for (const SeenFile& file : files) {
        const auto done = settled.constFind(file.path);
        if (done != settled.constEnd() && *done == file.facts) {
            continue;
        }
        const auto known = before.constFind(file.path);
        const bool isSame = known != before.constEnd() && known->file.facts == file.facts;
        Waiting each = isSame ? *known : Waiting{file, now};
        each.isMovedIn = each.isMovedIn || movedIn.contains(file.path);
        waiting.append(each);
    }
    movedIn.clear();
}

QVector<SeenFile> ArrivedFiles::Take(qint64 now)
{
    QVector<SeenFile> arrived;
    QVector<Waiting> others;
    for (const Waiting& each : qAsConst(waiting)) {
        if (HasArrived(each, now)) {
            arrived.append(each.file);
            Settle(each.file);
        } else {
            others.append(each);
        }
    }
    waiting = others;
    return arrived;
}

std::optional<qint64> ArrivedFiles::NextLook(qint64 now) const
{
    std::optional<qint64> next;
    for (const Waiting& each : waiting) {
        if (each.file.facts.bytes > 0 && !IsWriting(each.file.path, now)) {
            const qint64 left = std::max<qint64>(0, each.isMovedIn ? 0 : each.since + settle - now);
            next = std::min(next.value_or(left), left);
        }
    }
    return next;
}

// Not every change is followed by a close that the system tells of, so the word of one counts for a time only.
bool ArrivedFiles::IsWriting(const QString& path, qint64 now) const
{
    constexpr qint64 longest = 60'000;
    const auto noticed = writing.constFind(path);
    return noticed != writing.constEnd() && now - *noticed < std::max(longest, settle);
}

bool ArrivedFiles::HasArrived(const Waiting& each, qint64 now) const
{
    return each.file.facts.bytes > 0 && !IsWriting(each.file.path, now) &&
           (each.isMovedIn || now - each.since >= settle);
}

} // namespace BatchHost
