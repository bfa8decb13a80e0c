// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchManager.h"

class QModelIndex;
class ZTBatchInputModel;

/// Refreshes entries of the host's input model. A module derives from this class and registers an object with
/// ZTBatchManager::RegisterInputUpdateHandler(), where the view finds it.
class BATCHCORE_EXPORT ZTBatchManager::ZTInputUpdateHandler : public QObject
{
    Q_OBJECT

public:
    explicit ZTInputUpdateHandler(QObject* parent = nullptr);
    ~ZTInputUpdateHandler() override;

public Q_SLOTS:
    /// Refreshes the entry `id` of `pModel`. With `ignoreModificationTime`, even if the file's modification time has
    /// not changed.
    void Update(ZTBatchInputModel* pModel, const QModelIndex& id, bool ignoreModificationTime);

protected:
    virtual void DoUpdate(ZTBatchInputModel* pModel, const QModelIndex& id, bool ignoreModificationTime) = 0;

private:
    Q_DISABLE_COPY(ZTInputUpdateHandler)
};
