// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PlanProbe.h"

#include "hosts/cli/terminal/Console.h"
#include "hosts/common/FileProber.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"
#include "job/plan/WarningLine.h"
#include "job/settings/JobFiles.h"
#include "server/protocol/TaskFailure.h"

#include <QSet>

using namespace BatchJob;
using namespace BatchHost;

namespace BatchCli {

namespace {

QVector<FileProber::File> FilesToProbe(const RunPlan& plan, const QVector<int>& needed, bool withSizes)
{
    QVector<FileProber::File> files;
    if (!withSizes) {
        for (const int index : needed) {
            files.append({index, plan.Names().Input(index)});
        }
        return files;
    }
    // Each file once, for the first of its results that needs it.
    auto next = needed.begin();
    for (int i = 0; i < plan.Count(); i += plan.Names().JobCount()) {
        const bool isNeeded = next != needed.end() && plan.Names().FileOf(*next) == plan.Names().FileOf(i);
        files.append({isNeeded ? *next++ : i, plan.Names().Input(i)});
    }
    return files;
}

/// All results of the file of the result `index`.
QVector<int> ResultsOfFile(const OutputPlan& names, int index)
{
    QVector<int> results;
    const int first = index - names.JobOf(index);
    for (int i = first; i < first + names.JobCount(); ++i) {
        results.append(i);
    }
    return results;
}

} // namespace

PlanProbe ProbeInputs(RunPlan& plan, const ZTBatchDocument& job, bool withSizes, bool isVerbose, StatusLine& line)
{
    PlanProbe found;
    const QVector<int> needed = plan.Names().FilesToProbe();
    const QSet<int> isNeeded(needed.begin(), needed.end());
    const QVector<FileProber::File> files = FilesToProbe(plan, needed, withSizes);
    if (files.isEmpty()) {
        return found;
    }
    int done = 0;
    const auto note = [&](const BatchProtocol::Report& report) {
        ++done;
        line.Show([&] { return Messages::tr("Looking at pictures: %1 of %2").arg(done).arg(files.size()); });
        const QVector<int> results = ResultsOfFile(plan.Names(), report.number);
        if (report.failure == PolicyKind::None) {
            const ProbeResult result = BatchProtocol::ProbeResultOf(report);
            for (const int one : results) {
                found.sizes.insert(one, result.size);
            }
            if (isNeeded.contains(report.number)) {
                plan.SetProbe(report.number, result);
            }
            return;
        }
        const Trouble trouble = BatchProtocol::TroubleOf(report);
        const QVector<int> settled =
            isNeeded.contains(report.number) ? plan.Names().ResultsToProbe(report.number) : QVector<int>();
        if (!settled.isEmpty()) {
            plan.SetProbeFailure(report.number, trouble);
        }
        for (const int one : results) {
            if (!settled.contains(one)) {
                found.unreadable.insert(one, trouble);
            }
        }
        if (isVerbose && !report.detail.isEmpty()) {
            line.Clear();
            WriteErrorLine(DetailLine{plan.Names().Input(report.number), report.detail}.Text());
        }
    };
    try {
        FileProber::Probe(files, SettingsTextOf(job), note);
    } catch (const RequestError& error) {
        if (!needed.isEmpty()) {
            throw;
        }
        found.problem = error.text;
    }
    return found;
}

} // namespace BatchCli
