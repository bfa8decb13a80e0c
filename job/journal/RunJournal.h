#pragma once

#include <QFile>
#include <QHash>
#include <QMap>
#include <QString>
#include <QVector>

#include <array>
#include <optional>

/// What a run has done so far, in a file that outlives it: whoever takes the run up again repeats and loses nothing,
/// and gives every result the name that it would have had. docs/reference/journal.md describes the file.
namespace BatchJob {

/// Names the journal of a run to the server.
constexpr char journalVariable[] = "VELKORA_BATCH_JOURNAL";

/// Behind the name of a journal: the name of the lock that its server holds.
constexpr char journalHoldEnd[] = ".server";

/// What a journal says.
struct JournalState
{
    struct Result
    {
        enum class Kind { Written, Skipped, Failed };

        Kind kind = Kind::Written;
        QString output;
        int errorCode = 0; ///< a ZTBatchMessage::Error; 0 when it was written
        QString reason;
    };

    QString document;              ///< the text of the job
    std::array<int, 5> policies{}; ///< input, output, processing, naming, write-to-format

    /// By a file's place in the document, counted from 0.
    QHash<int, Result> results;
    /// A worker was about to make a result.
    struct Beginning
    {
        QString output;
        QString before; ///< FileIdentity::Text() of what stood there; empty for nothing
    };

    QHash<int, Beginning> begun; ///< files without result
    QHash<int, int> losses;      ///< files without result: how often the server has died over them

    /// What answers have changed for the rest of the run: a policy's place in `policies`, its value.
    QMap<int, int> answers;
};

/// The journal in the file `path`; nothing when there is none, or the file is something else. A last line that was cut
/// off counts as not written.
std::optional<JournalState> ReadJournal(const QString& path);

/// Whether a run was begun with the journal at `path`: its first line is whole. Whoever died while writing that had
/// begun nothing.
bool HasJournalBegun(const QString& path);

/// A journal that is written. Each line is handed to the system at once: it survives the process, not the machine.
class RunJournal
{
public:
    /// Begins a new journal at `path`, in place of one that is there. False when it cannot be written.
    bool Create(const QString& path, const QString& document, const std::array<int, 5>& policies);

    /// Goes on with the one at `path`.
    bool Open(const QString& path);

    bool IsOpen() const { return file.isOpen(); }

    /// A worker is about to make the result of `index`.
    void Begin(int index, const JournalState::Beginning& beginning);
    void Settle(int index, const JournalState::Result& result);
    void Answer(int policy, int value);

    /// The server died while these files were in work.
    void Lose(const QVector<int>& indexes);

private:
    void Write(const QByteArray& line);

    QFile file;
};

} // namespace BatchJob
