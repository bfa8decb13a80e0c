// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InterruptedRunSearch.h"

#include "hosts/common/InterruptedRuns.h"
#include "hosts/common/JobBundles.h"
#include "hosts/common/JournalFile.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"
#include "job/settings/JobFiles.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"

#include <QDir>
#include <QSettings>

#include <chrono>

using namespace BatchHost;
using namespace std::chrono_literals;

namespace BatchDesktop {

namespace {

constexpr int mostFolders = 20;
const QString foldersKey = QStringLiteral("folders");

/// A server may live a moment longer than the window that was killed.
constexpr int mostRepeats = 10;
constexpr auto repeatDelay = 1s;

} // namespace

/// On the thread.
InterruptedRunSearch::FoundRuns InterruptedRunSearch::RunsIn(const QString& folder)
{
    FoundRuns found;
    found.folder = folder;
    const InterruptedRuns runs(folder);
    for (const InterruptedRuns::Run& run : runs.All()) {
        found.isOneRunning = found.isOneRunning || run.isRunning;
        ZTBatchDocument job;
        const int jobs = run.isRunning || !run.state ? 0 : ReadFirstJob(job, run.state->document);
        if (jobs == 0) {
            continue;
        }
        const InterruptedRun interrupted{
            folder,
            run.Name(),
            run.journal,
            run.state->document,
            run.state->results.size(),
            BatchJob::FilesOfJob(*job.GetInputModel()).size() * jobs,
        };
        if (interrupted.done < interrupted.files) {
            found.interrupted.append(interrupted);
        } else {
            Forget(interrupted); // It was kept to try its failed pictures again.
        }
    }
    return found;
}

InterruptedRunSearch::InterruptedRunSearch(const QString& settingsFolder, QObject* parent)
    : QObject(parent)
    , file(QDir(settingsFolder).filePath(QStringLiteral("runs.ini")))
{
    repeat.setSingleShot(true);
    connect(&repeat, &QTimer::timeout, this, [this] { SearchIn(foldersToRepeat); });
}

InterruptedRunSearch::~InterruptedRunSearch()
{
    threads.waitForDone();
}

QStringList InterruptedRunSearch::Folders() const
{
    return QSettings(file, QSettings::IniFormat).value(foldersKey).toStringList();
}

void InterruptedRunSearch::SetFolders(const QStringList& folders) const
{
    QSettings settings(file, QSettings::IniFormat);
    settings.setValue(foldersKey, folders);
    settings.sync(); // The process may be killed.
}

void InterruptedRunSearch::Remember(const QString& folder)
{
    repeatsLeft = 0; // What is running there now is this window's own.
    repeat.stop();
    QStringList folders = Folders();
    folders.removeAll(folder);
    folders.prepend(folder);
    SetFolders(folders.mid(0, mostFolders));
}

void InterruptedRunSearch::Start()
{
    repeatsLeft = mostRepeats;
    SearchIn(Folders());
}

void InterruptedRunSearch::SearchIn(const QStringList& folders)
{
    const auto work = [this, folders] {
        QVector<FoundRuns> found;
        for (const QString& folder : folders) {
            found.append(RunsIn(folder));
        }
        QMetaObject::invokeMethod(
            this, [this, found] { Take(found); }, Qt::QueuedConnection);
    };
    threads.start(work); // It ends before this object.
}

void InterruptedRunSearch::Take(const QVector<FoundRuns>& found)
{
    QVector<InterruptedRun> runs;
    QStringList running;
    QStringList left = Folders();
    for (const FoundRuns& here : found) {
        runs += here.interrupted;
        if (here.isOneRunning) {
            running.append(here.folder);
        } else if (here.interrupted.isEmpty()) {
            left.removeAll(here.folder);
        }
    }
    SetFolders(left);
    if (!running.isEmpty() && repeatsLeft > 0) {
        --repeatsLeft;
        foldersToRepeat = running;
        repeat.start(repeatDelay);
    }
    Q_EMIT Found(runs);
}

QString InterruptedRunSearch::Forget(const InterruptedRun& run)
{
    try {
        JournalFile::Take(run.journal)->Remove();
    } catch (const RequestError& error) {
        return Translated(error.text);
    }
    return {};
}

} // namespace BatchDesktop
