// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchManager.h"

/// One batch run as the host sees it, created by ZTBatchManager::CreateBatchSession().
///
/// The session holds no state: it forwards commands to the server, and emits one signal for each message of the server,
/// in order and unfiltered. No command reports a failure; without a connection to the server it is lost. A command
/// after ZTBatchManager::ReleaseInstance() ends the process.
///
/// Use a session only on the manager's thread. The host may delete it at any time, also in a slot connected to one of
/// its signals; the manager deletes remaining sessions when it is released.
class BATCHCORE_EXPORT ZTBatchManager::ZTBatchSession : public QObject
{
    Q_OBJECT

public:
    ~ZTBatchSession() override;

    /// Starts the run of `document`, the XML text of a ZTBatchDocument, with the manager's current policies. The text
    /// is not checked. Always returns true.
    bool Process(const QString& document);

    /// Ask the server to pause, resume or cancel the run; Paused(), Resumed() and Cancelled() confirm it.
    void Pause();
    void Resume();
    void Cancel();

    /// Answer the question of the same name. `flag` tells the server whether the answer applies to the rest of the run.
    /// The manager's policy does not change.
    void InputRespond(InputPolicy policy, bool flag);
    void OutputRespond(OutputPolicy policy, bool flag);
    void ProcessingRespond(ProcessingPolicy policy, bool flag);
    void NamingRespond(NamingPolicy policy, bool flag);
    void WriteToFormatRespond(WriteToFormatPolicy policy, bool flag);

Q_SIGNALS:
    void Paused();
    void Resumed();
    void Cancelled();

    /// The server could not be started or has crashed. LogMessage() reports that first.
    void Aborted();

    /// The run is over, or the server has exited. LogMessage() reports an exit first.
    void Finished();

    /// The progress of the run, within the last ProgressRange().
    void Progress(int);

    void FileInProgress(const QString& inputFileName);
    void FileProcessed(const QString& inputFileName, const QString& outputFileName);

    /// A file could not be processed. `action` is a ZTBatchValues::Action, `errorCode` a ZTBatchMessage::Error. The
    /// file names are empty for an error that concerns no file.
    void ProcessError(const QString& inputFileName, const QString& outputFileName, int action, int errorCode);

    /// A line for the run's log.
    void LogMessage(const QString& log);

    /// The minimum and the maximum of Progress() from now on.
    void ProgressRange(int, int);

    /// The server has a case that the policy leaves to the user, and waits for the answer.
    void InputQuestion();
    void OutputQuestion();
    void ProcessingQuestion();
    void NamingQuestion();
    void WriteToFormatQuestion();

private:
    Q_DISABLE_COPY(ZTBatchSession)

    friend class ZTBatchManager;

    class Private;

    ZTBatchSession(const QString& id, QObject* parent);

    // Called by the manager. Each emits one signal and does nothing after it, since a slot may have deleted the
    // session. A processed file is progress too: the SessionProgress() with file names emits FileProcessed().
    void SessionPaused();
    void SessionResumed();
    void SessionCancelled();
    void SessionAborted();
    void SessionFinished();
    void SessionProgress(int value);
    void SessionFileInProgress(const QString& inputFileName);
    void SessionProgress(const QString& inputFileName, const QString& outputFileName);
    void SessionError(const QString& inputFileName, const QString& outputFileName, int action, int errorCode);
    void SessionLog(const QString& log);
    void SessionProgressRange(int minimum, int maximum);
    void SessionInputQuestion();
    void SessionOutputQuestion();
    void SessionProcessingQuestion();
    void SessionNamingQuestion();
    void SessionWriteToFormatQuestion();

    std::unique_ptr<Private> d;
};
