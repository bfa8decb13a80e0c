// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchSession.h"

#include <QString>

/// The state of a session, which is only its id.
class Q_DECL_HIDDEN ZTBatchManager::ZTBatchSession::Private
{
public:
    explicit Private(ZTBatchSession* session);

    void SetId(const QString& newId);

    ZTBatchSession* session;
    QString id;
};
