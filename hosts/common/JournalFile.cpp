#include "JournalFile.h"

#include "RequestError.h"

#include "job/journal/RunJournal.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSysInfo>

#ifdef Q_OS_UNIX
#include <csignal>

#include <cerrno>
#endif

namespace BatchHost {

namespace {

const QString nameStart = QStringLiteral(".velkora-batch-");
const QString nameEnd = QStringLiteral(".journal");
const QString lockEnd = QStringLiteral(".lock");

QString PathOf(const QString& outputFolder, const QString& document)
{
    constexpr int digits = 16;
    const QByteArray hash = QCryptographicHash::hash(document.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QDir(outputFolder).filePath(nameStart + QString::fromLatin1(hash.left(digits)) + nameEnd);
}

/// The names of the journals in `folder` that hold a run; with `end`, that of a lock, of all that have a lock.
QStringList JournalsIn(const QDir& folder, const QString& end)
{
    QStringList names;
    for (const QString& name :
         folder.entryList({nameStart + QLatin1Char('*') + nameEnd + end}, QDir::Files | QDir::Hidden, QDir::Name)) {
        const QString journal = name.chopped(end.size());
        if (!end.isEmpty() || BatchJob::HasJournalBegun(folder.filePath(journal))) {
            names.append(journal);
        }
    }
    return names;
}

/// Whether `lock` names a process of this machine that has ended.
bool HasHolderEnded(const QLockFile& lock)
{
#ifdef Q_OS_UNIX
    qint64 process = 0;
    QString host;
    QString program;
    return lock.getLockInfo(&process, &host, &program) && host == QSysInfo::machineHostName() &&
           kill(pid_t(process), 0) != 0 && errno == ESRCH;
#else
    Q_UNUSED(lock)
    return false; // No other process can inherit a lock.
#endif
}

} // namespace

JournalFile::JournalFile(const QString& path)
    : path(path)
    , lock(path + lockEnd)
{
    lock.setStaleLockTime(0); // A run may take days: the lock is stale only when its holder has ended.
    isHeld = lock.tryLock();
    if (!isHeld && HasHolderEnded(lock)) {
        // A server that was just being started when its host was killed keeps the lock until it runs its own program.
        constexpr int timeout = 5'000; // ms
        isHeld = lock.tryLock(timeout);
    }
}

JournalFile::~JournalFile() = default;

std::unique_ptr<JournalFile> JournalFile::ForJob(const QString& outputFolder, const QString& document)
{
    QDir().mkpath(outputFolder);
    std::unique_ptr<JournalFile> journal(new JournalFile(PathOf(outputFolder, document)));
    if (!journal->isHeld && journal->lock.error() == QLockFile::LockFailedError) {
        throw RequestError{QStringLiteral("the same job is already running into %1").arg(outputFolder)};
    }
    return journal;
}

std::unique_ptr<JournalFile> JournalFile::Interrupted(const QString& outputFolder, const QString& document,
                                                      bool isThisJob)
{
    const QDir folder(outputFolder);
    RemoveUnbegun(folder);
    const QStringList names = JournalsIn(folder, QString());
    if (names.isEmpty()) {
        throw RequestError{QStringLiteral("there is no interrupted run in %1").arg(outputFolder)};
    }
    const QString ofJob = PathOf(outputFolder, document);
    const bool isOfJob = BatchJob::HasJournalBegun(ofJob);
    if (isThisJob && !isOfJob) {
        throw RequestError{
            QStringLiteral("the run that was interrupted in %1 is of another job: its inputs, options or "
                           "files differ")
                .arg(outputFolder),
            RequestError::Kind::OtherRunInterrupted};
    }
    if (names.size() > 1 && !isOfJob) {
        throw RequestError{QStringLiteral("%1 runs were interrupted in %2, none of them of this job")
                               .arg(names.size())
                               .arg(outputFolder),
                           RequestError::Kind::SeveralRunsInterrupted};
    }
    std::unique_ptr<JournalFile> journal(new JournalFile(names.size() > 1 ? ofJob : folder.filePath(names.first())));
    if (!journal->isHeld) {
        const bool isUnderWay = journal->lock.error() == QLockFile::LockFailedError;
        throw RequestError{QStringLiteral("the run in %1 cannot be resumed: %2")
                               .arg(outputFolder, isUnderWay ? QStringLiteral("it is still running")
                                                             : QStringLiteral("the folder cannot be written"))};
    }
    return journal;
}

/// Removes what processes have left that died before their run began.
void JournalFile::RemoveUnbegun(const QDir& folder)
{
    for (const QString& name : JournalsIn(folder, lockEnd)) {
        JournalFile journal(folder.filePath(name));
        if (journal.isHeld && !journal.Exists()) { // Else its run is just starting.
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

} // namespace BatchHost
