#include "RunDisplay.h"

#include "Console.h"

#include <algorithm>

using namespace BatchHost;

namespace BatchCli {

namespace {

constexpr int refreshInterval = 500;

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
        line.ShowNow(QStringLiteral("Starting the server"));
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
    if (result.kind != FileResult::Kind::Written) {
        Write(QStringLiteral("%1 %2: %3").arg(BatchJob::ResultWord(result.kind), result.input, result.reason));
    } else if (!line.IsShown() && detail != Detail::Quiet) {
        Write(QStringLiteral("[%1/%2] %3 -> %4").arg(done).arg(files).arg(result.input, result.output));
    }
    Refresh();
}

void RunDisplay::OnNote(const QString& input, const QString&, const QString& what, const QString& text)
{
    if (detail != Detail::Quiet) {
        Write(QStringLiteral("%1 %2: %3").arg(what, input, text));
    }
}

void RunDisplay::OnLog(const QString& text)
{
    if (detail == Detail::Verbose) {
        Write(QStringLiteral("log: %1").arg(text));
    }
}

void RunDisplay::OnServerLost(const QStringList& inWork, bool goesOn)
{
    const QString where =
        inWork.isEmpty() ? QString() : QStringLiteral(" while it worked on ") + inWork.join(QStringLiteral(", "));
    Write(QStringLiteral("velkora-batch: the server ended unexpectedly%1%2.")
              .arg(where, goesOn ? QStringLiteral("; a new one continues") : QString()));
}

void RunDisplay::OnCancelling()
{
    isCancelling = true;
    if (detail != Detail::Quiet) {
        Write(QStringLiteral("Cancelling; interrupt again to end at once."));
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
        const QString start = isCancelling ? QStringLiteral("Cancelling  ") : QString();
        return start + ProgressText(progress, Terminal::Columns() - 1 - start.size());
    });
}

void RunDisplay::Write(const QString& text)
{
    line.Clear();
    WriteErrorLine(text);
}

} // namespace BatchCli
