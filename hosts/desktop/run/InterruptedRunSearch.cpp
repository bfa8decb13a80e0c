// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InterruptedRunSearch.h"

#include "hosts/common/InterruptedRuns.h"
#include "hosts/common/JournalFile.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"
#include "job/settings/JobFiles.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"

#include <QDir>
#include <QSettings>

using namespace BatchHost;

namespace BatchDesktop {

namespace {

constexpr int mostFolders = 20;
const QString foldersKey = QStringLiteral("folders");

/// On the thread.
QVector<InterruptedRun> RunsIn(const QString& folder)
{
    QVector<InterruptedRun> found;
    const InterruptedRuns runs(folder);
    for (const InterruptedRuns::Run& run : runs.All()) {
        ZTBatchDocument job;
        if (run.isRunning || !run.state || !job.Deserialize(run.state->document)) {
            continue;
        }
        const InterruptedRun interrupted{
            folder,
            run.Name(),
            run.journal,
            run.state->document,
            run.state->results.size(),
            BatchJob::FilesOfJob(*job.GetInputModel()).size(),
        };
        if (interrupted.done < interrupted.files) {
            found.append(interrupted);
        } else {
            InterruptedRunSearch::Forget(interrupted); // It was kept to try its failed pictures again.
        }
    }
    return found;
}

} // namespace

InterruptedRunSearch::InterruptedRunSearch(const QString& settingsFolder, QObject* parent)
    : QObject(parent)
    , file(QDir(settingsFolder).filePath(QStringLiteral("runs.ini")))
{
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
    QStringList folders = Folders();
    folders.removeAll(folder);
    folders.prepend(folder);
    SetFolders(folders.mid(0, mostFolders));
}

void InterruptedRunSearch::Start()
{
    const auto work = [this, folders = Folders()] {
        QVector<InterruptedRun> runs;
        QStringList without;
        for (const QString& folder : folders) {
            const QVector<InterruptedRun> found = RunsIn(folder);
            runs += found;
            if (found.isEmpty()) {
                without.append(folder);
            }
        }
        const auto take = [this, runs, without] {
            QStringList left = Folders();
            for (const QString& folder : without) {
                left.removeAll(folder);
            }
            SetFolders(left);
            Q_EMIT Found(runs);
        };
        QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
    };
    threads.start(work); // It ends before this object.
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
