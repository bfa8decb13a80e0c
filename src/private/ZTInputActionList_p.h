// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QObject>

/// Objects in ascending order, those of equal order in the order of insertion. Not owned.
class ZTInputActionList
{
public:
    bool Contains(const QObject* action) const;
    const QList<QObject*> Actions() const;

    void Insert(int order, QObject* action);

    /// Returns whether `action` was in the list.
    bool Remove(const QObject* action);

private:
    struct Entry
    {
        int order;
        QObject* action;
    };

    QList<Entry> entries;
};
