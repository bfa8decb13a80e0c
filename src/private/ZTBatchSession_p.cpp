// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchSession_p.h"

#include "ZTDiagnostics_p.h"

namespace {
constexpr ZTDiagnostics diagnostics("src\\private\\ZTBatchSession_p");
}

ZTBatchManager::ZTBatchSession::Private::Private(ZTBatchSession* session)
    : session(session)
{
}

void ZTBatchManager::ZTBatchSession::Private::SetId(const QString& newId)
{
    diagnostics.Assert(session);
    id = newId;
}
