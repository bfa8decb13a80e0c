// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTStyle.h"

#include "ZTStyleGroup.h"

ZTStyle::ZTStyle(const QString& name, const QString& description, ZTStyleGroup* group, QObject* parent)
    : QObject(parent)
    , name(name)
    , description(description)
    , group(group)
{
}

ZTStyle::~ZTStyle() = default;

QString ZTStyle::Name() const
{
    return name;
}

QString ZTStyle::Description() const
{
    return description;
}

ZTStyleGroup* ZTStyle::Group() const
{
    return group;
}

int ZTStyle::GetEffectCount() const
{
    return effects.size();
}

QString ZTStyle::EffectAt(int index) const
{
    return effects.value(index).uid;
}

QByteArray ZTStyle::DataAt(int index) const
{
    return effects.value(index).data;
}

bool ZTStyle::IsEnabled(int index) const
{
    return effects.value(index).enabled;
}

void ZTStyle::AppendEffect(const QString& uid, const QByteArray& data, bool enabled)
{
    effects.append({uid, data, enabled});
}

void ZTStyle::CopyEffects(ZTStyle& target) const
{
    // The copy shares its data with the list and keeps the data alive if a style is copied into itself.
    const QVector<Effect> copied = effects;
    target.effects += copied;
}

void ZTStyle::Clear()
{
    effects.clear();
}
