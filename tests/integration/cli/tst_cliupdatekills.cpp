// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"
#include "FileTimes.h"
#include "FolderContent.h"
#include "PictureFiles.h"
#include "ProcessEnd.h"

#include <QDir>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <array>
#include <memory>

namespace {

// On Windows one run at a time is possible, and processes start slowly under Wine.
#if defined(Q_OS_WIN)
constexpr int lanes = 1;
constexpr int killsForEachRow = 6;
#elif defined(__SANITIZE_ADDRESS__)
constexpr int lanes = 5;
constexpr int killsForEachRow = 5;
#else
constexpr int lanes = 5;
constexpr int killsForEachRow = 25;
#endif

} // namespace

/// Updates that are killed at any moment: the next one ends as if nothing had happened.
class tst_CliUpdateKills : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void killedAtAnyMoment_data();
    void killedAtAnyMoment();

private:
    QString Path(const QString& name) const { return root->filePath(name); }
    static QString Folder(int lane) { return QStringLiteral("out%1").arg(lane); }
    void Start(QProcess& process, const QString& arguments) const
    {
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(root->path());
        process.start(QStringLiteral(VELKORA_BATCH), arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts)
                                                         << QStringLiteral("--settings")
                                                         << Path(QStringLiteral("settings")));
        QVERIFY(process.waitForStarted());
    }
    /// Makes `folder` look as the first update has left it, times included.
    void Restore(const QString& folder) const
    {
        QVERIFY(QDir(Path(folder)).removeRecursively());
        const QDir from(Path(QStringLiteral("first")));
        const QDir to(Path(folder));
        QDirIterator paths(from.path(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
        while (paths.hasNext()) {
            const QString path = paths.next();
            const QString copy = to.filePath(from.relativeFilePath(path));
            QVERIFY(to.mkpath(QFileInfo(copy).path()) && QFile::copy(path, copy) && CopyFileTime(path, copy));
        }
    }

    std::unique_ptr<QTemporaryDir> root;
    QProcessEnvironment environment;
};

void tst_CliUpdateKills::init()
{
    root = std::make_unique<QTemporaryDir>();
    environment = QProcessEnvironment::systemEnvironment();
    QVERIFY(QDir(root->path()).mkpath(QStringLiteral("tmp")));
    environment.insert(QStringLiteral("TMPDIR"), Path(QStringLiteral("tmp")));
    for (int i = 1; i <= 6; ++i) {
        PictureFiles::WriteJpeg(Path(QStringLiteral("a/%1.jpg").arg(i)), i, 500, 400);
        PictureFiles::WriteJpeg(Path(QStringLiteral("b/%1.jpg").arg(i)), 10 + i, 500, 400);
    }
}

void tst_CliUpdateKills::killedAtAnyMoment_data()
{
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("after");
    QTest::addColumn<bool>("isServer");
    QTest::addColumn<uint>("seed");
    const QString some = QStringLiteral("--structure input --effect blur:sigma=4");
    QTest::newRow("some have changed") << some << some << false << 1U;
    QTest::newRow("all have changed") << some << some + QStringLiteral(" --quality 70") << false << 2U;
    QTest::newRow("numbers shift") << QStringLiteral("--name number --effect blur:sigma=4 --checksum")
                                   << QStringLiteral("--name number --effect blur:sigma=4 --checksum") << false << 3U;
    QTest::newRow("server is killed") << some << some + QStringLiteral(" --quality 60") << true << 4U;
}

// Runs spend most of their time waiting, so several run at a time, each in a folder of its own.
void tst_CliUpdateKills::killedAtAnyMoment()
{
    QFETCH(QString, before);
    QFETCH(QString, after);
    QFETCH(bool, isServer);
    QFETCH(uint, seed);
    QProcess first;
    Start(first, QStringLiteral("run a b -q --update -o first ") + before);
    QVERIFY(first.waitForFinished(120'000));
    QCOMPARE(first.exitCode(), 0);
    for (const char* changed : {"a/2.jpg", "b/5.jpg"}) {
        PictureFiles::WriteJpeg(Path(QLatin1String(changed)), 40, 510, 410);
    }
    PictureFiles::WriteJpeg(Path(QStringLiteral("a/0.jpg")), 41, 500, 400);
    QVERIFY(QFile::remove(Path(QStringLiteral("b/6.jpg"))));
    const auto arguments = [&after](int lane) {
        return QStringLiteral("run a b -q --update --on-name-exists skip --delete-orphans %1 -o %2")
            .arg(after, Folder(lane));
    };

    std::array<QProcess, lanes> runs;
    QElapsedTimer time;
    time.start();
    for (int lane = 0; lane < lanes; ++lane) {
        Restore(Folder(lane));
        Start(runs[std::size_t(lane)], arguments(lane));
    }
    Files undisturbed;
    for (int lane = 0; lane < lanes; ++lane) {
        QVERIFY(runs[std::size_t(lane)].waitForFinished(120'000));
        QVERIFY2(runs[std::size_t(lane)].exitCode() == 0, runs[std::size_t(lane)].readAllStandardError().constData());
        const Files files = FilesBelow(Path(Folder(lane)), QDir::Files);
        QCOMPARE(files.size(), 12);
        QVERIFY(undisturbed.isEmpty() || files == undisturbed);
        undisturbed = files;
    }
    int duration = int(time.elapsed()); // of a run; other load on the machine may change it at any time

    QRandomGenerator random(seed);
    for (int kills = 0; kills < killsForEachRow; kills += lanes) {
        std::array<int, lanes> moments{};
        for (int& moment : moments) {
            moment = random.bounded(duration);
        }
        std::sort(moments.begin(), moments.end());
        for (int lane = 0; lane < lanes; ++lane) {
            Restore(Folder(lane));
        }
        time.start();
        for (int lane = 0; lane < lanes; ++lane) {
            Start(runs[std::size_t(lane)], arguments(lane));
        }
        int killed = 0;
        for (int lane = 0; lane < lanes; ++lane) {
            QProcess& run = runs[std::size_t(lane)];
            run.waitForFinished(std::max(0, moments[std::size_t(lane)] - int(time.elapsed())));
            killed += run.state() == QProcess::Running ? 1 : 0;
            if (isServer) {
                for (const qint64 server : ChildrenOf(run.processId())) {
                    KillProcess(server);
                }
            } else {
                run.kill();
            }
            run.waitForFinished(120'000);
            Start(run, arguments(lane));
        }
        duration = killed == lanes ? duration * 9 / 8 : killed < lanes / 2 ? duration * 7 / 8 : duration;
        for (int lane = 0; lane < lanes; ++lane) {
            QProcess& run = runs[std::size_t(lane)];
            QVERIFY(run.waitForFinished(120'000));
            const QByteArray err = run.readAllStandardError();
            QVERIFY2(run.exitCode() == 0, err.constData());
            const Files files = FilesBelow(Path(Folder(lane)), QDir::Files);
            QVERIFY2(files.keys() == undisturbed.keys(), files.keys().join(QLatin1Char(' ')).toUtf8() + err);
            QVERIFY2(files == undisturbed, "A result differs from that of the undisturbed update.");
            Start(run, arguments(lane) + QStringLiteral(" --json"));
            QVERIFY(run.waitForFinished(120'000));
            const QByteArray again = run.readAllStandardOutput();
            QVERIFY2(again.contains("\"unchanged\":12,"), again.constData());
        }
    }
}

QTEST_GUILESS_MAIN(tst_CliUpdateKills)
#include "tst_cliupdatekills.moc"
