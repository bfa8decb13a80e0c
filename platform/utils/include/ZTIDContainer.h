// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTUtilsGlobal.h"

#include <QSet>
#include <QString>

/// Issues identifiers that are unique among the registered ones and cannot be guessed: random UUIDs from the system's
/// secure generator. Use each container on one thread at a time.
class VELKORA_UTILS_EXPORT ZTIDContainer
{
public:
    ZTIDContainer();
    ~ZTIDContainer();

    /// Returns a new identifier, which stays registered until UnregisterID() is called for it. Never empty.
    QString CreateAndRegisterID();

    /// Releases `id`. Returns whether it was registered.
    bool UnregisterID(const QString& id);

    bool IsRegistered(const QString& id) const;

private:
    Q_DISABLE_COPY(ZTIDContainer)

    QSet<QString> ids;
};
