// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchDocument_p.h"

ZTBatchDocument::Private::Private(ZTBatchDocument* owner)
    : owner(owner)
    , inputModel(new ZTBatchInputModel(owner))
    , style(new ZTStyle(QString(), QString(), nullptr, owner))
    , outputSettings(new ZTBatchOutputSettings(owner))
{
}

ZTBatchDocument::Private::~Private() = default;
