// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RecordKeeper.h"

#include "JournalFile.h"
#include "RequestError.h"

#include "job/journal/LockFiles.h"
#include "job/journal/OwnFile.h"
#include "job/values/FileIdentity.h"
#include "job/values/Phrase.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QSet>

#include <algorithm>
#include <memory>

using namespace BatchJob;

namespace BatchHost {

namespace {

constexpr int lockTimeout = 15'000; // ms

/// The lock `path`, held; nothing if another process holds it, or if it cannot be made.
std::unique_ptr<QLockFile> Lock(const QString& path)
{
    if (!WhyNotOwnLock(path).isEmpty()) {
        return nullptr;
    }
    auto lock = std::make_unique<QLockFile>(path);
    lock->setStaleLockTime(0); // Only the end of its holder makes a lock stale, not its age.
    return TakeLock(*lock, path, lockTimeout) ? std::move(lock) : nullptr;
}

/// The record of a result that looks like `stamp`.
RecordedResult RecordOf(const ResultOrigin& origin, const JournalState::Result& result, const FileStamp& stamp,
                        bool hasChecksums)
{
    RecordedResult recorded{origin.input, origin.stamp, {}, stamp, {}, origin.recipe, result.warnings, result.facts};
    recorded.facts.outputBytes = stamp.bytes;
    // What has changed since has no checksum: nobody knows what the result was made from.
    if (hasChecksums && StampOf(origin.input) == origin.stamp) {
        recorded.inputChecksum = ChecksumOf(origin.input);
    }
    const std::optional<FileStamp> now = StampOfResult(result.output);
    if (hasChecksums && now && now->LooksLike(stamp)) {
        recorded.checksum = ChecksumOf(result.output);
    }
    return recorded;
}

} // namespace

RecordKeeper::RecordKeeper(const QString& outputFolder)
    : folder(QDir::cleanPath(outputFolder))
{
}

void RecordKeeper::AdoptInterrupted()
{
    for (const QString& path : JournalFile::In(folder)) {
        if (!HasJournalBegun(path) || JournalFile::IsRunning(path)) {
            continue;
        }
        const std::optional<JournalState> header = ReadJournal(path);
        if (!header || !header->update) {
            continue;
        }
        // The server of a host that was killed may still be writing its last results.
        const std::unique_ptr<QLockFile> serverLock = Lock(path + QLatin1String(journalHoldEnd));
        if (!serverLock) {
            continue;
        }
        try {
            const std::unique_ptr<JournalFile> journal = JournalFile::Take(path);
            const std::optional<JournalState> state = ReadJournal(path);
            if (state && Adopt(*state)) {
                journal->Remove();
            }
        } catch (const RequestError&) {
            continue; // Another process was faster.
        }
    }
}

bool RecordKeeper::Adopt(const JournalState& state)
{
    return Adopt(state, false);
}

bool RecordKeeper::AdoptFinished(const JournalState& state)
{
    return Adopt(state, true);
}

bool RecordKeeper::Adopt(const JournalState& state, bool isFinished)
{
    const std::unique_ptr<QLockFile> lock = Lock(RecordPath(folder) + QStringLiteral(".lock"));
    if (!lock) {
        problem = Phrase::English("the folder cannot be written, or another process keeps the record");
        return false;
    }
    ResultRecord record = ReadRecord(folder, damage);
    const bool isRecorded = !Enter(state, record) || WriteRecord(folder, record, problem);
    if (isRecorded && isFinished) {
        orphans = FindOrphans(state, record);
    }
    return isRecorded;
}

/// False if there was nothing to enter.
bool RecordKeeper::Enter(const JournalState& state, ResultRecord& record) const
{
    const bool hasChecksums = state.update && state.update->comparesContents;
    bool hasEntered = false;
    const auto enter = [&](int file, const JournalState::Result& result) {
        const auto origin = state.origins.constFind(file);
        const QString path = PathBelow(result.output);
        const std::optional<FileStamp> now = StampOfResult(result.output);
        if (origin == state.origins.constEnd() || path.isEmpty() || !now) {
            return;
        }
        const bool isStamped = result.stamp.bytes >= 0;
        record.insert(path, RecordOf(*origin, result, isStamped ? result.stamp : *now, hasChecksums));
        hasEntered = true;
    };
    for (auto it = state.results.constBegin(); it != state.results.constEnd(); ++it) {
        if (it->kind == ResultKind::Written) {
            enter(it.key(), *it);
        }
    }
    // Results are whole or absent: another file at the path than before is the result.
    for (auto it = state.begun.constBegin(); it != state.begun.constEnd(); ++it) {
        const std::optional<FileIdentity> identity = IdentityOf(it->output);
        if (identity && identity->Text() != it->before) {
            enter(it.key(), {ResultKind::Written, it->output, 0, {}});
        }
    }
    return hasEntered;
}

QStringList RecordKeeper::FindOrphans(const JournalState& state, const ResultRecord& record) const
{
    QSet<QString> current;
    current.reserve(state.results.size());
    for (const JournalState::Result& result : state.results) {
        current.insert(PathBelow(result.output));
    }
    const auto isOld = [&current](const QString& path) { return !current.contains(path); };
    if (std::none_of(record.keyBegin(), record.keyEnd(), isOld)) {
        return {};
    }
    QSet<QPair<QString, QString>> made; // inputs and recipes of this run
    for (auto it = record.constBegin(); it != record.constEnd(); ++it) {
        if (current.contains(it.key())) {
            made.insert({it->input, it->recipe});
        }
    }
    QStringList found;
    for (auto it = record.constBegin(); it != record.constEnd(); ++it) {
        if (current.contains(it.key())) {
            continue;
        }
        const bool isGone = !QFileInfo::exists(it->input) || made.contains({it->input, it->recipe});
        const QString path = folder + QLatin1Char('/') + it.key();
        const std::optional<FileStamp> now = StampOfResult(path);
        if (isGone && now && now->LooksLike(it->stamp)) {
            found.append(path);
        }
    }
    found.sort();
    return found;
}

QStringList RecordKeeper::Remove(const QStringList& results)
{
    const std::unique_ptr<QLockFile> lock = Lock(RecordPath(folder) + QStringLiteral(".lock"));
    ResultRecord record = ReadRecord(folder, damage);
    QStringList left;
    for (const QString& result : results) {
        const auto found = record.find(PathBelow(result));
        const std::optional<FileStamp> now = StampOfResult(result);
        const bool isOwn = lock && found != record.end() && now && now->LooksLike(found->stamp) && IsInside(result);
        if (!isOwn || !QFile::remove(result)) {
            left.append(result);
            continue;
        }
        record.erase(found);
        QString emptied = QFileInfo(result).path();
        while (emptied.startsWith(folder + QLatin1Char('/')) && QDir().rmdir(emptied)) {
            emptied = QFileInfo(emptied).path();
        }
    }
    if (left.size() < results.size()) {
        WriteRecord(folder, record, problem);
    }
    return left;
}

/// Whether no link leads from the output folder to `result`.
bool RecordKeeper::IsInside(const QString& result) const
{
    const QString real = QFileInfo(folder).canonicalFilePath() + QLatin1Char('/') + PathBelow(result);
    return QFileInfo(result).canonicalFilePath() == real;
}

/// The path of `result` below the output folder; empty if it lies elsewhere.
QString RecordKeeper::PathBelow(const QString& result) const
{
    const QString start = folder + QLatin1Char('/');
    const QString clean = QDir::cleanPath(result);
    return clean.startsWith(start) ? clean.mid(start.size()) : QString();
}

} // namespace BatchHost
