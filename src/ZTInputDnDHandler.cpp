// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTInputDnDHandler.h"

ZTBatchManager::ZTInputDnDHandler::ZTInputDnDHandler(QObject* parent)
    : QObject(parent)
{
}

ZTBatchManager::ZTInputDnDHandler::~ZTInputDnDHandler() = default;

bool ZTBatchManager::ZTInputDnDHandler::IsAccept(const QMimeData& data) const
{
    return DoIsAccept(data);
}

void ZTBatchManager::ZTInputDnDHandler::DropData(ZTBatchInputModel* model, const QMimeData& data)
{
    DoDropData(model, data);
}
