// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QPointer>

/// Deletes an object in a slot, for example from inside one of the object's own signals.
class ObjectDeleter : public QObject
{
    Q_OBJECT

public:
    explicit ObjectDeleter(QObject* object)
        : object(object)
    {
    }

public Q_SLOTS:
    void Delete() { delete object; }

private:
    QPointer<QObject> object;
};
