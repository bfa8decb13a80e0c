// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Mutations.h"
#include "ProgramFiles.h"
#include "ServerRun.h"
#include "TestPictures.h"

#include "server/protocol/ServerLimits.h"

#include <QDir>
#include <QHash>
#include <QSet>
#include <QTest>

#ifdef Q_OS_WIN
#include <qt_windows.h>
#endif

/// Damaged pictures of every format, as from a broken memory card, in one run of the real server.
class TestMutations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { StartPictures(); }

    void everyPictureIsWrittenOrReported_data();
    void everyPictureIsWrittenOrReported();
};

namespace {

constexpr int pictureCount = 500;
constexpr int patience = 240'000; // ms, for a run

QStringList WriteMutations(ServerRun& run, unsigned seed)
{
    const QVector<PictureBytes> pictures = SmallPictures();
    std::mt19937 random(seed);
    QStringList files;
    for (int i = 0; i < pictureCount; ++i) {
        const PictureBytes& picture = pictures[i % pictures.size()];
        files.append(
            run.Write(QStringLiteral("in/%1.%2").arg(i).arg(picture.extension), Mutated(picture.bytes, random)));
    }
    return files;
}

QHash<QString, QByteArray> Contents(const ServerRun& run)
{
    QHash<QString, QByteArray> contents;
    for (const QString& name : run.Names(QStringLiteral("in"))) {
        contents.insert(name, run.Content(QStringLiteral("in/") + name));
    }
    return contents;
}

// The part of a line between its first brackets.
QString InputOf(const QString& line)
{
    return line.section(QLatin1Char('['), 1).section(QLatin1Char(']'), 0, 0);
}

#ifdef Q_OS_WIN
/// As many as the process has of everything: the system does not say what they are.
QStringList OpenFiles(qint64 process)
{
    const HANDLE handle = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, DWORD(process));
    DWORD count = 0;
    if (!GetProcessHandleCount(handle, &count)) {
        qWarning("The handles of the server cannot be counted.");
    }
    CloseHandle(handle);
    return QVector<QString>(int(count), QStringLiteral("a handle")).toList();
}
#else
QStringList OpenFiles(qint64 process)
{
    QStringList files;
    const QDir folder(QStringLiteral("/proc/%1/fd").arg(process));
    for (const QFileInfo& file : folder.entryInfoList(QDir::AllEntries | QDir::System)) {
        files.append(file.symLinkTarget());
    }
    return files;
}
#endif

} // namespace

void TestMutations::everyPictureIsWrittenOrReported_data()
{
    QTest::addColumn<unsigned>("seed");
    QTest::newRow("the usual damage") << 20240607U;
    // To search further: VELKORA_TEST_SEED=17 tst_mutations
    bool isGiven = false;
    const unsigned given = qEnvironmentVariable("VELKORA_TEST_SEED").toUInt(&isGiven);
    if (isGiven) {
        QTest::addRow("seed %u", given) << given;
    }
}

void TestMutations::everyPictureIsWrittenOrReported()
{
    QFETCH(unsigned, seed);
    ServerRun run(ServerRun::Worker::Real);
    run.SetVariable(QStringLiteral("VELKORA_BATCH_PICTURE_SECONDS"), QStringLiteral("30"));
    const QStringList files = WriteMutations(run, seed);
    const QHash<QString, QByteArray> originals = Contents(run);
    QCOMPARE(originals.size(), pictureCount);
    QVERIFY(run.Start());
    // A first run opens everything that the server opens only once.
    run.Process(run.Job({run.Write(QStringLiteral("first.png"), SmallPictures().constFirst().bytes)}));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QTRY_COMPARE(run.WorkerIds().size(), 2);
    const int openFiles = OpenFiles(run.Server().processId()).size();
    run.lines.clear();
    run.session = QStringLiteral("second");
    run.Send<ZTBatchMessage::MsgCreateSession>();

    run.Process(run.Job(files));
    QTRY_VERIFY2_WITH_TIMEOUT(run.Count(QStringLiteral("finished")) > 0, qPrintable(run.Report()), patience);

    // Each picture has exactly one outcome.
    QSet<QString> written;
    for (const QString& line : run.Lines(QStringLiteral("processed "))) {
        QVERIFY2(!written.contains(InputOf(line)), qPrintable(line));
        written.insert(InputOf(line));
    }
    QSet<QString> skipped;
    for (const QString& line : run.Lines(QStringLiteral("error "))) {
        QVERIFY2(!skipped.contains(InputOf(line)), qPrintable(line));
        skipped.insert(InputOf(line));
    }
    QCOMPARE((written & skipped).size(), 0);
    QCOMPARE(written.size() + skipped.size(), pictureCount);
    QCOMPARE(run.Lines(QStringLiteral("progress ")).constLast(), QStringLiteral("progress %1").arg(pictureCount));
    QVERIFY2(written.size() > pictureCount / 20, qPrintable(QString::number(written.size())));
    QVERIFY2(skipped.size() > pictureCount / 5, qPrintable(QString::number(skipped.size())));

    // The results are whole, and there are no other files.
    const QStringList results = run.Names(QStringLiteral("out"));
    QCOMPARE(results.size(), written.size() + 1);
    for (const QString& result : results) {
        QVERIFY(ReadPicture(run.Path(QStringLiteral("out/") + result)).width() > 0);
    }
    QCOMPARE(Contents(run), originals);

    // The server has as many workers and open files as before.
    QCOMPARE(run.Server().state(), QProcess::Running);
    QVERIFY(run.WorkerIds().size() <= 2);
    QTRY_VERIFY2(OpenFiles(run.Server().processId()).size() <= openFiles,
                 qPrintable(OpenFiles(run.Server().processId()).join(QLatin1Char('\n'))));
    const QList<qint64> workers = run.WorkerIds();

    run.SendRaw(ZTBatchMessage::MsgCloseServer, {});
    QCOMPARE(run.WaitForEnd(), 0);
    for (const qint64 worker : workers) {
        QTRY_VERIFY(ServerRun::HasEnded(worker));
    }
    // Its own temporary files and its pipe are gone.
    const QStringList left{ProgramFileName(QStringLiteral("VelkoraBatchProcessing")),
                           ProgramFileName(QStringLiteral("VelkoraBatchWorker")), QStringLiteral("first.png"),
                           QStringLiteral("in"), QStringLiteral("out")};
    QCOMPARE(run.Names(QString()), left);
}

QTEST_GUILESS_MAIN(TestMutations)

#include "tst_mutations.moc"
