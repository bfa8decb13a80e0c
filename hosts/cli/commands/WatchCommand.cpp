// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CommandFunctions.h"
#include "JobBuilder.h"
#include "Program.h"
#include "RunPolicies.h"
#include "WatchRun.h"

#include "hosts/cli/options/RunOptions.h"
#include "hosts/cli/terminal/Console.h"
#include "hosts/cli/terminal/EventWriter.h"
#include "hosts/cli/terminal/Startup.h"
#include "hosts/common/FolderWatch.h"
#include "hosts/common/JobRequirements.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/UserPath.h"
#include "hosts/common/options/ValueTexts.h"
#include "hosts/common/options/Words.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFileInfo>
#include <QSet>
#include <QTimer>

#include <algorithm>
#include <memory>
#include <optional>

using namespace BatchHost;

namespace BatchCli {

namespace {

void Tell(const QString& text)
{
    WriteErrorLine(QStringLiteral("velkora-batch: ") + text);
}

/// The number of an option in ms; nothing if it is not given.
std::optional<qint64> Milliseconds(const ParsedArguments& arguments, const char* option, int least)
{
    const QString name = QString::fromLatin1(option);
    if (!arguments.Has(name)) {
        return std::nullopt;
    }
    try {
        constexpr int most = 3600;
        constexpr qint64 inSecond = 1000;
        return IntegerFromText(arguments.Value(name), least, most) * inSecond;
    } catch (const RequestError& error) {
        throw error.In(name);
    }
}

QString FolderOf(const QStringList& inputs)
{
    if (inputs.size() != 1) {
        throw RequestError{BatchJob::Phrase::English("one folder to watch is needed")};
    }
    const QString folder = AbsolutePath(inputs.first());
    if (!QFileInfo::exists(folder)) {
        throw RequestError{BatchJob::Phrase::English("%1 does not exist").arg(folder)};
    }
    if (!QFileInfo(folder).isDir()) {
        throw RequestError{BatchJob::Phrase::English("%1 is not a folder").arg(folder)};
    }
    const QString problem = ReadFolder(folder).error;
    if (!problem.isEmpty()) {
        throw RequestError{BatchJob::Phrase::English("%1 cannot be read: %2").arg(folder, problem)};
    }
    return folder;
}

/// Results must not be pictures that come.
void CheckOutputFolder(const QString& output, const QString& folder)
{
    const QString inside = QFileInfo(folder).canonicalFilePath() + QLatin1Char('/');
    const QString outside = QFileInfo(output).canonicalFilePath();
    if (!outside.isEmpty() &&
        inside.startsWith(outside.endsWith(QLatin1Char('/')) ? outside : outside + QLatin1Char('/'))) {
        throw RequestError{BatchJob::Phrase::English("the results would come into the watched folder %1; write them to "
                                                     "a folder in it, or elsewhere")
                               .arg(folder)};
    }
}

/// Looks at the folder until an interrupt, and makes what has arrived.
class Watch
{
public:
    Watch(const ParsedArguments& arguments, const QString& path, const InputFilter& filter)
        : path(path)
        , folder(path, filter)
        , poll(Milliseconds(arguments, "--poll", 1))
        , arrived(Milliseconds(arguments, "--settle", 0).value_or(usualSettling))
        , told(poll ? nullptr : std::make_unique<FolderWatch>(path))
    {
        clock.start();
        timer.setSingleShot(true);
        QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
        if (told) {
            Listen();
        }
    }

    ExitCode Run(WatchRun& runs, const WatchState& state, const InterruptWatcher& interrupts)
    {
        QObject::connect(&interrupts, &InterruptWatcher::Interrupted, &loop, [this] {
            isEnding = true;
            loop.quit();
        });
        std::optional<ExitCode> code = state.Open() ? runs.Resume() : std::nullopt;
        for (const SeenFile& file : state.Taken()) {
            arrived.Settle(file);
        }
        while (!code && !isEnding) {
            QCoreApplication::processEvents(); // What the system has told during the last run.
            code = isEnding ? std::nullopt : Step(runs);
        }
        return code.value_or(ExitCode::Done);
    }

private:
    void Listen()
    {
        FolderWatch* const from = told.get();
        QObject::connect(from, &FolderWatch::Writing, &loop,
                         [this](const QString& file) { arrived.NoteWriting(file, clock.elapsed()); });
        QObject::connect(from, &FolderWatch::Closed, &loop, [this](const QString& file) { arrived.NoteClosed(file); });
        QObject::connect(from, &FolderWatch::MovedIn, &loop,
                         [this](const QString& file) { arrived.NoteMovedIn(file); });
        QObject::connect(from, &FolderWatch::Overflown, &loop, [this] { arrived.ForgetNotes(); });
        QObject::connect(from, &FolderWatch::Changed, &loop, [this] {
            hasChanged = true;
            if (endsWithChange) {
                loop.quit();
            }
        });
    }

    std::optional<ExitCode> Step(WatchRun& runs)
    {
        const qint64 began = clock.elapsed();
        hasChanged = false;
        const WatchedFolder::Content content = folder.Look();
        if (!content.error.isEmpty()) {
            Tell(Messages::tr("%1 can no longer be read: %2").arg(path, WithFullStop(Translated(content.error))));
            return ExitCode::Incomplete;
        }
        TellProblems(content.problems);
        // What came into a folder before the system was asked about it was not told.
        hasChanged = told && told->Follow(content.folders);
        arrived.Look(content.files, clock.elapsed());
        const QVector<SeenFile> files = arrived.Take(clock.elapsed());
        if (files.isEmpty()) {
            Wait(clock.elapsed() - began);
            return std::nullopt;
        }
        QStringList gone;
        const std::optional<ExitCode> code = runs.Make(folder, files, gone);
        for (const QString& file : qAsConst(gone)) {
            arrived.Unsettle(file);
        }
        return code;
    }

    /// Until something may have arrived. A look took `look` ms: a large folder must not take all of the processor.
    void Wait(qint64 look)
    {
        constexpr qint64 leastPause = 100;
        Wait(std::max(leastPause, 4 * look), false);
        if (hasChanged || isEnding) {
            return;
        }
        const bool isTold = told && told->IsComplete();
        const qint64 longest = isTold ? longestTold : poll.value_or(usualPoll);
        Wait(std::min(longest, arrived.NextLook(clock.elapsed()).value_or(longest)), true);
    }

    void Wait(qint64 time, bool endsWithAnyChange)
    {
        endsWithChange = endsWithAnyChange;
        timer.start(int(time));
        if (!isEnding) {
            loop.exec();
        }
        timer.stop();
        endsWithChange = false;
    }

    /// Each of them once, as long as it lasts.
    void TellProblems(const QStringList& problems)
    {
        for (const QString& problem : problems) {
            if (!known.contains(problem)) {
                Tell(WithFullStop(Translated(problem)));
            }
        }
        known = QSet<QString>(problems.begin(), problems.end());
    }

    // ms
    static constexpr qint64 usualSettling = 2'000;
    static constexpr qint64 usualPoll = 5'000;
    static constexpr qint64 longestTold = 60'000; ///< in case that the system has not told all

    const QString path;
    const WatchedFolder folder;
    const std::optional<qint64> poll;
    ArrivedFiles arrived;
    const std::unique_ptr<FolderWatch> told; ///< null when the folder is to be looked at
    QElapsedTimer clock;
    QTimer timer;
    QEventLoop loop;
    QSet<QString> known; ///< problems
    bool hasChanged = false;
    bool endsWithChange = false;
    bool isEnding = false;
};

/// What goes wrong while the folder is watched, such as a full disk, may mend itself.
ExitCode EndOf(Watch& watch, WatchRun& runs, const WatchState& state, const InterruptWatcher& interrupts)
{
    try {
        return watch.Run(runs, state, interrupts);
    } catch (const RequestError& error) {
        const ExitCode code = Report(error);
        return code == ExitCode::Usage ? ExitCode::Incomplete : code;
    }
}

} // namespace

ExitCode WatchFolder(const ParsedArguments& arguments)
{
    OutliveReaders();
    CheckPolicyOptions(arguments);
    ApplyServerLimits(arguments);
    QStringList inputs = arguments.inputs;
    const QString savedJob = TakeSavedJob(inputs);
    ZTBatchDocument job;
    BuildJob(job, arguments, savedJob, {});
    job.GetInputModel()->removeRows(0, job.GetInputModel()->rowCount());
    RequireUsableSettings(job);
    const QString folder = FolderOf(inputs);
    const QString output = job.GetOutputSettings()->GetPath();
    CheckOutputFolder(output, folder);
    const InputFilter filter = FilterOf(arguments, job);
    const InputCollector wildcards(job, filter); // It throws for those that cannot be used.
    Watch watch(arguments, folder, filter);

    InterruptWatcher interrupts;
    WatchState state(output, folder);
    const QString settings = job.Serialize(nullptr);
    const bool isQuiet = arguments.Has(QStringLiteral("--quiet"));
    if (!isQuiet) {
        Tell(Messages::tr("watching %1; results go to %2. Ctrl-C ends it.").arg(folder, output));
    }
    if (arguments.Has(QStringLiteral("--json"))) {
        EventWriter::TellWatching(folder, output);
    }
    WatchRun runs(arguments, settings, state, interrupts);
    const ExitCode code = EndOf(watch, runs, state, interrupts);
    if (!isQuiet) {
        Tell(runs.Totals());
    }
    interrupts.Finish(code);
    return code;
}

} // namespace BatchCli
