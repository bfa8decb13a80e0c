// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTStyleGlobal.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>

class ZTStyleGroup;

/// An ordered list of effects. It may contain the same effect several times.
///
/// Use it only on the thread that created it.
class VELKORA_STYLECORE_EXPORT ZTStyle : public QObject
{
    Q_OBJECT

public:
    /// Creates an empty style. `group` may be null and is not owned.
    ZTStyle(const QString& name, const QString& description, ZTStyleGroup* group, QObject* parent);
    ~ZTStyle() override;

    QString Name() const;
    QString Description() const;

    /// The group given to the constructor; null if there was none or it was destroyed.
    ZTStyleGroup* Group() const;

    int GetEffectCount() const;

    /// The identifier of the effect at `index`; a null string if there is no such effect.
    QString EffectAt(int index) const;

    /// The parameters of the effect at `index`, in a format that only the effect knows; a null array if there is no
    /// such effect.
    QByteArray DataAt(int index) const;

    /// Whether the effect at `index` is to be applied; false if there is no such effect.
    bool IsEnabled(int index) const;

    /// Appends an effect. Neither the identifier nor the data is checked.
    void AppendEffect(const QString& uid, const QByteArray& data, bool enabled);

    /// Appends this style's effects to those of `target`, in order. Copying a style into itself doubles its effects.
    void CopyEffects(ZTStyle& target) const;

    /// Removes every effect.
    void Clear();

private:
    Q_DISABLE_COPY(ZTStyle)

    struct Effect
    {
        QString uid;
        QByteArray data;
        bool enabled = false;
    };

    QString name;
    QString description;
    QPointer<ZTStyleGroup> group;
    QVector<Effect> effects;
};
