// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SpareWorkers.h"

#include <algorithm>

using BatchProtocol::WorkerEnd;
using BatchProtocol::WorkerProcess;

namespace BatchDesktop {

SpareWorkers::SpareWorkers(const QString& program, const BatchProtocol::ServerLimits& limits,
                           const QString& temporaryParent)
    : program(program)
    , limits(limits)
    , temporaryParent(temporaryParent)
{
}

SpareWorkers::~SpareWorkers() = default;

void SpareWorkers::Prepare(int count)
{
    while (spares.size() < count) {
        WorkerProcess* const worker = Start();
        spares.append(worker);
        connect(worker, &WorkerProcess::Ready, this, &SpareWorkers::Changed);
        connect(worker, &WorkerProcess::Ended, this, [this, worker] {
            spares.removeOne(worker);
            worker->deleteLater();
            Q_EMIT Changed();
        });
    }
}

bool SpareWorkers::HasReady() const
{
    return std::any_of(spares.begin(), spares.end(), [](const WorkerProcess* worker) { return worker->IsReady(); });
}

WorkerProcess* SpareWorkers::Take()
{
    Prepare(1);
    const auto ready =
        std::find_if(spares.begin(), spares.end(), [](const WorkerProcess* worker) { return worker->IsReady(); });
    WorkerProcess* const worker = ready != spares.end() ? *ready : spares.first();
    spares.removeOne(worker);
    worker->disconnect(this);
    return worker;
}

void SpareWorkers::Discard(WorkerProcess* worker)
{
    if (worker->IsStaying()) {
        connect(worker, &WorkerProcess::Ended, worker, &QObject::deleteLater);
        worker->End(WorkerEnd::Dropped);
    } else {
        worker->deleteLater();
    }
}

WorkerProcess* SpareWorkers::Start()
{
    return new WorkerProcess(program, limits, this, temporaryParent);
}

} // namespace BatchDesktop
