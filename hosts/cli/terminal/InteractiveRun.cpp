// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InteractiveRun.h"

#include "Questioner.h"

#include <QEventLoop>

using namespace BatchHost;

namespace BatchCli {

RunEnd RunInteractively(RunController& controller, RunDisplay& display, InterruptWatcher& interrupts)
{
    RunEnd result;
    bool isOver = false;
    QEventLoop loop;
    Questioner questioner;
    bool isInterrupted = false;
    const auto stop = [&] {
        display.Resume();
        if (isInterrupted) {
            controller.EndAtOnce();
        } else {
            isInterrupted = true;
            controller.Cancel();
        }
    };
    QObject::connect(&interrupts, &InterruptWatcher::Interrupted, &loop, stop);
    QObject::connect(&controller, &RunController::Question, &loop,
                     [&](BatchJob::PolicyKind kind, const QString& input, const QString&, const QString& reason) {
                         display.Suspend();
                         questioner.Ask(kind, input, reason);
                     });
    QObject::connect(&questioner, &Questioner::Answered, &loop, [&](const UserAnswer& answer) {
        display.Resume();
        if (answer.value) {
            controller.Answer(*answer.value, answer.isForTheRest);
        } else {
            stop();
        }
    });
    QObject::connect(&controller, &RunController::Ended, &loop, [&](const RunEnd& end) {
        result = end;
        isOver = true;
        loop.quit();
    });
    controller.Start();
    if (!isOver) {
        loop.exec();
    }
    return result;
}

} // namespace BatchCli
