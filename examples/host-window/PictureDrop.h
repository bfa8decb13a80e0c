// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <ZTInputDnDHandler.h>

/// Turns files and folders that are dropped onto the window into inputs.
class PictureDrop : public ZTBatchManager::ZTInputDnDHandler
{
    Q_OBJECT

protected:
    bool DoIsAccept(const QMimeData& data) const override;
    void DoDropData(ZTBatchInputModel* model, const QMimeData& data) override;
};
