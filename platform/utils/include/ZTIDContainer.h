#pragma once

#include "ZTUtilsGlobal.h"

#include <QSet>
#include <QString>

/// Issues identifiers that are unique among those registered and that nobody can guess: random UUIDs, drawn from the
/// system's secure generator. Use one container on one thread at a time.
class VELKORA_UTILS_EXPORT ZTIDContainer
{
public:
    ZTIDContainer();
    ~ZTIDContainer();

    /// A new identifier, registered until UnregisterID() is called with it. Never empty.
    QString CreateAndRegisterID();

    /// Releases `id`. Returns whether it was registered.
    bool UnregisterID(const QString& id);

    bool IsRegistered(const QString& id) const;

private:
    Q_DISABLE_COPY(ZTIDContainer)

    QSet<QString> ids;
};
