// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"
#include "FileTimes.h"
#include "HeldRun.h"
#include "Links.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

// Windows cannot tell a folder that was left from one that is just being made, unless it is of some age.
constexpr int age = 120; // s

#ifdef Q_OS_WIN
constexpr int codeOfSecondRun = 3; // There is one pipe.
#else
constexpr int codeOfSecondRun = 0;
#endif

} // namespace

/// The temporary folders of runs: those that killed runs have left are removed by the next one, and nothing else.
class tst_CliTempFolders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void killedRunsLeaveNothing();
    void otherThingsStay();

private:
    QString Temporary() const { return stage->Environment().value(QStringLiteral("TMPDIR")); }
    QStringList Folders() const
    {
        return QDir(Temporary()).entryList({QStringLiteral("velkora-batch-*")}, QDir::Dirs | QDir::NoDotAndDotDot);
    }

    std::unique_ptr<CliStage> stage;
};

void tst_CliTempFolders::init()
{
    stage = std::make_unique<CliStage>(CliStage::Server::StandIn);
    stage->Write(QStringLiteral("photos/1.jpg"), "wait " + stage->Path(QStringLiteral("gate")).toUtf8());
    stage->Write(QStringLiteral("others/1.jpg"), "1");
    stage->Write(QStringLiteral("private/precious"), "precious");
}

void tst_CliTempFolders::killedRunsLeaveNothing()
{
    HeldRun killed(*stage, QStringLiteral("run photos -o first --format jpeg"));
    QVERIFY(killed.WaitFor("/photos/1.jpg"));
    QVERIFY2(killed.Kill(), killed.Err().constData());
    QCOMPARE(Folders().size(), 1);
    const QDir left(Temporary() + QLatin1Char('/') + Folders().first());
    QVERIFY(left.mkpath(QStringLiteral("a/b")));
    MakeLink(stage->Path(QStringLiteral("private")), left.filePath(QStringLiteral("a/link")));
    QVERIFY(MakeOlder(left.path(), age));
    HeldRun running(*stage, QStringLiteral("run photos -o second --format jpeg"));
    QVERIFY(running.WaitFor("/photos/1.jpg"));
    QCOMPARE(Folders().size(), 1);
    QVERIFY(!left.exists());
    QCOMPARE(stage->Content(QStringLiteral("private/precious")), QByteArray("precious"));

    // The folder of a run stays as long as the run.
    QVERIFY(MakeOlder(Temporary() + QLatin1Char('/') + Folders().first(), age));
    const CliRun other = stage->Run(QStringLiteral("run others -o third --format jpeg"));
    QVERIFY2(other.exitCode == codeOfSecondRun, other.err.constData());
    QCOMPARE(Folders().size(), 1);
    stage->Write(QStringLiteral("gate"), {});
    QCOMPARE(running.End(), 0);
    QCOMPARE(Folders(), QStringList());
}

void tst_CliTempFolders::otherThingsStay()
{
    const QDir temporary(Temporary());
    QVERIFY(temporary.mkdir(QStringLiteral("velkora-batch-longername")));
    QVERIFY(temporary.mkdir(QStringLiteral("velkora-batch-ab.def")));
    const bool hasLink =
        MakeLink(stage->Path(QStringLiteral("private")), temporary.filePath(QStringLiteral("velkora-batch-abcdef")));
    int left = hasLink ? 3 : 2;
#ifdef Q_OS_UNIX
    if (::geteuid() == 0) {
        QVERIFY(temporary.mkdir(QStringLiteral("velkora-batch-Foreig")));
        QCOMPARE(::chown(temporary.filePath(QStringLiteral("velkora-batch-Foreig")).toUtf8().constData(), 65534, 65534),
                 0);
        ++left;
    }
#endif
    QVERIFY(temporary.mkdir(QStringLiteral("velkora-batch-Stale1")));
    for (const QString& folder : Folders()) {
        QVERIFY(MakeOlder(temporary.filePath(folder), age));
    }
    const CliRun run = stage->Run(QStringLiteral("run others -o third --format jpeg"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(Folders().size(), left);
    QVERIFY(!temporary.exists(QStringLiteral("velkora-batch-Stale1")));
    QCOMPARE(stage->Content(QStringLiteral("private/precious")), QByteArray("precious"));
}

QTEST_GUILESS_MAIN(tst_CliTempFolders)
#include "tst_clitempfolders.moc"
