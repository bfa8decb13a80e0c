// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunTexts.h"

#include "hosts/common/DurationText.h"
#include "hosts/common/Language.h"

#include <QDir>
#include <QFileInfo>

using namespace BatchHost;
using namespace BatchJob;

namespace BatchDesktop {

namespace {

QString NameOf(const QString& path)
{
    return QFileInfo(path).fileName();
}

} // namespace

QString StatusText(JobRunner::State state, const JobRunner::Progress& progress)
{
    using State = JobRunner::State;
    switch (state) {
    case State::Idle:
        break;
    case State::Running: {
        const double left = progress.SecondsLeft();
        return left < 0 ? Messages::tr("%1 of %2 done").arg(progress.Done()).arg(progress.files)
                        : Messages::tr("%1 of %2 done, %3 left")
                              .arg(progress.Done())
                              .arg(progress.files)
                              .arg(DurationText(left));
    }
    case State::Pausing:
        return Messages::tr("Pausing: pictures in work are finished first");
    case State::Paused:
        return Messages::tr("Paused, %1 of %2 done").arg(progress.Done()).arg(progress.files);
    case State::Cancelling:
        return Messages::tr("Cancelling");
    }
    return {};
}

QString CountsText(const JobRunner::Progress& progress)
{
    return Messages::tr("%1 written, %2 skipped, %3 failed")
        .arg(progress.written)
        .arg(progress.skipped)
        .arg(progress.failed);
}

QString EndText(const RunEnd& end)
{
    switch (end.Outcome()) {
    case RunOutcome::Complete:
        if (end.unchanged > 0) {
            return Messages::tr("Finished in %1: %2 written, %3 were up to date.")
                .arg(DurationText(end.seconds))
                .arg(end.written)
                .arg(end.unchanged);
        }
        return Messages::tr("Finished in %1: all %2 pictures were written.")
            .arg(DurationText(end.seconds))
            .arg(end.written);
    case RunOutcome::Incomplete:
        return Messages::tr("Finished in %1: %2 written, %3 skipped, %4 failed.")
            .arg(DurationText(end.seconds))
            .arg(end.written)
            .arg(end.skipped)
            .arg(end.failed);
    case RunOutcome::Refused:
        return Messages::tr("Nothing was written: %1.").arg(Translated(end.jobError));
    case RunOutcome::NoWorkers:
        return Messages::tr("Nothing can be written: the program VelkoraBatchWorker is missing or cannot be started.");
    case RunOutcome::ServerLost:
        return Messages::tr("The batch server was lost after %1 of %2 pictures. The run can be resumed.")
            .arg(end.Processed())
            .arg(end.files);
    case RunOutcome::Cancelled:
        return Messages::tr("Cancelled after %1 of %2 pictures. The run can be resumed.")
            .arg(end.Processed())
            .arg(end.files);
    }
    return {};
}

QString InterruptedText(const InterruptedRun& run)
{
    return Messages::tr("A run was interrupted after %1 of %2 pictures. Its results go to %3.")
        .arg(run.done)
        .arg(run.files)
        .arg(QDir::toNativeSeparators(run.folder));
}

QString QuestionText(const JobRunner::Question& question)
{
    const QString reason = Translated(question.reason);
    switch (question.kind) {
    case PolicyKind::Input:
        return Messages::tr("%1 cannot be read: %2.").arg(NameOf(question.input), reason);
    case PolicyKind::Output:
        return Messages::tr("The result of %1 cannot be written: %2.").arg(NameOf(question.input), reason);
    case PolicyKind::Processing:
        return Messages::tr("%1 cannot be processed: %2.").arg(NameOf(question.input), reason);
    case PolicyKind::Naming:
        return Messages::tr("The name %1, for the result of %2, is taken.")
            .arg(NameOf(question.output), NameOf(question.input));
    case PolicyKind::WriteToFormat:
        return Messages::tr("%1 cannot be written in this format: %2.").arg(NameOf(question.input), reason);
    case PolicyKind::None:
        break;
    }
    return {};
}

QString AnswerText(PolicyKind kind, int value)
{
    const QString word = PolicyWord(kind, value);
    if (word == QLatin1String("skip")) {
        return Messages::tr("S&kip it");
    }
    if (word == QLatin1String("stop")) {
        return Messages::tr("Stop t&he run");
    }
    if (word == QLatin1String("overwrite")) {
        return Messages::tr("Over&write");
    }
    if (word == QLatin1String("rename")) {
        return Messages::tr("Number t&he new one");
    }
    if (word == QLatin1String("nearest")) {
        return Messages::tr("Wr&ite the nearest format");
    }
    return word;
}

} // namespace BatchDesktop
