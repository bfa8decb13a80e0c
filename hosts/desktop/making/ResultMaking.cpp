// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ResultMaking.h"

#include "job/values/Phrase.h"
#include "server/protocol/TaskFailure.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchDesktop {

ResultMaking::ResultMaking(SpareWorkers& spares, const ResultPlan& plan, const Order& order)
    : spares(spares)
    , plan(plan)
    , order(order)
{
}

ResultMaking::~ResultMaking()
{
    EndWorker();
    if (!file.isEmpty()) {
        QFile::remove(file);
    }
}

void ResultMaking::Start()
{
    worker = std::make_unique<TaskWorker>(spares, Job{plan.job.document, spares.Limits(), plan.job.rightsToMake});
    connect(worker.get(), &TaskWorker::Reported, this, &ResultMaking::OnReported);
    if (plan.NeedsProbe()) {
        worker->Give(ProbeTask{++lastNumber, order.input});
    } else {
        GiveResult();
    }
}

void ResultMaking::GiveResult()
{
    const Trouble trouble = plan.names.TroubleOf(0);
    if (trouble.kind != PolicyKind::None) {
        Fail(trouble.reason);
        return;
    }
    const OutputPlan& names = plan.names.Names();
    const QString suffix = QFileInfo(names.OutputName(0)).suffix();
    file = QDir(order.folder).filePath(order.name + QLatin1Char('.') + suffix);
    format = names.Format(0)->name;
    worker->Give(PictureTask{++lastNumber, order.input, file, order.folder, format, false,
                             plan.job.settings.naming.NumberOf(0)});
}

void ResultMaking::OnReported(const Report& report)
{
    if (format.isEmpty()) {
        plan.SetProbe(report);
        GiveResult();
    } else if (report.failure == PolicyKind::None) {
        TakeResult(report);
    } else {
        const Trouble trouble = BatchProtocol::TroubleOf(report);
        const bool isNearestWanted = trouble.kind == PolicyKind::WriteToFormat &&
                                     plan.policies.Of(PolicyKind::WriteToFormat) == Decision::Nearest;
        if (isNearestWanted && plan.names.ChangeFormat(0, trouble.nearestFormat)) {
            GiveResult();
        } else {
            Fail(trouble.reason);
        }
    }
}

void ResultMaking::TakeResult(const Report& report)
{
    const QFileInfo result(file);
    if (!result.exists()) {
        Fail(Phrase::English("the worker reported a result that is not there"));
        return;
    }
    bytes = result.size();
    EndWorker();
    Q_EMIT Made(report);
}

void ResultMaking::Fail(const QString& reason)
{
    EndWorker();
    Q_EMIT Failed(reason);
}

/// It may be the caller.
void ResultMaking::EndWorker()
{
    if (worker) {
        worker->disconnect(this);
        worker.release()->deleteLater();
    }
}

} // namespace BatchDesktop
