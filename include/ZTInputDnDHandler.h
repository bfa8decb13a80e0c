// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchManager.h"

class QMimeData;
class ZTBatchInputModel;

/// Handles drag and drop onto the host's input view. A module derives from this class and registers an object with
/// ZTBatchManager::RegisterDragAndDropHandler(), where the view finds it.
class BATCHCORE_EXPORT ZTBatchManager::ZTInputDnDHandler : public QObject
{
    Q_OBJECT

public:
    explicit ZTInputDnDHandler(QObject* parent = nullptr);
    ~ZTInputDnDHandler() override;

    /// Whether `data` may be dropped.
    bool IsAccept(const QMimeData& data) const;

    /// Adds the content of `data` to `model`.
    void DropData(ZTBatchInputModel* model, const QMimeData& data);

protected:
    virtual bool DoIsAccept(const QMimeData& data) const = 0;
    virtual void DoDropData(ZTBatchInputModel* model, const QMimeData& data) = 0;

private:
    Q_DISABLE_COPY(ZTInputDnDHandler)
};
