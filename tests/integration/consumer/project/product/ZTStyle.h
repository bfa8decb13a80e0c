// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTStyleGroup.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The product's own style, which keeps only the identifiers of effects.
class ZTStyle : public QObject
{
public:
    ZTStyle(const QString&, const QString&, ZTStyleGroup*, QObject* parent)
        : QObject(parent)
    {
    }

    int GetEffectCount() const { return effects.size(); }
    QString EffectAt(int index) const { return effects.value(index); }
    QByteArray DataAt(int) const { return QByteArray(); }
    bool IsEnabled(int) const { return true; }
    void AppendEffect(const QString& uid, const QByteArray&, bool) { effects.append(uid); }
    void CopyEffects(ZTStyle& target) const { target.effects += effects; }
    void Clear() { effects.clear(); }

private:
    QStringList effects;
};
