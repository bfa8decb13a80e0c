// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"
#include "HeldRun.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

#include <unistd.h>

/// Linked folders below the output folder: results go through them only when the user says so.
class tst_CliLinks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void linkedFolders_data();
    void linkedFolders();
    void linksThatTheUserFollows();
    void linkToTheOutputFolder();
    void folderThatIsSwappedInTheMiddle();
    void temporaryFilesBehindLinksStay();

private:
    void Link(const QString& name, const QString& target) const;
    QString Path(const QString& name) const { return stage->Path(name); }

    std::unique_ptr<CliStage> stage;
};

namespace {

const QString run = QStringLiteral("run photos -o out --structure input --format jpeg");

} // namespace

void tst_CliLinks::init()
{
    stage = std::make_unique<CliStage>(CliStage::Server::StandIn);
    stage->Write(QStringLiteral("photos/1.jpg"), "1");
    stage->Write(QStringLiteral("photos/day/2.jpg"), "2");
    QVERIFY(QDir(stage->Folder()).mkpath(QStringLiteral("private/day")));
    QVERIFY(QDir(stage->Folder()).mkpath(QStringLiteral("out")));
}

void tst_CliLinks::Link(const QString& name, const QString& target) const
{
    QCOMPARE(::symlink(target.toUtf8().constData(), Path(name).toUtf8().constData()), 0);
}

void tst_CliLinks::linkedFolders_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("target");
    QTest::addColumn<int>("written");
    QTest::newRow("first folder") << QStringLiteral("out/photos") << QStringLiteral("/private") << 0;
    QTest::newRow("first folder, relative") << QStringLiteral("out/photos") << QStringLiteral("../private") << 0;
    QTest::newRow("deeper folder") << QStringLiteral("out/photos/day") << QStringLiteral("/private/day") << 1;
    QTest::newRow("to a folder beside it") << QStringLiteral("out/photos/day") << QStringLiteral(".") << 1;
    QTest::newRow("dangling") << QStringLiteral("out/photos/day") << QStringLiteral("/private/none") << 1;
}

void tst_CliLinks::linkedFolders()
{
    QFETCH(QString, link);
    QFETCH(QString, target);
    QFETCH(int, written);
    QVERIFY(QDir().mkpath(QFileInfo(Path(link)).path()));
    Link(link, target.startsWith(QLatin1Char('/')) ? stage->Folder() + target : target);
    const CliRun done = stage->Run(run);
    QVERIFY2(done.exitCode == 1, done.err.constData());
    QVERIFY2(done.Err().contains(Path(link) + QStringLiteral(" is a link; results are not written through it")),
             done.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("private")), QStringList());
    QCOMPARE(stage->Names(QStringLiteral("private/day")), QStringList());
    QCOMPARE(QDir(Path(QStringLiteral("private"))).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
             QStringList(QStringLiteral("day")));
    QCOMPARE(QFileInfo::exists(Path(QStringLiteral("out/photos/1.jpg"))), written == 1);
    QVERIFY(!QFileInfo::exists(Path(QStringLiteral("out/photos/2.jpg"))));
}

void tst_CliLinks::linksThatTheUserFollows()
{
    Link(QStringLiteral("out/photos"), Path(QStringLiteral("private")));
    const CliRun done = stage->Run(run + QStringLiteral(" --follow-links"));
    QVERIFY2(done.exitCode == 0, done.err.constData());
    QCOMPARE(stage->Content(QStringLiteral("private/1.jpg")), QByteArray("1"));
    QCOMPARE(stage->Content(QStringLiteral("private/day/2.jpg")), QByteArray("2"));
}

// The user has named the output folder itself.
void tst_CliLinks::linkToTheOutputFolder()
{
    QVERIFY(QDir(stage->Folder()).rmdir(QStringLiteral("out")));
    Link(QStringLiteral("out"), Path(QStringLiteral("private")));
    const CliRun done = stage->Run(run);
    QVERIFY2(done.exitCode == 0, done.err.constData());
    QCOMPARE(stage->Content(QStringLiteral("private/photos/day/2.jpg")), QByteArray("2"));
}

// The folder is there when the run makes it, and a link when the result is opened.
void tst_CliLinks::folderThatIsSwappedInTheMiddle()
{
    const QString gate = Path(QStringLiteral("gate"));
    stage->Write(QStringLiteral("photos/day/2.jpg"), "wait " + gate.toUtf8());
    HeldRun held(*stage, run);
    QVERIFY(held.WaitFor("/photos/day/2.jpg"));
    QVERIFY(QFile::rename(Path(QStringLiteral("out/photos/day")), Path(QStringLiteral("moved"))));
    Link(QStringLiteral("out/photos/day"), Path(QStringLiteral("private/day")));
    stage->Write(QStringLiteral("gate"), {});
    QCOMPARE(held.End(), 1);
    QVERIFY2(held.Out().contains("/out/photos/day is a link; results are not written through it"),
             held.Out().constData());
    QCOMPARE(stage->Names(QStringLiteral("private/day")), QStringList());
    QCOMPARE(stage->Names(QStringLiteral("moved")), QStringList());
}

void tst_CliLinks::temporaryFilesBehindLinksStay()
{
    Link(QStringLiteral("out/photos"), Path(QStringLiteral("private")));
    const QString name = QStringLiteral("private/.velkora-0123456789abcdef.tmp");
    stage->Write(name, "precious");
    QCOMPARE(stage->Run(run).exitCode, 1);
    QCOMPARE(stage->Content(name), QByteArray("precious"));
}

QTEST_GUILESS_MAIN(tst_CliLinks)
#include "tst_clilinks.moc"
