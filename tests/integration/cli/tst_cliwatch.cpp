// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"
#include "Events.h"
#include "HeldRun.h"
#include "Links.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

/// A folder that is watched: which pictures are taken, and when.
class tst_CliWatch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void picturesThatAreThereAreMade();
    void movedPicturesAreTakenAtOnce();
    void growingPicturesAreTakenWhole();
    void emptyPicturesWait();
    void foldersThatAppearAreWatched();
    void changedPicturesAreMadeAgain();
    void failedPicturesAreToldOnce();
    void lookingFindsPicturesToo();
    void outputInsideIsNoInput();
    void otherFilesAreIgnored();
    void equalNamesAreNumbered();
    void foldersThatGoEndWatching();
    void wrongArgumentsAreRefused_data();
    void wrongArgumentsAreRefused();
#ifdef Q_OS_UNIX
    void foldersThatCannotBeReadAreRefused();
#endif
    void oneProcessForAnOutputFolder();

private:
    QString Watch(const QString& more = QString()) const
    {
        return QStringLiteral("watch in -o out --format png ") + looking + more;
    }
    /// A picture that arrives at once.
    void MoveIn(const QString& name, const QByteArray& content = "picture") const;
    /// Waits until the picture `name` has its result.
    bool WaitForResult(HeldRun& run, const QString& name) const;
    static int EndOf(HeldRun& run);
    QStringList Results(const QString& folder = QStringLiteral("out")) const;

#ifdef Q_OS_WIN
    const QString looking = QStringLiteral("--poll 1 "); ///< as the system tells of nothing
#else
    const QString looking;
#endif
    std::unique_ptr<CliStage> stage;
};

void tst_CliWatch::init()
{
    stage = std::make_unique<CliStage>(CliStage::Server::StandIn);
    QVERIFY(QDir().mkpath(stage->Path(QStringLiteral("in"))));
}

void tst_CliWatch::MoveIn(const QString& name, const QByteArray& content) const
{
    const QString from = stage->Write(QStringLiteral("coming"), content);
    QVERIFY(QFile::rename(from, stage->Path(QStringLiteral("in/") + name)));
}

bool tst_CliWatch::WaitForResult(HeldRun& run, const QString& name) const
{
    return run.WaitFor("\"input\":\"" + stage->Path(QStringLiteral("in/") + name).toUtf8() + "\",\"inputBytes\"");
}

int tst_CliWatch::EndOf(HeldRun& run)
{
    return run.RequestEnd() ? run.End() : -1;
}

QStringList tst_CliWatch::Results(const QString& folder) const
{
    return stage->Names(folder).filter(QStringLiteral(".png"));
}

void tst_CliWatch::picturesThatAreThereAreMade()
{
    stage->Write(QStringLiteral("in/b.jpg"), "b");
    stage->Write(QStringLiteral("in/a.jpg"), "a");
    stage->Write(QStringLiteral("in/sub/c.jpg"), "c");
    HeldRun run(*stage, Watch(QStringLiteral("--settle 0")));
    QVERIFY(run.WaitFor("\"event\":\"end\""));
    QCOMPARE(EndOf(run), 0);
    QCOMPARE(Results(), QStringList({QStringLiteral("a.png"), QStringLiteral("b.png"), QStringLiteral("c.png")}));
    QCOMPARE(EventsOf(run.Out()).first().value(QStringLiteral("event")).toString(), QStringLiteral("watching"));
    QVERIFY2(run.Err().contains("Written: 3, skipped: 0, failed: 0."), run.Err().constData());
    // Only the record is left beside them.
    QCOMPARE(stage->Names(QStringLiteral("out")).size(), 4);
}

void tst_CliWatch::movedPicturesAreTakenAtOnce()
{
#ifdef Q_OS_WIN
    QSKIP("Nothing tells of pictures that arrive: the folder is looked at.");
#endif
    HeldRun run(*stage, Watch(QStringLiteral("--settle 3600")));
    // Until the system is asked about the folder, it tells of none.
    bool isTold = false;
    for (int i = 0; i < 120 && !isTold; ++i) {
        MoveIn(QStringLiteral("first%1.jpg").arg(i));
        isTold = QTest::qWaitFor([this] { return !Results().isEmpty(); }, 500);
    }
    QVERIFY(isTold);
    stage->Write(QStringLiteral("in/written.jpg"), "in place");
    QVERIFY(QDir().mkpath(stage->Path(QStringLiteral("in/sub"))));
    MoveIn(QStringLiteral("later.jpg"));
    QVERIFY(WaitForResult(run, QStringLiteral("later.jpg")));
    MoveIn(QStringLiteral("sub/below.jpg"));
    QVERIFY(WaitForResult(run, QStringLiteral("sub/below.jpg")));
    QCOMPARE(EndOf(run), 0);
    QVERIFY(!Results().contains(QStringLiteral("written.png")));
}

// Without any waiting for it to stay the same: the system says that it is being written.
void tst_CliWatch::growingPicturesAreTakenWhole()
{
#ifdef Q_OS_WIN
    QSKIP("Nothing tells that a file is being written: it is taken when it has not changed for the time of --settle.");
#endif
    HeldRun run(*stage, Watch(QStringLiteral("--settle 0")));
    MoveIn(QStringLiteral("first.jpg"));
    QVERIFY(WaitForResult(run, QStringLiteral("first.jpg")));
    QByteArray content;
    QFile growing(stage->Path(QStringLiteral("in/growing.jpg")));
    QVERIFY(growing.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    for (int step = 0; step < 4; ++step) {
        content += QByteArray(1'000, char('a' + step));
        QCOMPARE(growing.write(QByteArray(1'000, char('a' + step))), qint64(1'000));
        const QString marker = QStringLiteral("marker%1.jpg").arg(step);
        MoveIn(marker);
        QVERIFY(WaitForResult(run, marker));
        QVERIFY(!Results().contains(QStringLiteral("growing.png")));
    }
    growing.close();
    QVERIFY(WaitForResult(run, QStringLiteral("growing.jpg")));
    QCOMPARE(EndOf(run), 0);
    QCOMPARE(stage->Content(QStringLiteral("out/growing.png")), content);
    QCOMPARE(run.Out().count("growing.jpg\",\"inputBytes\""), 1);
}

void tst_CliWatch::emptyPicturesWait()
{
    stage->Write(QStringLiteral("in/empty.jpg"), {});
    HeldRun run(*stage, Watch(QStringLiteral("--settle 0")));
    MoveIn(QStringLiteral("marker.jpg"));
    QVERIFY(WaitForResult(run, QStringLiteral("marker.jpg")));
    QVERIFY(!run.Out().contains("empty.jpg"));
    stage->Write(QStringLiteral("in/empty.jpg"), "filled");
    QVERIFY(WaitForResult(run, QStringLiteral("empty.jpg")));
    QCOMPARE(EndOf(run), 0);
    QCOMPARE(stage->Content(QStringLiteral("out/empty.png")), QByteArray("filled"));
}

void tst_CliWatch::foldersThatAppearAreWatched()
{
    HeldRun run(*stage, Watch(QStringLiteral("--settle 0 --structure input")));
    MoveIn(QStringLiteral("marker.jpg"));
    QVERIFY(WaitForResult(run, QStringLiteral("marker.jpg")));
    stage->Write(QStringLiteral("card/day/1.jpg"), "1");
    stage->Write(QStringLiteral("card/2.jpg"), "2");
    QVERIFY(QDir().rename(stage->Path(QStringLiteral("card")), stage->Path(QStringLiteral("in/card"))));
    QVERIFY(WaitForResult(run, QStringLiteral("card/day/1.jpg")));
    QVERIFY(WaitForResult(run, QStringLiteral("card/2.jpg")));
    stage->Write(QStringLiteral("in/card/day/3.jpg"), "3");
    QVERIFY(WaitForResult(run, QStringLiteral("card/day/3.jpg")));
    stage->Write(QStringLiteral("in/new/deep/4.jpg"), "4");
    QVERIFY(WaitForResult(run, QStringLiteral("new/deep/4.jpg")));
    QCOMPARE(EndOf(run), 0);
    QStringList outputs;
    for (const QJsonObject& event : EventsOf(run.Out(), QStringLiteral("written"))) {
        outputs.append(event.value(QStringLiteral("output")).toString());
    }
    // As a run over the whole folder would have put them.
    const CliRun whole = stage->Run(QStringLiteral("plan in -o out --format png --structure input --no-sizes"));
    for (const QString& output : qAsConst(outputs)) {
        QVERIFY2(whole.Out().contains(output), qPrintable(output + QLatin1Char('\n') + whole.Out()));
    }
    QCOMPARE(outputs.size(), 5);
}

void tst_CliWatch::changedPicturesAreMadeAgain()
{
    HeldRun run(*stage, Watch(QStringLiteral("--settle 0 --on-name-exists overwrite")));
    MoveIn(QStringLiteral("a.jpg"), "first");
    QVERIFY(WaitForResult(run, QStringLiteral("a.jpg")));
    stage->Write(QStringLiteral("in/a.jpg"), "another one");
    QVERIFY(run.WaitFor("\"event\":\"written\"", 2));
    QCOMPARE(EndOf(run), 0);
    QCOMPARE(stage->Content(QStringLiteral("out/a.png")), QByteArray("another one"));
    QCOMPARE(Results(), QStringList{QStringLiteral("a.png")});
}

void tst_CliWatch::failedPicturesAreToldOnce()
{
    {
        HeldRun run(*stage, Watch(QStringLiteral("--settle 0")));
        MoveIn(QStringLiteral("bad.jpg"), "input 2");
        QVERIFY(run.WaitFor("\"event\":\"failed\""));
        MoveIn(QStringLiteral("good.jpg"));
        QVERIFY(WaitForResult(run, QStringLiteral("good.jpg")));
        QCOMPARE(EndOf(run), 0);
        QCOMPARE(EventsOf(run.Out(), QStringLiteral("failed")).size(), 1);
    }
    HeldRun run(*stage, Watch(QStringLiteral("--settle 0")));
    MoveIn(QStringLiteral("marker.jpg"));
    QVERIFY(WaitForResult(run, QStringLiteral("marker.jpg")));
    QVERIFY(!run.Out().contains("bad.jpg"));
    stage->Write(QStringLiteral("in/bad.jpg"), "a picture now");
    QVERIFY(WaitForResult(run, QStringLiteral("bad.jpg")));
    QCOMPARE(EndOf(run), 0);
    QCOMPARE(Results(),
             QStringList({QStringLiteral("bad.png"), QStringLiteral("good.png"), QStringLiteral("marker.png")}));
}

void tst_CliWatch::lookingFindsPicturesToo()
{
    HeldRun run(*stage, QStringLiteral("watch in -o out --format png --settle 1 --poll 1"));
    stage->Write(QStringLiteral("in/a.jpg"), "a");
    QVERIFY(WaitForResult(run, QStringLiteral("a.jpg")));
    stage->Write(QStringLiteral("in/sub/b.jpg"), "b");
    QVERIFY(WaitForResult(run, QStringLiteral("sub/b.jpg")));
    QCOMPARE(EndOf(run), 0);
}

void tst_CliWatch::outputInsideIsNoInput()
{
    HeldRun run(*stage, QStringLiteral("watch in -o in/out --format png --settle 0 ") + looking);
    for (const char* name : {"1.jpg", "2.jpg", "3.jpg"}) {
        MoveIn(QLatin1String(name));
        QVERIFY(WaitForResult(run, QLatin1String(name)));
    }
    QCOMPARE(EndOf(run), 0);
    QCOMPARE(Results(QStringLiteral("in/out")).size(), 3);
    QCOMPARE(EventsOf(run.Out(), QStringLiteral("written")).size(), 3);
}

void tst_CliWatch::otherFilesAreIgnored()
{
    for (const char* name : {".hidden.jpg", ".folder/a.jpg", "~a.jpg", "a.jpg.part", "a.tmp", "b.crdownload", "c~"}) {
        stage->Write(QStringLiteral("in/") + QLatin1String(name), "no picture yet");
    }
    HeldRun run(*stage, Watch(QStringLiteral("--settle 0 --include * --exclude draft*")));
    MoveIn(QStringLiteral("draft.jpg"));
    MoveIn(QStringLiteral("marker.jpg"));
    QVERIFY(WaitForResult(run, QStringLiteral("marker.jpg")));
    QCOMPARE(EndOf(run), 0);
    QCOMPARE(Results(), QStringList{QStringLiteral("marker.png")});
    QCOMPARE(EventsOf(run.Out(), QStringLiteral("failed")).size(), 0);
}

void tst_CliWatch::equalNamesAreNumbered()
{
    stage->Write(QStringLiteral("in/a.jpg"), "one");
    stage->Write(QStringLiteral("in/sub/a.jpg"), "two");
    HeldRun run(*stage, Watch(QStringLiteral("--settle 0")));
    QVERIFY(run.WaitFor("\"event\":\"end\""));
    stage->Write(QStringLiteral("in/other/a.jpg"), "three");
    QVERIFY(WaitForResult(run, QStringLiteral("other/a.jpg")));
    QCOMPARE(EndOf(run), 0);
    QCOMPARE(Results(),
             QStringList({QStringLiteral("a (2).png"), QStringLiteral("a (3).png"), QStringLiteral("a.png")}));
}

void tst_CliWatch::foldersThatGoEndWatching()
{
    HeldRun run(*stage, Watch(QStringLiteral("--settle 0")));
    MoveIn(QStringLiteral("a.jpg"));
    QVERIFY(WaitForResult(run, QStringLiteral("a.jpg")));
    QVERIFY(QDir(stage->Path(QStringLiteral("in"))).removeRecursively());
    QCOMPARE(run.End(), 1);
    QVERIFY2(run.Err().contains(stage->Path(QStringLiteral("in")).toUtf8() + " can no longer be read: "),
             run.Err().constData());
}

void tst_CliWatch::wrongArgumentsAreRefused_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* name, const char* arguments, const char* wanted) {
        QTest::newRow(name) << QString::fromLatin1(arguments) << QString::fromLatin1(wanted);
    };
    row("no folder", "watch -o out", "one folder to watch is needed");
    row("two folders", "watch in in -o out", "one folder to watch is needed");
    row("missing folder", "watch nothing -o out", "/nothing does not exist");
    row("file", "watch file.jpg -o out", "/file.jpg is not a folder");
    row("no output folder", "watch in", "no output folder");
    row("output is the folder", "watch in -o in", "the results would come into the watched folder");
    row("output is above", "watch in -o .", "the results would come into the watched folder");
#ifdef Q_OS_UNIX
    row("output is above by a link", "watch in -o link", "the results would come into the watched folder");
#endif
    row("missing preset", "watch in -o out --preset nothing", "there is no preset \"nothing\"");
    row("wrong effect", "watch in -o out --effect nothing", "nothing");
    row("wrong wildcard", "watch in -o out --include [b-a]", "the wildcard");
    row("negative time", "watch in -o out --settle -1", "--settle");
    row("no number", "watch in -o out --poll often", "--poll");
    row("looking all the time", "watch in -o out --poll 0", "--poll");
    row("in place", "watch in --in-place", "--in-place");
    row("resume", "watch in -o out --resume", "--resume");
}

void tst_CliWatch::wrongArgumentsAreRefused()
{
    QFETCH(QString, arguments);
    QFETCH(QString, wanted);
    stage->Write(QStringLiteral("file.jpg"), "a picture");
    MakeLink(stage->Folder(), stage->Path(QStringLiteral("link")));
    const CliRun run = stage->Run(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(wanted), run.err.constData());
    QVERIFY(!QFileInfo::exists(stage->Path(QStringLiteral("out"))));
    QCOMPARE(stage->Names(QStringLiteral("in")), QStringList());
}

#ifdef Q_OS_UNIX
void tst_CliWatch::foldersThatCannotBeReadAreRefused()
{
    const QString folder = stage->Path(QStringLiteral("in"));
    const QFileDevice::Permissions all = QFileDevice::ReadOwner | QFileDevice::ExeOwner | QFileDevice::ReadOther |
                                         QFileDevice::ExeOther | QFileDevice::WriteOwner;
    for (const QString& path : {stage->Folder(), QFileInfo(stage->Program()).path(), stage->Program()}) {
        QVERIFY(QFile::setPermissions(path, all));
    }
    QVERIFY(QFile::setPermissions(folder, {}));
    // Root may read everything.
    QStringList command{stage->Program()};
    if (::geteuid() == 0) {
        command = QStringList{QStringLiteral("setpriv"), QStringLiteral("--reuid=65534"),
                              QStringLiteral("--regid=65534"), QStringLiteral("--clear-groups")} +
                  command;
    }
    const QString program = command.takeFirst();
    const CliRun run =
        CliRun::OfProgram(program, command + stage->Arguments(Watch()), stage->Folder(), stage->Environment());
    QVERIFY(QFile::setPermissions(folder, all));
    QVERIFY2(run.exitCode == 2, run.err.constData());
    QVERIFY2(run.err.contains(folder.toUtf8() + " cannot be read: "), run.err.constData());
}
#endif

void tst_CliWatch::oneProcessForAnOutputFolder()
{
    HeldRun first(*stage, Watch(QStringLiteral("--settle 0")));
    MoveIn(QStringLiteral("a.jpg"));
    QVERIFY(WaitForResult(first, QStringLiteral("a.jpg")));
    const CliRun second = stage->Run(Watch());
    QVERIFY2(second.exitCode == 6, second.err.constData());
    QVERIFY2(second.err.contains("another process watches a folder for "), second.err.constData());
    QCOMPARE(EndOf(first), 0);
}

QTEST_GUILESS_MAIN(tst_CliWatch)
#include "tst_cliwatch.moc"
