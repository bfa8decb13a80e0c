// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PartsStage.h"

#include "FolderContent.h"
#include "LiveProcesses.h"
#include "PictureFiles.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

#include <algorithm>
#include <csignal>

namespace {

QJsonObject NextLine(QFile& file)
{
    return QJsonDocument::fromJson(file.readLine()).object();
}

const QString worker = QStringLiteral("VelkoraBatchWorker");

} // namespace

PartsStage::PartsStage()
    : environment(QProcessEnvironment::systemEnvironment())
    , job({QStringLiteral("photos"), QStringLiteral("--size"), QStringLiteral("300"), QStringLiteral("--name"),
           QStringLiteral("number:1:4"), QStringLiteral("--effect"),
           QStringLiteral("watermark-text:text={number},tokens=true")})
{
    const QStringList names = environment.keys();
    for (const QString& name : names) {
        if (name.startsWith(QLatin1String("SLURM")) || name.startsWith(QLatin1String("SBATCH")) ||
            name.startsWith(QLatin1String("PARALLEL")) || name == QLatin1String("JOB_COMPLETION_INDEX")) {
            environment.remove(name);
        }
    }
    const QString path = QStringLiteral("PATH");
    environment.insert(path,
                       QFileInfo(QStringLiteral(VELKORA_BATCH)).path() + QLatin1Char(':') + environment.value(path));
    for (const char* const variable : {"TMPDIR", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "PARALLEL_HOME"}) {
        const QString name = QString::fromLatin1(variable);
        QDir(root.path()).mkpath(name);
        environment.insert(name, Path(name));
    }
}

QString PartsStage::Prepare()
{
    for (int i = 0; i < pictureCount; ++i) {
        // Seeds repeat their pixels after 256.
        PictureFiles::WriteJpeg(Path(QStringLiteral("photos/%1.jpg").arg(i, 3, 10, QLatin1Char('0'))), i, 700 + i / 256,
                                500);
    }
    constexpr int patience = 600'000; // ms
    QProcess run;
    run.setProcessEnvironment(environment);
    run.setWorkingDirectory(root.path());
    run.start(QStringLiteral(VELKORA_BATCH),
              QStringList{QStringLiteral("run")} + job +
                  QStringList{QStringLiteral("--output"), QStringLiteral("undisturbed"), QStringLiteral("--quiet")});
    const bool isOver = run.waitForFinished(patience);
    undisturbed = FilesBelow(Path(QStringLiteral("undisturbed")));
    return isOver && run.exitCode() == 0 && undisturbed.size() == pictureCount
               ? QString()
               : QStringLiteral("The undisturbed run has made %1 pictures: ").arg(undisturbed.size()) +
                     QString::fromUtf8(run.readAllStandardError());
}

QString PartsStage::Mark() const
{
    const QString variable = QStringLiteral("XDG_DATA_HOME");
    return variable + QLatin1Char('=') + environment.value(variable);
}

CliRun PartsStage::Split()
{
    QDir(Path(QStringLiteral("web"))).removeRecursively();
    QDir folder(root.path());
    const QStringList left = folder.entryList({QStringLiteral("web.plan*")}, QDir::Files | QDir::Hidden);
    for (const QString& name : left) {
        folder.remove(name);
    }
    const CliRun run = Run(QStringList{QStringLiteral("split")} + job +
                           QStringList{QStringLiteral("-o"), QStringLiteral("web"), QStringLiteral("--plan"), Plan(),
                                       QStringLiteral("--parts"), QString::number(partCount)});
    ReadPlan();
    return run;
}

void PartsStage::ReadPlan()
{
    outputs.clear();
    QFile file(Plan());
    if (!file.open(QIODevice::ReadOnly)) {
        return;
    }
    NextLine(file);
    const QJsonArray parts = NextLine(file).value(QLatin1String("parts")).toArray();
    for (const QJsonValue& part : parts) {
        outputs.append(QStringList());
        for (int i = part.toObject().value(QLatin1String("files")).toInt(); i > 0; --i) {
            const QJsonArray results = NextLine(file).value(QLatin1String("results")).toArray();
            outputs.last().append(results.first().toObject().value(QLatin1String("to")).toString());
        }
    }
}

int PartsStage::ResultsOf(int part) const
{
    const QStringList& names = outputs.at(part - 1);
    const QDir folder(Path(QStringLiteral("web")));
    return static_cast<int>(
        std::count_if(names.begin(), names.end(), [&folder](const QString& name) { return folder.exists(name); }));
}

int PartsStage::BeginningsOf(int part) const
{
    return QDir(root.path())
        .entryList({QStringLiteral("web.plan-*-%1-*.journal").arg(part)}, QDir::Files | QDir::Hidden)
        .size();
}

bool PartsStage::HoldOnTheWay(int part, const QString& variable) const
{
    constexpr int patience = 600'000; // ms
    constexpr int some = 3;
    QElapsedTimer timer;
    timer.start();
    while (ResultsOf(part) < some) {
        if (timer.elapsed() > patience) {
            return false;
        }
        QTest::qWait(5);
    }
    Signal(ProcessesWith({Mark(), variable}, worker), SIGSTOP);
    return ResultsOf(part) < SizeOf(part);
}

void PartsStage::Continue(const QString& variable) const
{
    Signal(ProcessesWith({Mark(), variable}, worker), SIGCONT);
}

CliRun PartsStage::Run(const QStringList& arguments) const
{
    return CliRun::Of(arguments, root.path(), environment);
}

QString PartsStage::DifferenceFromOneRun() const
{
    const CliRun collected =
        Run({QStringLiteral("collect"), Plan(), QStringLiteral("--report"), QStringLiteral("web.csv")});
    const QString said = QStringLiteral("Parts done: %1 of %1. Written: %2, skipped: 0, failed: 0, not processed: 0.")
                             .arg(partCount)
                             .arg(pictureCount);
    if (collected.exitCode != 0 || !collected.Out().contains(said)) {
        return QStringLiteral("collect says, with code %1: ").arg(collected.exitCode) + collected.Out() +
               collected.Err();
    }
    QFile report(Path(QStringLiteral("web.csv")));
    const QByteArray lines = report.open(QIODevice::ReadOnly) ? report.readAll() : QByteArray();
    if (lines.count('\n') != pictureCount + 1 || lines.count(",\"written\",") != pictureCount) {
        return QStringLiteral("The report has %1 lines, and %2 results in them")
            .arg(lines.count('\n'))
            .arg(lines.count(",\"written\","));
    }
    const Files made = FilesBelow(Path(QStringLiteral("web")));
    QStringList different;
    for (auto it = undisturbed.begin(); it != undisturbed.end(); ++it) {
        if (made.value(it.key()) != *it) {
            different.append((made.contains(it.key()) ? QLatin1String("other bytes: ") : QLatin1String("missing: ")) +
                             it.key());
        }
    }
    for (auto it = made.begin(); it != made.end(); ++it) {
        if (!undisturbed.contains(it.key())) {
            different.append(QLatin1String("too many: ") + it.key());
        }
    }
    const QStringList left =
        QDir(root.path()).entryList({QStringLiteral("web.plan*")}, QDir::Files | QDir::Hidden, QDir::Name);
    if (!left.isEmpty()) {
        different.append(QLatin1String("left: ") + left.join(QLatin1Char(' ')));
    }
    return different.join(QLatin1String(", "));
}
