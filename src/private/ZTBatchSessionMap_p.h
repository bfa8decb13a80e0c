// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchSession.h"

#include <QMap>
#include <QPointer>
#include <QString>
#include <QVector>

/// The sessions of a manager by id, in the order of the ids. An entry may remain when its session is deleted; the map
/// is then not empty although it holds no session.
class ZTBatchSessionMap
{
public:
    using Session = ZTBatchManager::ZTBatchSession;

    bool IsEmpty() const;

    /// The session of `id`; null if there is none or it was deleted.
    Session* Find(const QString& id) const;

    /// All existing sessions. Slots may delete them while the caller iterates.
    QVector<QPointer<Session>> All() const;

    /// The id of `object`; empty if there is none. Also finds a session that is being deleted, whose guarded pointer is
    /// null already.
    QString IdOf(const QObject* object) const;

    /// Replaces an entry with the same id.
    void Insert(const QString& id, Session* session);

    void Remove(const QString& id);

    /// Keeps the entry of `id` after its session was deleted, but forgets the address, which another session may get.
    void MarkDeleted(const QString& id);

private:
    struct Entry
    {
        QPointer<Session> session;
        const QObject* address = nullptr; ///< of the session; null once it is marked as deleted
    };

    QMap<QString, Entry> entries;
};
