// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JournalFile.h"

#include "RequestError.h"

#include "job/journal/RunJournal.h"

#include "job/journal/LockFiles.h"
#include "job/journal/OwnFile.h"
#include "job/values/Phrase.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

namespace BatchHost {

namespace {

const QString nameStart = QStringLiteral(".velkora-batch-");
const QString nameEnd = QStringLiteral(".journal");
const QString lockEnd = QStringLiteral(".lock");

/// How the names of all journals of a job begin.
QString NameStartOf(const QString& document)
{
    constexpr int digits = 16;
    const QByteArray hash = QCryptographicHash::hash(document.toUtf8(), QCryptographicHash::Sha256).toHex();
    return nameStart + QString::fromLatin1(hash.left(digits)) + QLatin1Char('-');
}

/// The paths of the files in `folder` whose names have this start and end. A link to nothing counts, too.
QStringList FilesNamed(const QString& folder, const QString& start, const QString& end)
{
    const QDir dir(folder);
    QStringList paths;
    for (const QString& name :
         dir.entryList({start + QLatin1Char('*') + end}, QDir::Files | QDir::Hidden | QDir::System, QDir::Name)) {
        paths.append(dir.filePath(name));
    }
    return paths;
}

/// The folder `path` and those above it that do not exist, the deepest first.
QStringList MissingFolders(const QString& path)
{
    QStringList missing;
    QString folder = QDir::cleanPath(path);
    while (!QFileInfo::exists(folder) && QFileInfo(folder).path() != folder) {
        missing.append(folder);
        folder = QFileInfo(folder).path();
    }
    return missing;
}

} // namespace

JournalFile::JournalFile(const QString& path)
    : path(path)
    , lock(path + lockEnd)
{
    // Only a file of this user can be a lock; the server's is looked at here because its host can say what is wrong.
    for (const QString& lockPath : {path + lockEnd, path + QLatin1String(BatchJob::journalHoldEnd)}) {
        const QString ofLock = BatchJob::WhyNotOwnLock(lockPath);
        if (!ofLock.isEmpty()) {
            problem = QStringLiteral("%1: %2").arg(lockPath, ofLock);
            return;
        }
    }
    lock.setStaleLockTime(0); // A run may take days: the lock is stale only when its holder has ended.
    const QString lockPath = path + lockEnd;
    bool isHeld = BatchJob::TakeLock(lock, lockPath);
    if (!isHeld && BatchJob::HasHolderEnded(lock)) {
        // A server that was just being started when its host was killed keeps the lock until it runs its own program.
        constexpr int timeout = 5'000; // ms
        isHeld = lock.tryLock(timeout);
    }
    if (!isHeld) {
        hint = BatchJob::HintAtHolder(lock, lockPath);
        problem = !hint.isEmpty() ? hint
                  : IsInUse()     ? BatchJob::Phrase::English("it is still running")
                                  : BatchJob::Phrase::English("the folder cannot be written");
    }
}

JournalFile::~JournalFile() = default;

std::unique_ptr<JournalFile> JournalFile::New(const QString& outputFolder, const QString& document)
{
    const QStringList missing = MissingFolders(outputFolder);
    QDir().mkpath(outputFolder);
    const quint64 number = QRandomGenerator::system()->generate64();
    const QString name = NameStartOf(document) + QStringLiteral("%1").arg(number, 16, 16, QLatin1Char('0')) + nameEnd;
    std::unique_ptr<JournalFile> journal(new JournalFile(QDir(outputFolder).filePath(name)));
    journal->madeFolders = missing;
    return journal;
}

std::vector<std::unique_ptr<JournalFile>> JournalFile::OthersOfItsJob() const
{
    // Of two processes that begin at once, at least one sees the other: each has its lock before it looks.
    const QFileInfo own(path);
    const QString start = own.fileName().left(own.fileName().lastIndexOf(QLatin1Char('-')) + 1);
    std::vector<std::unique_ptr<JournalFile>> others;
    QStringList journals = FilesNamed(own.path(), start, nameEnd);
    for (const QString& lockPath : FilesNamed(own.path(), start, nameEnd + lockEnd)) {
        journals.append(lockPath.chopped(lockEnd.size()));
    }
    journals.removeDuplicates();
    for (const QString& journalPath : qAsConst(journals)) {
        if (journalPath == path) {
            continue;
        }
        std::unique_ptr<JournalFile> other(new JournalFile(journalPath));
        if (other->IsInUse()) {
            throw RequestError{
                other->hint.isEmpty()
                    ? BatchJob::Phrase::English("the same job is already running into %1").arg(own.path())
                    : BatchJob::Phrase::English("the same job is already running into %1: %2")
                          .arg(own.path(), other->hint),
                RequestError::Kind::AlreadyRunning};
        }
        if (other->problem.isEmpty() && other->Exists()) {
            others.push_back(std::move(other));
        }
    }
    return others;
}

std::unique_ptr<JournalFile> JournalFile::Take(const QString& path)
{
    std::unique_ptr<JournalFile> journal(new JournalFile(path));
    if (!journal->problem.isEmpty()) {
        throw RequestError{BatchJob::Phrase::English("the run in %1 cannot be resumed: %2")
                               .arg(QFileInfo(path).path(), journal->problem),
                           journal->IsInUse() ? RequestError::Kind::AlreadyRunning : RequestError::Kind::Other};
    }
    return journal;
}

bool JournalFile::IsRunning(const QString& path)
{
    return QFileInfo::exists(path + lockEnd) && JournalFile(path).IsInUse();
}

QStringList JournalFile::In(const QString& outputFolder)
{
    return FilesNamed(outputFolder, nameStart, nameEnd);
}

void JournalFile::RemoveUnbegun(const QString& outputFolder)
{
    for (const QString& lockPath : FilesNamed(outputFolder, nameStart, nameEnd + lockEnd)) {
        const QString journalPath = lockPath.chopped(lockEnd.size());
        JournalFile journal(journalPath);
        const bool isOwn = BatchJob::WhyNotOwnLock(journalPath).isEmpty();
        if (isOwn && journal.problem.isEmpty() && !journal.Exists()) { // Else its run is just starting.
            journal.Remove();
        }
    }
}

bool JournalFile::Exists() const
{
    return BatchJob::HasJournalBegun(path);
}

void JournalFile::Remove()
{
    QFile::remove(path);
    QFile::remove(path + QLatin1String(BatchJob::journalHoldEnd)); // Left by a server that died.
}

void JournalFile::RemoveWithFolders()
{
    Remove();
    lock.unlock();
    for (const QString& folder : qAsConst(madeFolders)) {
        QDir().rmdir(folder);
    }
}

} // namespace BatchHost
