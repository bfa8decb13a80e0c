// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaType>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QThreadPool>
#include <QTimer>
#include <QVector>

namespace BatchDesktop {

/// A run that can be resumed.
struct InterruptedRun
{
    QString folder;   ///< of its results
    QString name;     ///< see InterruptedRuns
    QString journal;  ///< path
    QString document; ///< the text of its job, or of the bundle of its jobs
    int done = 0;     ///< results
    int files = 0;    ///< results that there are in the end
};

/// Remembers where runs write, beyond the end of this process, and finds the runs there that were interrupted.
class InterruptedRunSearch : public QObject
{
    Q_OBJECT

public:
    /// The folders are remembered in `settingsFolder`.
    explicit InterruptedRunSearch(const QString& settingsFolder, QObject* parent = nullptr);
    ~InterruptedRunSearch() override;

    /// A run writes into `folder`.
    void Remember(const QString& folder);

    /// Looks into the folders, on a thread. Those without runs are forgotten. Those with a run that seems to be running
    /// are looked into again for some seconds, until this window starts a run.
    void Start();

    /// Gives up the run for good. Returns why it cannot, in the user's language; empty if it could.
    static QString Forget(const InterruptedRun& run);

Q_SIGNALS:
    /// Emitted for each look into folders, with all that is interrupted in them.
    void Found(const QVector<BatchDesktop::InterruptedRun>& runs);

private:
    struct FoundRuns
    {
        QString folder;
        QVector<InterruptedRun> interrupted;
        bool isOneRunning = false;
    };

    static FoundRuns RunsIn(const QString& folder);
    void SearchIn(const QStringList& folders);
    void Take(const QVector<FoundRuns>& found);
    QStringList Folders() const;
    void SetFolders(const QStringList& folders) const;

    const QString file;
    QTimer repeat;
    QStringList foldersToRepeat;
    int repeatsLeft = 0;
    QThreadPool threads;
};

} // namespace BatchDesktop

Q_DECLARE_METATYPE(BatchDesktop::InterruptedRun)
