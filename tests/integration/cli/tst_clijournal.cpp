// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"
#include "HeldRun.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#endif

/// Runs that are resumed although the journal, or the inputs, are no longer what they were.
class tst_CliJournal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void sameCommandInPlace_data();
    void sameCommandInPlace();
    void otherInputsAreAnotherJob();
#ifdef Q_OS_UNIX
    void journalThatCannotBeWritten_data();
    void journalThatCannotBeWritten();
    void journalThatCanBeWrittenAgain();
#endif
    void journalThatCannotBeCreated();

private:
    QString Gate(const QString& name) const
    {
        return stage->Path(name);
    }
#ifdef Q_OS_UNIX
    static void Limit(qint64 server, qint64 bytes);
#endif
    QString Journal() const;
    QByteArray Content() const
    {
        return stage->Content(QStringLiteral("out/") + QFileInfo(Journal()).fileName());
    }

    std::unique_ptr<CliStage> stage;
};

void tst_CliJournal::init()
{
    stage = std::make_unique<CliStage>(CliStage::Server::StandIn);
    for (const char* name : {"1", "2", "3", "4"}) {
        stage->Write(QStringLiteral("photos/%1.jpg").arg(QLatin1String(name)), name);
    }
}

QString tst_CliJournal::Journal() const
{
    const QStringList journals =
        stage->Names(QStringLiteral("out")).filter(QRegularExpression(QStringLiteral("journal$")));
    return journals.size() == 1 ? stage->Path(QStringLiteral("out/") + journals.first()) : QString();
}

void tst_CliJournal::sameCommandInPlace_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<int>("files");
    QTest::newRow("in place") << QStringLiteral("-o photos --in-place") << 4;
    QTest::newRow("rename") << QStringLiteral("-o photos --on-name-exists rename") << 8;
    QTest::newRow("below") << QStringLiteral("-o photos --structure input") << 4;
}

// Results replace inputs, or stand between them.
void tst_CliJournal::sameCommandInPlace()
{
    QFETCH(QString, options);
    QFETCH(int, files);
    const QString gate = Gate(QStringLiteral("gate"));
    stage->Write(QStringLiteral("photos/3.jpg"), "wait " + gate.toUtf8());
    const QString command = QStringLiteral("run photos --format jpeg ") + options;
    HeldRun held(*stage, command);
    QVERIFY(held.WaitFor("\"event\":\"written\"", 2));
    QVERIFY2(held.Kill(), held.Err().constData());
    stage->Write(QStringLiteral("gate"), {});
    const CliRun rest = stage->Run(command + QStringLiteral(" --resume"));
    QVERIFY2(rest.exitCode == 0, rest.err.constData());
    QVERIFY2(rest.err.contains("Written             4"), rest.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("photos")).size(), files);
}

void tst_CliJournal::otherInputsAreAnotherJob()
{
    const QString gate = Gate(QStringLiteral("gate"));
    stage->Write(QStringLiteral("photos/3.jpg"), "wait " + gate.toUtf8());
    const QString command = QStringLiteral("run photos --format jpeg -o photos --on-name-exists rename");
    HeldRun held(*stage, command);
    QVERIFY(held.WaitFor("\"event\":\"written\"", 2));
    QVERIFY2(held.Kill(), held.Err().constData());
    stage->Write(QStringLiteral("photos/new.jpg"), "new");
    const CliRun rest = stage->Run(command + QStringLiteral(" --resume"));
    QVERIFY2(rest.exitCode == 2, rest.err.constData());
    QVERIFY2(rest.err.contains(" is of another job: "), rest.err.constData());
}

#ifdef Q_OS_UNIX
/// From now on no file of the process `server` can grow beyond `bytes`.
void tst_CliJournal::Limit(qint64 server, qint64 bytes)
{
    rlimit limit = {};
    QCOMPARE(::prlimit(pid_t(server), RLIMIT_FSIZE, nullptr, &limit), 0);
    limit.rlim_cur = bytes < 0 ? limit.rlim_max : rlim_t(bytes);
    QCOMPARE(::prlimit(pid_t(server), RLIMIT_FSIZE, &limit, nullptr), 0);
}

void tst_CliJournal::journalThatCannotBeWritten_data()
{
    QTest::addColumn<int>("room");
    QTest::newRow("at the end of a line") << 0;
    QTest::newRow("within a line") << 10;
}

// The results of 1.jpg to 3.jpg are written, but the journal knows only that 1.jpg and 2.jpg were begun.
void tst_CliJournal::journalThatCannotBeWritten()
{
    QFETCH(int, room);
    stage->Write(QStringLiteral("photos/1.jpg"), "wait " + Gate(QStringLiteral("first")).toUtf8());
    stage->Write(QStringLiteral("photos/4.jpg"), "wait " + Gate(QStringLiteral("second")).toUtf8());
    stage->Write(QStringLiteral("out/3.jpg"), "old");
    HeldRun held(*stage, QStringLiteral("run photos -o out --format jpeg --on-name-exists rename"));
    QVERIFY(held.WaitFor("/photos/1.jpg"));
    QTRY_VERIFY(QFileInfo(Journal()).size() > 0 && Content().contains("\"begin\":1"));
    Limit(held.Server(), QFileInfo(Journal()).size() + room);
    stage->Write(QStringLiteral("first"), {});
    QVERIFY(held.WaitFor("\"event\":\"written\"", 3));
    QVERIFY(held.WaitFor("/photos/4.jpg"));
    QVERIFY2(held.Kill(), held.Err().constData());
    QVERIFY2(held.Err().count("cannot be written") == 1, held.Err().constData());
    QVERIFY2(held.Err().contains("the run cannot be resumed safely"), held.Err().constData());
    stage->Write(QStringLiteral("second"), {});
    const CliRun rest = stage->Run(QStringLiteral("run --resume -o out"));
    QVERIFY2(rest.exitCode == 0, rest.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")),
             QStringList({QStringLiteral("1.jpg"), QStringLiteral("2.jpg"), QStringLiteral("3 (2).jpg"),
                          QStringLiteral("3.jpg"), QStringLiteral("4.jpg")}));
    QCOMPARE(stage->Content(QStringLiteral("out/3.jpg")), QByteArray("old"));
    QVERIFY2(rest.err.contains("Written             4"), rest.err.constData());
}

// What could not be written is written as soon as that is possible: the journal is whole again.
void tst_CliJournal::journalThatCanBeWrittenAgain()
{
    stage->Write(QStringLiteral("photos/1.jpg"), "wait " + Gate(QStringLiteral("first")).toUtf8());
    stage->Write(QStringLiteral("photos/3.jpg"), "wait " + Gate(QStringLiteral("second")).toUtf8());
    stage->Write(QStringLiteral("photos/4.jpg"), "wait " + Gate(QStringLiteral("third")).toUtf8());
    HeldRun held(*stage, QStringLiteral("run photos -o out --format jpeg"));
    QVERIFY(held.WaitFor("/photos/1.jpg"));
    QTRY_VERIFY(Content().contains("\"begin\":1"));
    Limit(held.Server(), QFileInfo(Journal()).size() + 5);
    stage->Write(QStringLiteral("first"), {});
    QVERIFY(held.WaitFor("\"event\":\"written\"", 2));
    QVERIFY(Content().startsWith("{\"complete\":0,"));
    Limit(held.Server(), -1);
    stage->Write(QStringLiteral("second"), {});
    QVERIFY(held.WaitFor("\"event\":\"written\"", 3));
    QVERIFY(Content().startsWith("{\"complete\":1,"));
    for (const char* line :
         {"\n{\"bytes\":", "\"written\":0}\n", "\"written\":1}\n", "\"written\":2}\n", "\"begin\":3,"}) {
        QVERIFY2(Content().contains(line), Content().constData());
    }
    stage->Write(QStringLiteral("third"), {});
    QCOMPARE(held.End(), 0);
    QVERIFY2(held.Err().count("cannot be written") == 1, held.Err().constData());
    QCOMPARE(stage->Names(QStringLiteral("out")).size(), 4);
}
#endif

// Linux refuses new files in this folder. Under Wine it is there as well, on the drive of the whole system.
void tst_CliJournal::journalThatCannotBeCreated()
{
    const QFileInfo folder(QStringLiteral("/proc"));
    if (!folder.isDir()) {
        QSKIP("This system has no folder that refuses new files.");
    }
    const CliRun run = stage->Run(QStringLiteral("run photos --format jpeg -o ") + folder.absoluteFilePath());
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.err.contains("the run cannot be resumed: "), run.err.constData());
}

QTEST_GUILESS_MAIN(tst_CliJournal)
#include "tst_clijournal.moc"
