// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTStyleGroup.h"

ZTStyleGroup::ZTStyleGroup(const QString& name, QObject* parent)
    : QObject(parent)
    , name(name)
{
}

ZTStyleGroup::~ZTStyleGroup() = default;

QString ZTStyleGroup::Name() const
{
    return name;
}
