// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/FileStamp.h"
#include "job/values/FixedName.h"
#include "job/values/PictureFacts.h"
#include "job/values/ResultKind.h"
#include "job/values/Versions.h"
#include "job/values/Warning.h"

#include <QDateTime>
#include <QFile>
#include <QHash>
#include <QMap>
#include <QPair>
#include <QSet>
#include <QString>
#include <QVector>

#include <array>
#include <functional>
#include <memory>
#include <optional>

/// What a run has done so far, in a file that outlives the run. A resumed run repeats nothing, loses nothing, and gives
/// every result the name that it would have had. docs/reference/journal.md describes the file.
namespace BatchJob {

/// The environment variable that names the journal to the server.
constexpr char journalVariable[] = "VELKORA_BATCH_JOURNAL";

/// Appended to the name of a journal, this is the name of the lock that its server holds.
constexpr char journalHoldEnd[] = ".server";

/// A run that makes only what has changed since the results were recorded.
struct Update
{
    bool comparesContents = false; ///< not only sizes and times
};

/// What a result is made from, noted before the worker reads its input.
struct ResultOrigin
{
    QString input; ///< path
    FileStamp stamp;
    QString recipe; ///< see Recipe
};

/// The content of a journal.
struct JournalState
{
    struct Result
    {
        using Kind = ResultKind;

        Kind kind = Kind::Written;
        QString output;
        int errorCode = 0; ///< a ZTBatchMessage::Error; 0 when it was written
        QString reason;
        Warnings warnings = {};  ///< about a picture that was written
        PictureFacts facts = {}; ///< of a picture that was written
        QDateTime finished = {}; ///< invalid if it is not known
        FileStamp stamp = {};    ///< of a result that an update has written
    };

    /// When the run began, by the clock of the file system: a ChangeTimeOf(). 0 if that is not known.
    qint64 beganAt = 0;

    /// False if lines could not be written: files may be done without a line.
    bool isComplete = true;

    QString document;              ///< the text of the job
    std::array<int, 5> policies{}; ///< input, output, processing, naming, write-to-format
    bool isInPlace = false;        ///< results may take the places of their own originals
    std::optional<Update> update;

    /// A worker was about to make a result.
    struct Beginning
    {
        QString output;
        QString before; ///< FileIdentity::Text() of the file that was there; empty for none
    };

    // By a file's place in the document, counted from 0.
    QHash<int, Result> results;
    QHash<int, Beginning> begun; ///< of files without result
    QHash<int, int> losses;      ///< of files without result: how often the server has died while it worked on them

    /// Where the run makes a part of a greater job, whose plan has made the names.
    QHash<int, FixedName> names;

    /// What makes the pictures of such a part, and the files that it has settled.
    Versions makers;
    QSet<int> byMakers;

    /// Of files that an update has begun with, also of those that have a result.
    QHash<int, ResultOrigin> origins;

    /// The policies that answers have changed for the rest of the run, by their places in `policies`.
    QMap<int, int> answers;
};

/// What a journal is read for.
enum class JournalUse {
    Everything,
    Results ///< neither the document nor the names that were made elsewhere, which may be long
};

/// Reads the journal `path`. Returns nothing if the file is missing, is not a journal, or is refused by OpenOwnFile().
/// A truncated last line is ignored.
std::optional<JournalState> ReadJournal(const QString& path, JournalUse use = JournalUse::Everything);

/// Whether the run of the journal `path` has started, which is when the first line, the header, is whole. False for a
/// file that OpenOwnFile() refuses.
bool HasJournalBegun(const QString& path);

/// Writes a journal. Each line goes to the system at once: it survives the process, not the machine. Lines that cannot
/// be written are kept and written with the next one; until then the journal is marked as incomplete.
class RunJournal
{
public:
    /// Starts a new journal at `path`, where there must be no file. False when it cannot be written, see Problem().
    bool Create(const QString& path, const QString& document, const std::array<int, 5>& policies,
                bool isInPlace = false, const std::optional<Update>& update = {});

    /// Continues the journal at `path`. False if it is missing or cannot be written, see Problem().
    bool Open(const QString& path);

    bool IsOpen() const { return file != nullptr; }

    /// What went wrong last, for users.
    QString Problem() const { return problem; }

    /// Called once, when a line cannot be written for the first time.
    std::function<void(const QString& problem)> onFailure;

    /// A worker is about to make the result of `index`.
    void Begin(int index, const JournalState::Beginning& beginning, const std::optional<ResultOrigin>& origin = {});
    void Settle(int index, const JournalState::Result& result);

    /// The same of many files at once.
    void SettleAll(const QVector<QPair<int, JournalState::Result>>& results);
    void Answer(int policy, int value);

    /// The names of the results from the first on, which nothing may change.
    void FixNames(const QVector<FixedName>& names);

    /// What makes the results that follow.
    void NoteMakers(const Versions& makers);

    /// The server died while these files were in work.
    void Lose(const QVector<int>& indexes);

    /// These files are to be tried again when the run is resumed. Results that were written stay.
    void Retry(const QVector<int>& indexes);

private:
    static QByteArray LineOf(int index, const JournalState::Result& result);
    void WriteList(const char* key, const QVector<int>& indexes);
    void Write(const QByteArray& line);
    bool WritePending();
    void Mark(bool isComplete);

    std::unique_ptr<QFile> file;
    QString path;
    QString problem;
    QByteArray pending;        ///< lines that are not written yet
    bool isMarked = false;     ///< as incomplete
    bool isWithinLine = false; ///< the last attempt wrote a part
    bool isFailureKnown = false;
};

} // namespace BatchJob
