#pragma once

#include <QList>
#include <QObject>

/// Objects by ascending order; those of one order stand as they came. It owns none of them.
class ZTInputActionList
{
public:
    bool Contains(const QObject* action) const;
    const QList<QObject*> Actions() const;

    void Insert(int order, QObject* action);

    /// Returns whether `action` was there.
    bool Remove(const QObject* action);

private:
    struct Entry
    {
        int order;
        QObject* action;
    };

    QList<Entry> entries;
};
