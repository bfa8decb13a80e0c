// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/protocol/WorkerProcess.h"

#include <QObject>
#include <QVector>

namespace BatchDesktop {

/// Workers that are started before they are needed, so that nobody waits for their start.
class SpareWorkers : public QObject
{
    Q_OBJECT

public:
    /// Workers have their temporary folders in `temporaryParent`.
    SpareWorkers(const QString& program, const BatchProtocol::ServerLimits& limits, const QString& temporaryParent);
    ~SpareWorkers() override;

    const BatchProtocol::ServerLimits& Limits() const { return limits; }

    /// Starts workers until `count` are spare.
    void Prepare(int count);

    /// Whether Take() gives a worker that has started.
    bool HasReady() const;

    /// A worker without a job, one that has started if there is one. It belongs to the caller, who gives it back to
    /// Discard().
    BatchProtocol::WorkerProcess* Take();

    /// Ends `worker` without waiting for it.
    void Discard(BatchProtocol::WorkerProcess* worker);

Q_SIGNALS:
    /// HasReady() has become true, or a worker that was spare has ended.
    void Changed();

private:
    BatchProtocol::WorkerProcess* Start();

    const QString program;
    const BatchProtocol::ServerLimits limits;
    const QString temporaryParent;
    QVector<BatchProtocol::WorkerProcess*> spares;
};

} // namespace BatchDesktop
