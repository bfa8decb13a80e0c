// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunDisplay.h"

#include "Console.h"

#include "hosts/common/Language.h"
#include "job/plan/UnclearFilesLine.h"

#include <algorithm>

using namespace BatchHost;

namespace BatchCli {

namespace {

constexpr int refreshInterval = 500;

QString LossText(const QString& inWork, bool goesOn)
{
    if (inWork.isEmpty()) {
        return goesOn ? Messages::tr("the server ended unexpectedly; a new one continues.")
                      : Messages::tr("the server ended unexpectedly.");
    }
    return (goesOn ? Messages::tr("the server ended unexpectedly while it worked on %1; a new one continues.")
                   : Messages::tr("the server ended unexpectedly while it worked on %1."))
        .arg(inWork);
}

} // namespace

RunDisplay::RunDisplay(Detail detail)
    : detail(detail)
    , line(detail != Detail::Quiet)
{
    QObject::connect(&clock, &QTimer::timeout, &clock, [this] { Refresh(); });
}

RunDisplay::~RunDisplay() = default;

void RunDisplay::Suspend()
{
    line.Clear();
    isSuspended = true;
}

void RunDisplay::Resume()
{
    isSuspended = false;
    Refresh();
}

void RunDisplay::OnStart(const RunInputs& inputs, const QString&)
{
    progress.files = inputs.files.size();
    progress.allBytes = inputs.allBytes;
    for (int i = 0; i < inputs.files.size(); ++i) {
        bytes.insert(inputs.files.at(i), std::max<qint64>(0, inputs.bytes.at(i)));
    }
    time.start();
    if (line.IsShown()) {
        line.ShowNow(Messages::tr("Starting the server"));
        clock.start(refreshInterval);
    }
}

void RunDisplay::OnEarlierResult(const FileResult& result)
{
    ++progress.done;
    ++progress.earlierDone;
    progress.bytesDone += bytes.value(result.input);
    progress.earlierBytes = progress.bytesDone;
}

void RunDisplay::OnInWork(const QStringList& names, const QString&)
{
    progress.inWork = names;
    Refresh();
}

void RunDisplay::OnResult(const FileResult& result, int done, int files)
{
    progress.done = done;
    progress.bytesDone += bytes.value(result.input);
    progress.inWork.removeOne(result.input);
    if (!HasResult(result.kind)) {
        Write(QStringLiteral("%1 %2: %3")
                  .arg(Translated(BatchJob::ResultWord(result.kind)), result.Title(), Translated(result.reason)));
    } else if (result.kind == FileResult::Kind::Written && !line.IsShown() && detail != Detail::Quiet) {
        Write(QStringLiteral("[%1/%2] %3 -> %4").arg(done).arg(files).arg(result.input, result.output));
    }
    Refresh();
}

void RunDisplay::OnNote(const QString& input, const QString&, const QString& what, const QString& text)
{
    if (detail != Detail::Quiet) {
        Write(QStringLiteral("%1 %2: %3").arg(Translated(what), input, Translated(text)));
    }
}

void RunDisplay::OnLog(const QString& text)
{
    if (BatchJob::UnclearFilesLine::Is(text)) {
        Write(QStringLiteral("velkora-batch: ") + Translated(text));
    } else if (detail == Detail::Verbose) {
        Write(QStringLiteral("log: %1").arg(text));
    }
}

void RunDisplay::OnServerLost(const QStringList& inWork, bool goesOn)
{
    Write(QStringLiteral("velkora-batch: ") + LossText(inWork.join(QStringLiteral(", ")), goesOn));
}

void RunDisplay::OnCancelling()
{
    isCancelling = true;
    if (detail != Detail::Quiet) {
        Write(Messages::tr("Cancelling; interrupt again to end at once."));
    }
    Refresh();
}

void RunDisplay::OnEnd(const RunEnd&)
{
    clock.stop();
    line.Clear();
}

void RunDisplay::Refresh()
{
    if (isSuspended || progress.files == 0) {
        return;
    }
    line.Show([this] {
        progress.seconds = double(time.elapsed()) / 1000;
        const QString start = isCancelling ? Messages::tr("Cancelling") + QStringLiteral("  ") : QString();
        return start + ProgressText(progress, Terminal::Columns() - 1 - Terminal::WidthOf(start));
    });
}

void RunDisplay::Write(const QString& text)
{
    line.Clear();
    WriteErrorLine(text);
}

} // namespace BatchCli
