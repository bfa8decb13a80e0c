#pragma once

#include "ZTBatchSession.h"

#include <QString>

/// A session is its id; everything else is the manager's and the server's.
class Q_DECL_HIDDEN ZTBatchManager::ZTBatchSession::Private
{
public:
    explicit Private(ZTBatchSession* session);

    void SetId(const QString& newId);

    ZTBatchSession* session;
    QString id;
};
