#pragma once

#include "ZTBatchManager.h"

class QMimeData;
class ZTBatchInputModel;

/// Accepts what is dragged onto the host's view of inputs. A module derives from it and registers an object with
/// ZTBatchManager::RegisterDragAndDropHandler(); the view asks for it there.
class BATCHCORE_EXPORT ZTBatchManager::ZTInputDnDHandler : public QObject
{
    Q_OBJECT

public:
    explicit ZTInputDnDHandler(QObject* parent = nullptr);
    ~ZTInputDnDHandler() override;

    /// Whether `data` may be dropped.
    bool IsAccept(const QMimeData& data) const;

    /// Adds what `data` holds to `model`.
    void DropData(ZTBatchInputModel* model, const QMimeData& data);

protected:
    virtual bool DoIsAccept(const QMimeData& data) const = 0;
    virtual void DoDropData(ZTBatchInputModel* model, const QMimeData& data) = 0;

private:
    Q_DISABLE_COPY(ZTInputDnDHandler)
};
