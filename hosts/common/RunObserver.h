#pragma once

#include "job/values/PolicyValues.h"

#include <QString>
#include <QStringList>
#include <QVector>

namespace BatchHost {

/// What became of one input.
struct FileResult
{
    enum class Kind { Written, Skipped, Failed };

    QString input;
    QString output;
    Kind kind = Kind::Written;
    int errorCode = 0; ///< a ZTBatchMessage::Error; 0 when it was written
    QString reason;    ///< one sentence; empty when it was written
};

/// The word of `kind`: "written", "skipped", "failed".
QString ResultWord(FileResult::Kind kind);

/// The inputs of a run with their sizes in bytes, in the document's order.
struct RunInputs
{
    QStringList files;
    QVector<qint64> bytes;
    qint64 allBytes = 0;
};

/// How a run ended.
struct RunEnd
{
    int files = 0;
    int written = 0;
    int skipped = 0;
    int failed = 0;
    double seconds = 0;
    bool isCancelled = false;
    bool isServerLost = false;
    QString outputFolder;
    int jobErrorCode = 0; ///< a ZTBatchMessage::Error that ended the whole run; 0 when none did
    QString jobError;     ///< and its reason

    int NotProcessed() const { return files - written - skipped - failed; }
};

/// Watches a run. Each does with an event what it is there for; by default nothing.
class RunObserver
{
public:
    virtual ~RunObserver() = default;

    virtual void OnStart(const RunInputs&, const QString& /*outputFolder*/) {}

    /// An input was done by an earlier part of the run. Comes after OnStart() and before anything else.
    virtual void OnEarlierResult(const FileResult&) {}

    /// The server works with the inputs `names` now.
    virtual void OnInWork(const QStringList& /*names*/, const QString& /*begun*/) {}

    /// An input is done; so many are now, of so many.
    virtual void OnResult(const FileResult&, int /*done*/, int /*files*/) {}

    /// Something happened to a result that was written nonetheless; `what` is a word of BatchJob::ActionWords.
    virtual void OnNote(const QString& /*input*/, const QString& /*output*/, const QString& /*what*/,
                        const QString& /*text*/)
    {
    }

    virtual void OnLog(const QString& /*text*/) {}
    virtual void OnQuestion(BatchJob::PolicyKind, const QString& /*input*/, const QString& /*reason*/) {}
    virtual void OnAnswer(BatchJob::PolicyKind, const QString& /*word*/, bool /*isForTheRest*/) {}

    /// The server died while it worked on `inWork`; another one goes on.
    virtual void OnServerLost(const QStringList& /*inWork*/, bool /*goesOn*/) {}
    virtual void OnCancelling() {}
    virtual void OnEnd(const RunEnd&) {}
};

} // namespace BatchHost
