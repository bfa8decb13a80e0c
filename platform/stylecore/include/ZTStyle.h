#pragma once

#include "ZTStyleGlobal.h"

#include <QByteArray>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QVector>

class ZTStyleGroup;

/// An ordered list of effects. The same effect may stand in it several times.
///
/// Belongs to the thread that created it.
class VELKORA_STYLECORE_EXPORT ZTStyle : public QObject
{
    Q_OBJECT

public:
    /// An empty style. `group` may be null, is not owned, and is forgotten when it is destroyed.
    ZTStyle(const QString& name, const QString& description, ZTStyleGroup* group, QObject* parent);
    ~ZTStyle() override;

    QString Name() const;
    QString Description() const;

    /// The group given to the constructor; null when there was none or when it is gone.
    ZTStyleGroup* Group() const;

    int GetEffectCount() const;

    /// The identifier of the effect at `index`; a null string when there is no such effect.
    QString EffectAt(int index) const;

    /// The parameters of the effect at `index`, bytes that only the effect understands; null when there is no such
    /// effect.
    QByteArray DataAt(int index) const;

    /// Whether the effect at `index` is to be applied; false when there is no such effect.
    bool IsEnabled(int index) const;

    /// Adds an effect behind the others. Neither the identifier nor the data is looked into.
    void AppendEffect(const QString& uid, const QByteArray& data, bool enabled);

    /// Adds this style's effects, in order, behind those of `target`. A style copied into itself is doubled.
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
