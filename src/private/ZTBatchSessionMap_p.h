#pragma once

#include "ZTBatchSession.h"

#include <QMap>
#include <QPointer>
#include <QString>
#include <QVector>

/// The sessions of a manager by id, in the order of the ids. An entry may stay when its session is gone: it then holds
/// no session, but its place.
class ZTBatchSessionMap
{
public:
    using Session = ZTBatchManager::ZTBatchSession;

    bool IsEmpty() const;

    /// The session of `id`; null when there is none, or no longer.
    Session* Find(const QString& id) const;

    /// All sessions of this moment. They may be deleted while the caller walks over them.
    QVector<QPointer<Session>> All() const;

    /// The id under which `object` was inserted. Takes a session that is being deleted, which no guarded pointer knows
    /// any more. Empty when there is none.
    QString IdOf(const QObject* object) const;

    /// Replaces an entry of the same id.
    void Insert(const QString& id, Session* session);

    void Remove(const QString& id);

    /// The session of `id` has been deleted, its place stays. Another session may get its address.
    void KeepPlaceOnly(const QString& id);

private:
    struct Entry
    {
        QPointer<Session> session;
        const QObject* address = nullptr; ///< of the session, until it is known to be deleted
    };

    QMap<QString, Entry> entries;
};
