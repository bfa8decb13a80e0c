#include "JournalFile.h"

#include "UsageError.h"

#include <RunJournal.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

namespace BatchCli {

namespace {

const QString nameStart = QStringLiteral(".velkora-batch-");
const QString nameEnd = QStringLiteral(".journal");

QString PathOf(const QString& outputFolder, const QString& document)
{
    constexpr int digits = 16;
    const QByteArray hash = QCryptographicHash::hash(document.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QDir(outputFolder).filePath(nameStart + QString::fromLatin1(hash.left(digits)) + nameEnd);
}

} // namespace

JournalFile::JournalFile(const QString& path)
    : path(path)
    , lock(path + QStringLiteral(".lock"))
{
    lock.setStaleLockTime(0); // Only the holder's end makes it stale, not its age.
    isHeld = lock.tryLock();
}

JournalFile::~JournalFile() = default;

std::unique_ptr<JournalFile> JournalFile::ForJob(const QString& outputFolder, const QString& document)
{
    QDir().mkpath(outputFolder);
    std::unique_ptr<JournalFile> journal(new JournalFile(PathOf(outputFolder, document)));
    if (!journal->isHeld && journal->lock.error() == QLockFile::LockFailedError) {
        throw UsageError{QStringLiteral("the same job is being run into %1").arg(outputFolder)};
    }
    return journal;
}

std::unique_ptr<JournalFile> JournalFile::Interrupted(const QString& outputFolder, const QString& document)
{
    const QDir folder(outputFolder);
    const QStringList names =
        folder.entryList({nameStart + QLatin1Char('*') + nameEnd}, QDir::Files | QDir::Hidden, QDir::Name);
    if (names.isEmpty()) {
        throw UsageError{QStringLiteral("there is no interrupted run in %1").arg(outputFolder)};
    }
    const QString ofJob = PathOf(outputFolder, document);
    if (names.size() > 1 && !QFile::exists(ofJob)) {
        throw UsageError{QStringLiteral("%1 runs were interrupted in %2, none of this job; give the inputs and options "
                                        "of the one to go on with")
                             .arg(names.size())
                             .arg(outputFolder)};
    }
    std::unique_ptr<JournalFile> journal(new JournalFile(names.size() > 1 ? ofJob : folder.filePath(names.first())));
    if (!journal->isHeld) {
        throw UsageError{QStringLiteral("the run in %1 cannot be taken up: it is under way, or the folder cannot be "
                                        "written")
                             .arg(outputFolder)};
    }
    return journal;
}

bool JournalFile::Exists() const
{
    return QFile::exists(path);
}

void JournalFile::Remove()
{
    QFile::remove(path);
    QFile::remove(path + QLatin1String(BatchServer::journalHoldEnd)); // Of a server that died.
}

} // namespace BatchCli
