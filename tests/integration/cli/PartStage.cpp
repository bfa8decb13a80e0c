// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PartStage.h"

#include "PictureFiles.h"

#include <QCryptographicHash>
#include <QDir>
#include <QtTest>

#include <vector>

namespace {

constexpr int longest = 120'000; // ms

} // namespace

void PartStage::Reset()
{
    root = std::make_unique<QTemporaryDir>();
    environment = QProcessEnvironment::systemEnvironment();
    for (const char* const name :
         {"SLURM_ARRAY_TASK_ID", "SLURM_ARRAY_TASK_MIN", "JOB_COMPLETION_INDEX", "PARALLEL_SEQ"}) {
        environment.remove(QString::fromLatin1(name));
    }
    QVERIFY(QDir(root->path()).mkpath(QStringLiteral("tmp")));
    environment.insert(QStringLiteral("TMPDIR"), Path(QStringLiteral("tmp")));
    for (int i = 1; i <= 12; ++i) {
        PictureFiles::WriteJpeg(Path(QStringLiteral("a/%1.jpg").arg(i)), i, 300, 200);
        PictureFiles::WriteJpeg(Path(QStringLiteral("b/%1.jpg").arg(i)), 20 + i, 300, 200);
    }
    job = QStringLiteral("a b -s 100 --on-name-exists rename");
}

void PartStage::Write(const QString& name, const QByteArray& content) const
{
    QFile file(Path(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(content) == content.size());
}

QByteArray PartStage::Content(const QString& name) const
{
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QStringList PartStage::NamesLike(const QString& wildcard) const
{
    return QDir(root->path()).entryList({wildcard}, QDir::Files | QDir::Hidden);
}

QStringList PartStage::Arguments(const QString& text) const
{
    QStringList arguments = text.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (arguments.first() != QLatin1String("collect")) {
        arguments << QStringLiteral("--settings") << Path(QStringLiteral("settings"));
    }
    return arguments;
}

CliRun PartStage::Run(const QString& arguments) const
{
    return CliRun::Of(Arguments(arguments), root->path(), environment);
}

CliRun PartStage::RunPart(int part, const QString& options) const
{
    return Run(QStringLiteral("run --plan job.plan --part %1 ").arg(part) + options);
}

CliRun PartStage::Split(const QString& options) const
{
    return Run(QStringLiteral("split %1 -o out --parts %2 --plan job.plan %3").arg(job).arg(partCount).arg(options));
}

std::unique_ptr<QProcess> PartStage::Start(int part, const QString& options) const
{
    auto process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    process->setWorkingDirectory(root->path());
    process->start(QStringLiteral(VELKORA_BATCH),
                   Arguments(QStringLiteral("run --plan job.plan --part %1 ").arg(part) + options));
    return process;
}

QByteArray PartStage::RunAllTwice() const
{
    std::vector<std::unique_ptr<QProcess>> runs;
    for (int i = 0; i < 2 * partCount; ++i) {
        runs.push_back(Start(i % partCount + 1));
#ifdef Q_OS_WIN
        runs.back()->waitForFinished(longest); // There is one pipe.
#endif
    }
    QByteArray failures;
    for (const std::unique_ptr<QProcess>& run : runs) {
        if (run->state() != QProcess::NotRunning && !run->waitForFinished(longest)) {
            failures += "It does not end: ";
        }
        if (run->exitStatus() != QProcess::NormalExit || run->exitCode() != 0) {
            failures += "It failed: " + run->readAllStandardError();
        }
    }
    return failures;
}

Files PartStage::OneRun() const
{
    Run(QStringLiteral("run %1 -o one").arg(job));
    return FilesBelow(Path(QStringLiteral("one")));
}

void PartStage::EditHeader(const QByteArray& from, const QByteArray& to) const
{
    const QList<QByteArray> lines = Content(QStringLiteral("job.plan")).split('\n');
    QByteArray header = lines.at(1);
    QVERIFY2(header.contains(from), header);
    header.replace(from, to);
    header += '\n';
    Write(QStringLiteral("job.plan"), "{\"plan\":1,\"sha256\":\"" +
                                          QCryptographicHash::hash(header, QCryptographicHash::Sha256).toHex() +
                                          "\"}\n" + header + lines.mid(2).join('\n'));
}
