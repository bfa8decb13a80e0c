// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"

#include <QFileInfo>
#include <QSettings>
#include <QtTest>

/// Two inputs whose results would get one name.
class tst_CliNames : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void sharedNamesAreRefused_data();
    void sharedNamesAreRefused();
    void firstPairsAreNamed();
    void namedPoliciesDecide_data();
    void namedPoliciesDecide();
    void savedPoliciesDecide();
    void filesOnDiskAreNotRefused();
    void refusedJobsForgetNoRun();
    void resumedRunsAreRefusedButKept();

private:
    QStringList Journals() const
    {
        return stage->Names(QStringLiteral("out")).filter(QRegularExpression(QStringLiteral("\\.journal$")));
    }
    QString Interrupt(const QString& arguments);

    std::unique_ptr<CliStage> stage;
};

void tst_CliNames::init()
{
    stage = std::make_unique<CliStage>(CliStage::Server::StandIn);
    stage->Write(QStringLiteral("photos/1.jpg"), "top");
    stage->Write(QStringLiteral("photos/a/1.jpg"), "in a");
    stage->Write(QStringLiteral("photos/a/2.jpg"), "in a");
}

void tst_CliNames::sharedNamesAreRefused_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::newRow("folders into one") << QStringLiteral("photos --format jpeg");
    QTest::newRow("quiet") << QStringLiteral("photos --format jpeg --quiet");
    QTest::newRow("one name in two formats") << QStringLiteral("same --format png");
    QTest::newRow("names that differ in letter case") << QStringLiteral("case --format png");
    QTest::newRow("one capture time") << QStringLiteral("photos/a --format jpeg --name date");
    QTest::newRow("an original that is replaced, and another")
        << QStringLiteral("other photos/a -o photos/a --format jpeg --in-place");
    QTest::newRow("asking by option") << QStringLiteral("photos --format jpeg --on-name-exists ask");
}

// Nobody is there to ask, and no policy was chosen: nothing is begun.
void tst_CliNames::sharedNamesAreRefused()
{
    QFETCH(QString, arguments);
    stage->Write(QStringLiteral("same/1.jpg"), "a");
    stage->Write(QStringLiteral("same/1.tif"), "b");
    stage->Write(QStringLiteral("other/2.jpg"), "c");
    stage->Write(QStringLiteral("case/x.jpg"), "a");
    stage->Write(QStringLiteral("case/X.tif"), "b");
    const QString output = arguments.contains(QLatin1String("-o ")) ? QString() : QStringLiteral("-o out ");
    const CliRun run = stage->Run(QStringLiteral("run ") + output + arguments);
    QVERIFY2(run.exitCode == 2, run.err.constData());
    for (const char* way : {"--structure input", "--on-name-exists rename", "--name"}) {
        QVERIFY2(run.err.contains(way), run.err.constData());
    }
    QVERIFY2(run.err.contains("1 result would get the name of another"), run.err.constData());
    QVERIFY2(!run.err.contains("Written"), run.err.constData());
    QVERIFY2(!run.err.contains("becomes"), run.err.constData());
    QVERIFY(!QFileInfo::exists(stage->Path(QStringLiteral("out"))));
}

void tst_CliNames::firstPairsAreNamed()
{
    for (int i = 1; i <= 30; ++i) {
        for (const char* folder : {"x", "y"}) {
            stage->Write(QStringLiteral("many/%1/%2.jpg").arg(QLatin1String(folder)).arg(i), "picture");
        }
    }
    const CliRun run = stage->Run(QStringLiteral("run many -o out --format jpeg"));
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.err.contains("30 results would get the names of others"), run.err.constData());
    for (const char* i : {"1", "2", "3"}) {
        const QString pair = QStringLiteral("\"%1\" and \"%2\" would both be \"%3\"")
                                 .arg(stage->Path(QStringLiteral("many/x/%1.jpg").arg(QLatin1String(i))),
                                      stage->Path(QStringLiteral("many/y/%1.jpg").arg(QLatin1String(i))),
                                      stage->Path(QStringLiteral("out/%1.jpg").arg(QLatin1String(i))));
        QVERIFY2(run.Err().contains(pair), run.err.constData());
    }
    QCOMPARE(run.err.count("would both be"), 3);
}

void tst_CliNames::namedPoliciesDecide_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QStringList>("results");
    const QString one = QStringLiteral("1.jpg");
    const QString two = QStringLiteral("2.jpg");
    QTest::newRow("skip") << QStringLiteral("--on-name-exists skip") << QStringList{one, two};
    QTest::newRow("overwrite") << QStringLiteral("--on-name-exists overwrite") << QStringList{one, two};
    QTest::newRow("rename") << QStringLiteral("--on-name-exists rename")
                            << QStringList{QStringLiteral("1 (2).jpg"), one, two};
    QTest::newRow("folders") << QStringLiteral("--structure input") << QStringList();
    QTest::newRow("another name") << QStringLiteral("--suffix number:1:1")
                                  << QStringList{QStringLiteral("11.jpg"), QStringLiteral("13.jpg"),
                                                 QStringLiteral("22.jpg")};
}

void tst_CliNames::namedPoliciesDecide()
{
    QFETCH(QString, option);
    QFETCH(QStringList, results);
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --format jpeg ") + option);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")), results);
}

void tst_CliNames::savedPoliciesDecide()
{
    QVERIFY(QDir(stage->Folder()).mkdir(QStringLiteral("settings")));
    constexpr int rename = 2;
    QSettings settings(stage->Path(QStringLiteral("settings/BatchExceptionPolicy.ini")), QSettings::IniFormat);
    settings.setValue(QStringLiteral("NamingPolicy"), rename);
    settings.sync();
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --format jpeg"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")).size(), 3);
}

// A result of an earlier run is there already, and not lost.
void tst_CliNames::filesOnDiskAreNotRefused()
{
    stage->Write(QStringLiteral("out/1.jpg"), "old");
    const CliRun run = stage->Run(QStringLiteral("run photos/a -o out --format jpeg"));
    QVERIFY2(run.exitCode == 1, run.err.constData());
    QCOMPARE(stage->Content(QStringLiteral("out/1.jpg")), QByteArray("old"));
    QCOMPARE(stage->Content(QStringLiteral("out/2.jpg")), QByteArray("in a"));
}

/// Interrupts a run: without a worker it can only be resumed. Returns its journal.
QString tst_CliNames::Interrupt(const QString& arguments)
{
    stage = std::make_unique<CliStage>(CliStage::Server::WithoutWorker);
    stage->Write(QStringLiteral("photos/a/1.jpg"), "in a");
    stage->Write(QStringLiteral("photos/b/1.jpg"), "in b");
    const CliRun run = stage->Run(arguments);
    stage->PlaceWorker();
    return run.exitCode == 3 ? Journals().value(0) : QString();
}

// The same job was interrupted under another policy. That run can be resumed, also after the refusal.
void tst_CliNames::refusedJobsForgetNoRun()
{
    const QString command = QStringLiteral("run photos -o out --format jpeg");
    const QString journal = Interrupt(command + QStringLiteral(" --on-name-exists rename"));
    QVERIFY(!journal.isEmpty());
    QCOMPARE(stage->Run(command).exitCode, 2);
    QCOMPARE(Journals(), QStringList(journal));
    const CliRun rest = stage->Run(QStringLiteral("run --resume -o out"));
    QVERIFY2(rest.exitCode == 0, rest.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")), QStringList({QStringLiteral("1 (2).jpg"), QStringLiteral("1.jpg")}));
}

void tst_CliNames::resumedRunsAreRefusedButKept()
{
    const QString journal = Interrupt(QStringLiteral("run photos -o out --format jpeg --on-name-exists rename"));
    QVERIFY(!journal.isEmpty());
    const CliRun asking = stage->Run(QStringLiteral("run --resume -o out --on-name-exists ask"));
    QVERIFY2(asking.exitCode == 2, asking.err.constData());
    QCOMPARE(Journals(), QStringList(journal));
    QCOMPARE(stage->Run(QStringLiteral("run --resume -o out")).exitCode, 0);
}

QTEST_GUILESS_MAIN(tst_CliNames)
#include "tst_clinames.moc"
