// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTInputUpdateHandler.h"

#include <QModelIndex>

ZTBatchManager::ZTInputUpdateHandler::ZTInputUpdateHandler(QObject* parent)
    : QObject(parent)
{
}

ZTBatchManager::ZTInputUpdateHandler::~ZTInputUpdateHandler() = default;

void ZTBatchManager::ZTInputUpdateHandler::Update(ZTBatchInputModel* pModel, const QModelIndex& id,
                                                  bool ignoreModificationTime)
{
    DoUpdate(pModel, id, ignoreModificationTime);
}
