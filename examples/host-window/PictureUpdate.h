// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <ZTInputUpdateHandler.h>

/// Shows in the tool tip of an input what has become of its file.
class PictureUpdate : public ZTBatchManager::ZTInputUpdateHandler
{
    Q_OBJECT

protected:
    void DoUpdate(ZTBatchInputModel* model, const QModelIndex& index, bool ignoreModificationTime) override;
};
