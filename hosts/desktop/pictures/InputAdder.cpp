// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputAdder.h"

#include "InputPaths.h"

#include "hosts/common/Language.h"

#include <QElapsedTimer>

#include <utility>

using BatchHost::Messages;

namespace BatchDesktop {

namespace {

/// How long one portion may keep the window.
constexpr int portionTime = 8; // ms

} // namespace

InputAdder::InputAdder(EditedJob& job, const InputPaths& inputs, QObject* parent)
    : QObject(parent)
    , job(job)
    , inputs(inputs)
{
    drainTimer.setSingleShot(true);
    connect(&drainTimer, &QTimer::timeout, this, &InputAdder::Drain);
    connect(&work, &BackgroundWork::Done, this, [this] {
        isRead = true;
        drainTimer.start(0);
    });
    connect(&job, &EditedJob::Replaced, this, &InputAdder::Cancel);
}

InputAdder::~InputAdder() = default;

void InputAdder::Add(const QStringList& paths)
{
    if (paths.isEmpty()) {
        return;
    }
    waiting += paths;
    if (!scan) {
        Begin();
    }
}

void InputAdder::Cancel()
{
    waiting.clear();
    if (scan) {
        End({});
    }
}

void InputAdder::Begin()
{
    const auto onNews = [this] { QMetaObject::invokeMethod(&drainTimer, [this] { drainTimer.start(0); }); };
    scan = std::make_shared<InputScan>(std::exchange(waiting, {}), inputs.Nodes(), job.CurrentSettings().outputFolder,
                                       onNews);
    control = std::make_shared<ScanControl>();
    isRead = false;
    work.Start([scan = scan](const BackgroundWork::Cancelled& isCancelled) { scan->Run(isCancelled); });
    Q_EMIT Began();
}

void InputAdder::Drain()
{
    if (!scan) {
        return;
    }
    if (control->isUndone) {
        End({});
        return;
    }
    std::unique_ptr<AddInputsStep> portion = NextPortion();
    if (portion) {
        job.History().push(portion.release());
        drainTimer.start(0);
    } else if (isRead) {
        End(scan->Problems());
    }
}

/// Null if nothing has come.
std::unique_ptr<AddInputsStep> InputAdder::NextPortion()
{
    std::unique_ptr<AddInputsStep> portion;
    QElapsedTimer clock;
    clock.start();
    while (clock.elapsed() < portionTime) {
        InputScan::Branch branch = scan->Take();
        if (!branch.node) {
            break;
        }
        const std::optional<QModelIndex> parent = ParentOf(branch);
        if (!parent || inputs.Contains(branch.node->data.fileName)) {
            continue;
        }
        if (!portion) {
            portion =
                std::make_unique<AddInputsStep>(*job.Document().GetInputModel(), control, Messages::tr("Add pictures"));
        }
        portion->Insert(std::move(branch.node), *parent);
    }
    return portion;
}

/// Nothing if the user has removed the folder meanwhile: what is below it is not wanted either.
std::optional<QModelIndex> InputAdder::ParentOf(const InputScan::Branch& branch)
{
    const QModelIndex parent = inputs.IndexOf(branch.parent);
    if (!parent.isValid() && !branch.parent.isEmpty()) {
        return {};
    }
    return parent;
}

/// `problems` are a copy, as those of the scan go with it.
void InputAdder::End(QStringList problems)
{
    work.Cancel();
    scan.reset();
    control.reset();
    for (QString& problem : problems) {
        problem = BatchHost::Translated(problem);
    }
    Q_EMIT Ended(problems);
    if (!scan && !waiting.isEmpty()) {
        Begin();
    }
}

} // namespace BatchDesktop
