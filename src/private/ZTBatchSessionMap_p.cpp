// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchSessionMap_p.h"

#include <algorithm>

bool ZTBatchSessionMap::IsEmpty() const
{
    return entries.isEmpty();
}

ZTBatchSessionMap::Session* ZTBatchSessionMap::Find(const QString& id) const
{
    const auto found = entries.find(id);
    return found == entries.end() ? nullptr : found->session.data();
}

QVector<QPointer<ZTBatchSessionMap::Session>> ZTBatchSessionMap::All() const
{
    QVector<QPointer<Session>> sessions;
    for (const Entry& entry : entries) {
        if (entry.session) {
            sessions.append(entry.session);
        }
    }
    return sessions;
}

QString ZTBatchSessionMap::IdOf(const QObject* object) const
{
    const auto found =
        std::find_if(entries.begin(), entries.end(), [object](const Entry& entry) { return entry.address == object; });
    return found == entries.end() ? QString() : found.key();
}

void ZTBatchSessionMap::Insert(const QString& id, Session* session)
{
    entries.insert(id, Entry{session, session});
}

void ZTBatchSessionMap::Remove(const QString& id)
{
    entries.remove(id);
}

void ZTBatchSessionMap::MarkDeleted(const QString& id)
{
    const auto found = entries.find(id);
    if (found != entries.end()) {
        found->address = nullptr;
    }
}
