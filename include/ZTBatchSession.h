#pragma once

#include "ZTBatchManager.h"

/// One batch run as the host sees it, made by ZTBatchManager::CreateBatchSession().
///
/// The session holds no state: commands go to the server as they are given, and what the server says comes back as
/// signals, each message one signal, in order and unfiltered. No command reports a failure; with no connection to
/// the server it is lost. A command given after ZTBatchManager::ReleaseInstance() ends the process.
///
/// It belongs to the manager's thread. The host deletes it when it is done with it, at any time and from any of its
/// signals; the manager deletes what is left when it is released.
class BATCHCORE_EXPORT ZTBatchManager::ZTBatchSession : public QObject
{
    Q_OBJECT

public:
    ~ZTBatchSession() override;

    /// Starts the run of `document`, the XML text of a ZTBatchDocument, with the manager's policies of this moment.
    /// The text is not looked at here. Always true.
    bool Process(const QString& document);

    /// Asks the server to pause, go on or end the run; Paused(), Resumed() and Cancelled() confirm it.
    void Pause();
    void Resume();
    void Cancel();

    /// The answer to the question of the same name. `flag` tells the server whether the answer holds for the rest of
    /// the run. The manager's own policy stays as it is.
    void InputRespond(InputPolicy policy, bool flag);
    void OutputRespond(OutputPolicy policy, bool flag);
    void ProcessingRespond(ProcessingPolicy policy, bool flag);
    void NamingRespond(NamingPolicy policy, bool flag);
    void WriteToFormatRespond(WriteToFormatPolicy policy, bool flag);

Q_SIGNALS:
    void Paused();
    void Resumed();
    void Cancelled();

    /// The server could not be started or crashed. A line about it has come through LogMessage() before.
    void Aborted();

    /// The run is over, or the server has ended by itself; a line about the latter has come through LogMessage()
    /// before.
    void Finished();

    /// How far the run is, within the announced range.
    void Progress(int);

    void FileInProgress(const QString& inputFileName);
    void FileProcessed(const QString& inputFileName, const QString& outputFileName);

    /// A file could not be processed. `action` is what the server did about it, a number of the server's;
    /// `errorCode` is a ZTBatchMessage::Error.
    void ProcessError(const QString& inputFileName, const QString& outputFileName, int action, int errorCode);

    /// A line for the run's log.
    void LogMessage(const QString& log);

    /// The least and the greatest value of Progress() from now on.
    void ProgressRange(int, int);

    /// The server has met a case that its policy leaves to the user, and waits for the answer.
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

    // What the manager tells. Each emits one signal and does nothing behind it: a slot may have deleted the session.
    // A finished file is progress too, hence the two SessionProgress(): the one with names emits FileProcessed().
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
