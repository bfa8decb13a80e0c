// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Events.h"
#include "PictureStage.h"

#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QtTest>

/// The order of pictures, which numbers in names follow: by name, by capture time, or as the command line has it.
class tst_CliOrder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void numbersFollowTheOrder_data();
    void numbersFollowTheOrder();
    void foldersAreKeptWhereResultsNeedThem_data();
    void foldersAreKeptWhereResultsNeedThem();
    void savedJobsKeepTheOrder();
    void savedJobsCanBeSortedAnew();
    void resumedRunsKeepTheOrder();
    void filesWithoutCaptureTimeCountByTheirOwn();
    void equalTimesKeepTheOrderOfNames();
    void unreadableFilesCountByTheirOwnTime();
    void wrongWordsAreRefused();

private:
    /// Without their folders, the inputs of the plan's results in the order of the results' names.
    QStringList InputsByNumber(const QString& arguments) const;
    void SetFileTime(const QString& name, const QDateTime& time) const;
    void WriteBroken(const QString& name, const QDateTime& time) const;

    std::unique_ptr<PictureStage> stage;
};

namespace {

QDateTime At(int hour, int minute)
{
    return {QDate(2024, 5, 6), QTime(hour, minute)};
}

} // namespace

void tst_CliOrder::init()
{
    stage = std::make_unique<PictureStage>();
    // Two photographers at one feast: their names do not tell who was first.
    stage->Write(QStringLiteral("ann/a1.jpg"), QSize(40, 30), {At(10, 0)});
    stage->Write(QStringLiteral("bob/b1.jpg"), QSize(40, 30), {At(10, 5)});
    stage->Write(QStringLiteral("ann/a10.jpg"), QSize(40, 30), {At(10, 10)});
    stage->Write(QStringLiteral("bob/b2.jpg"), QSize(40, 30), {At(9, 30)});
    stage->Write(QStringLiteral("ann/a2.jpg"), QSize(40, 30), {At(10, 20)});
    stage->Write(QStringLiteral("c.jpg"), QSize(40, 30), {At(10, 7)});
}

QStringList tst_CliOrder::InputsByNumber(const QString& arguments) const
{
    const CliRun run = stage->Run(arguments);
    QMap<QString, QString> byOutput;
    for (const QJsonObject& event : EventsOf(run.out)) {
        const QString output = event.value(QLatin1String("output")).toString();
        if (event.contains(QLatin1String("input")) && !output.isEmpty()) {
            byOutput.insert(output.section(QLatin1Char('/'), -1),
                            event.value(QLatin1String("input")).toString().section(QLatin1Char('/'), -1));
        }
    }
    return byOutput.isEmpty() ? QStringList{run.Err()} : QStringList(byOutput.values());
}

void tst_CliOrder::SetFileTime(const QString& name, const QDateTime& time) const
{
    QFile file(stage->Path(name));
    QVERIFY(file.open(QIODevice::ReadWrite));
    QVERIFY(file.setFileTime(time, QFileDevice::FileModificationTime));
}

void tst_CliOrder::WriteBroken(const QString& name, const QDateTime& time) const
{
    QFile file(stage->Path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("no picture") > 0);
    file.close();
    SetFileTime(name, time);
}

void tst_CliOrder::numbersFollowTheOrder_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* name, const char* arguments, const char* wanted) {
        QTest::newRow(name) << QString::fromLatin1(arguments) << QString::fromLatin1(wanted);
    };
    const char* const byTime = "b2.jpg a1.jpg b1.jpg c.jpg a10.jpg a2.jpg";
    row("taken, flat", "c.jpg bob ann --order taken", byTime);
    row("taken, by date", "c.jpg bob ann --order taken --structure date", byTime);
    row("name", "c.jpg bob ann --order name", "a1.jpg a2.jpg a10.jpg b1.jpg b2.jpg c.jpg");
    row("none is name", "c.jpg bob ann", "a1.jpg a2.jpg a10.jpg b1.jpg b2.jpg c.jpg");
    row("given", "c.jpg bob ann --order given", "c.jpg b1.jpg b2.jpg a1.jpg a2.jpg a10.jpg");
    row("given, single files of folders first", "ann/a10.jpg bob ann --order given",
        "a10.jpg b1.jpg b2.jpg a1.jpg a2.jpg");
    row("given, files only", "bob/b2.jpg ann/a2.jpg bob/b1.jpg ann/a1.jpg --order given",
        "b2.jpg a2.jpg b1.jpg a1.jpg");
}

void tst_CliOrder::numbersFollowTheOrder()
{
    QFETCH(QString, arguments);
    QFETCH(QString, wanted);
    const QString all = arguments + QStringLiteral(" -o out --name number:1:2 --json -q");
    QCOMPARE(InputsByNumber(QStringLiteral("plan ") + all).join(QLatin1Char(' ')), wanted);
    QCOMPARE(InputsByNumber(QStringLiteral("run ") + all).join(QLatin1Char(' ')), wanted);
}

void tst_CliOrder::foldersAreKeptWhereResultsNeedThem_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("wanted");
    QTest::newRow("taken") << QStringLiteral("c.jpg ann bob --order taken")
                           << QStringLiteral(
                                  "bob/1.jpg=b2 bob/2.jpg=b1 ann/3.jpg=a1 ann/4.jpg=a10 ann/5.jpg=a2 6.jpg=c");
    QTest::newRow("given") << QStringLiteral("c.jpg bob ann --order given")
                           << QStringLiteral(
                                  "bob/1.jpg=b1 bob/2.jpg=b2 ann/3.jpg=a1 ann/4.jpg=a2 ann/5.jpg=a10 6.jpg=c");
    QTest::newRow("name") << QStringLiteral("c.jpg bob ann --order name")
                          << QStringLiteral(
                                 "ann/1.jpg=a1 ann/2.jpg=a2 ann/3.jpg=a10 bob/4.jpg=b1 bob/5.jpg=b2 6.jpg=c");
}

void tst_CliOrder::foldersAreKeptWhereResultsNeedThem()
{
    QFETCH(QString, arguments);
    QFETCH(QString, wanted);
    const CliRun run =
        stage->Run(QStringLiteral("run -o out --structure input --name number:1:1 --json -q ") + arguments);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QMap<int, QString> results;
    for (const QJsonObject& event : EventsOf(run.out, QStringLiteral("written"))) {
        const QString output =
            event.value(QLatin1String("output")).toString().mid(stage->Path(QStringLiteral("out/")).size());
        const QString input = event.value(QLatin1String("input")).toString();
        results.insert(QFileInfo(output).baseName().toInt(), output + QLatin1Char('=') + QFileInfo(input).baseName());
    }
    QCOMPARE(QStringList(results.values()).join(QLatin1Char(' ')), wanted);
}

void tst_CliOrder::savedJobsKeepTheOrder()
{
    const CliRun create = stage->Run(QStringLiteral("create job.xml c.jpg bob ann -o out --order taken"));
    QVERIFY2(create.exitCode == 0, create.err.constData());
    QCOMPARE(InputsByNumber(QStringLiteral("run job.xml --name number --json -q")).join(QLatin1Char(' ')),
             QStringLiteral("b2.jpg a1.jpg b1.jpg c.jpg a10.jpg a2.jpg"));
}

void tst_CliOrder::savedJobsCanBeSortedAnew()
{
    QCOMPARE(stage->Run(QStringLiteral("create job.xml bob ann -o out --order taken")).exitCode, 0);
    QCOMPARE(InputsByNumber(QStringLiteral("plan job.xml --name number --json -q --order name")).join(QLatin1Char(' ')),
             QStringLiteral("a1.jpg a2.jpg a10.jpg b1.jpg b2.jpg"));
    // What the job has comes before what the command line adds.
    QCOMPARE(InputsByNumber(QStringLiteral("plan job.xml c.jpg --name number --json -q --order given"))
                 .join(QLatin1Char(' ')),
             QStringLiteral("b2.jpg a1.jpg b1.jpg a10.jpg a2.jpg c.jpg"));
}

void tst_CliOrder::resumedRunsKeepTheOrder()
{
    const QString arguments =
        QStringLiteral("run bob ann -o out --name number:1:1 --format png --order taken --workers 1");
    const QString whole = stage->Path(QStringLiteral("bob/b1.jpg"));
    const QString aside = stage->Path(QStringLiteral("aside"));
    QVERIFY(QFile::rename(whole, aside));
    WriteBroken(QStringLiteral("bob/b1.jpg"), At(10, 5));
    QCOMPARE(stage->Run(arguments + QStringLiteral(" --on-input-error stop")).exitCode, 1);
    QVERIFY(QFile::remove(whole) && QFile::rename(aside, whole));
    const CliRun rest = stage->Run(QStringLiteral("run --resume -o out --json -q"));
    QVERIFY2(rest.exitCode == 0, rest.err.constData());
    QMap<QString, QString> results;
    for (const QJsonObject& event : EventsOf(rest.out, QStringLiteral("written"))) {
        results.insert(QFileInfo(event.value(QLatin1String("output")).toString()).fileName(),
                       QFileInfo(event.value(QLatin1String("input")).toString()).baseName());
    }
    QCOMPARE(QStringList(results.keys()).join(QLatin1Char(' ')), QStringLiteral("1.png 2.png 3.png 4.png 5.png"));
    QCOMPARE(QStringList(results.values()).join(QLatin1Char(' ')), QStringLiteral("b2 a1 b1 a10 a2"));
}

void tst_CliOrder::filesWithoutCaptureTimeCountByTheirOwn()
{
    stage->Write(QStringLiteral("ann/scan.png"), QSize(40, 30), {});
    SetFileTime(QStringLiteral("ann/scan.png"), At(10, 6));
    QCOMPARE(InputsByNumber(QStringLiteral("plan c.jpg bob ann -o out --name number --json -q --order taken"))
                 .join(QLatin1Char(' ')),
             QStringLiteral("b2.jpg a1.jpg b1.jpg scan.png c.jpg a10.jpg a2.jpg"));
}

void tst_CliOrder::equalTimesKeepTheOrderOfNames()
{
    for (const char* name : {"x/10.jpg", "x/9.jpg", "x/1.jpg"}) {
        stage->Write(QLatin1String(name), QSize(40, 30), {At(12, 0)});
    }
    QCOMPARE(
        InputsByNumber(QStringLiteral("plan x -o out --name number --json -q --order taken")).join(QLatin1Char(' ')),
        QStringLiteral("1.jpg 9.jpg 10.jpg"));
}

void tst_CliOrder::unreadableFilesCountByTheirOwnTime()
{
    WriteBroken(QStringLiteral("ann/a0.jpg"), At(10, 15));
    QCOMPARE(InputsByNumber(QStringLiteral("plan bob ann -o out --name number --format png --json -q --order taken"))
                 .join(QLatin1Char(' ')),
             QStringLiteral("b2.jpg a1.jpg b1.jpg a10.jpg a0.jpg a2.jpg"));
}

void tst_CliOrder::wrongWordsAreRefused()
{
    const CliRun run = stage->Run(QStringLiteral("run ann -o out --order date"));
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.err.contains("--order: \"date\" is not one of taken, name, given"), run.err.constData());
}

QTEST_GUILESS_MAIN(tst_CliOrder)
#include "tst_cliorder.moc"
