// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTIDContainer.h"

#include <QUuid>

ZTIDContainer::ZTIDContainer() = default;

ZTIDContainer::~ZTIDContainer() = default;

QString ZTIDContainer::CreateAndRegisterID()
{
    QString id;
    do {
        id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    } while (ids.contains(id));
    ids.insert(id);
    return id;
}

bool ZTIDContainer::UnregisterID(const QString& id)
{
    return ids.remove(id);
}

bool ZTIDContainer::IsRegistered(const QString& id) const
{
    return ids.contains(id);
}
