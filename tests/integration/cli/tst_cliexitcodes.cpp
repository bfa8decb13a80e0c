// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QtTest>

/// What a script is told: exit codes, and who was not asked.
class tst_CliExitCodes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void leftOutPictures_data();
    void leftOutPictures();
    void savedPoliciesAreNotOfTheCommandLine();
    void resumedRunsGoByTheirOwnCommandLine();
    void noPictures_data();
    void noPictures();
    void emptyRunsHaveEventsAndReports();
    void wildcardsWithoutMatchAreNamed();
    void nothingToResume();
    void askingIsToldOnce_data();
    void askingIsToldOnce();

private:
    std::unique_ptr<CliStage> stage;
};

void tst_CliExitCodes::init()
{
    stage = std::make_unique<CliStage>(CliStage::Server::StandIn);
    stage->Write(QStringLiteral("photos/1.jpg"), "1");
    stage->Write(QStringLiteral("photos/2.jpg"), "2");
    QVERIFY(QDir(stage->Folder()).mkdir(QStringLiteral("empty")));
}

void tst_CliExitCodes::leftOutPictures_data()
{
    QTest::addColumn<QByteArray>("picture");
    QTest::addColumn<QString>("options");
    QTest::addColumn<int>("exitCode");
    const auto row = [](const char* name, const char* picture, const char* options, int exitCode) {
        QTest::newRow(name) << QByteArray(picture) << QString::fromLatin1(options) << exitCode;
    };
    row("all written", "2", "", 0);
    row("damaged", "input 2", "", 1);
    row("damaged, skip", "input 2", "--on-input-error skip", 0);
    row("damaged, other policies", "input 2", "--on-name-exists skip --on-format skip --on-processing-error skip", 1);
    row("damaged, ask", "input 2", "--on-input-error ask", 1);
    row("damaged, stop", "input 2", "--on-input-error stop", 1);
    row("too large, skip", "input 10", "--on-input-error skip", 0);
    row("crash", "crash", "", 1);
    row("crash, skip", "crash", "--on-processing-error skip", 0);
    row("not writable, skip", "output 4", "--on-output-error skip", 0);
    row("not writable", "output 4", "", 1);
    row("format, skip", "format PNG", "--on-format skip", 0);
    row("format", "format PNG", "", 1);
    row("warning, strict", "warn other-pages text", "--strict --on-input-error skip", 1);
}

void tst_CliExitCodes::leftOutPictures()
{
    QFETCH(QByteArray, picture);
    QFETCH(QString, options);
    QFETCH(int, exitCode);
    stage->Write(QStringLiteral("photos/2.jpg"), picture);
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --format jpeg ") + options);
    QVERIFY2(run.exitCode == exitCode, run.err.constData());
}

void tst_CliExitCodes::savedPoliciesAreNotOfTheCommandLine()
{
    QVERIFY(QDir(stage->Folder()).mkdir(QStringLiteral("settings")));
    QSettings settings(stage->Path(QStringLiteral("settings/BatchExceptionPolicy.ini")), QSettings::IniFormat);
    settings.setValue(QStringLiteral("InputPolicy"), 0);
    settings.sync();
    stage->Write(QStringLiteral("photos/2.jpg"), "input 2");
    QCOMPARE(stage->Run(QStringLiteral("run photos -o out --format jpeg")).exitCode, 1);
}

void tst_CliExitCodes::resumedRunsGoByTheirOwnCommandLine()
{
    stage = std::make_unique<CliStage>(CliStage::Server::WithoutWorker);
    stage->Write(QStringLiteral("photos/1.jpg"), "input 2");
    for (const char* option : {"", " --on-input-error skip"}) {
        const QString out = QLatin1String(option).isEmpty() ? QStringLiteral("a") : QStringLiteral("b");
        QCOMPARE(stage->Run(QStringLiteral("run photos --format jpeg --suffix text:x --on-input-error skip -o ") + out)
                     .exitCode,
                 3);
    }
    stage->PlaceWorker();
    QCOMPARE(stage->Run(QStringLiteral("run --resume -o a")).exitCode, 1);
    QCOMPARE(stage->Run(QStringLiteral("run --resume -o b --on-input-error skip")).exitCode, 0);
}

void tst_CliExitCodes::noPictures_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* arguments, int exitCode, const char* wanted) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << exitCode << QString::fromLatin1(wanted);
    };
    row("run empty -o out", 5, "no pictures");
    row("plan empty -o out", 5, "no pictures");
    row("create job.xml empty -o out", 5, "no pictures");
    row("run photos --include *.nef -o out", 5, "no pictures");
    row("run empty -o out --allow-empty", 0, "no pictures");
    row("plan empty -o out --allow-empty", 0, "");
    row("run empty -o out --allow-empty --quiet", 0, "");
    row("run photos --include *.nef -o out --allow-empty", 0, "no pictures");
    row("run empty --allow-empty", 2, "no output folder");
    row("run empty -o out --allow-empty --format nonsense", 2, "nonsense");
    row("run -o out", 2, "no inputs");
    row("run -o out --allow-empty", 2, "no inputs");
    row("run missing -o out --allow-empty", 2, "does not exist");
}

void tst_CliExitCodes::noPictures()
{
    QFETCH(QString, arguments);
    QFETCH(int, exitCode);
    QFETCH(QString, wanted);
    const CliRun run = stage->Run(arguments);
    QVERIFY2(run.exitCode == exitCode, run.err.constData());
    QVERIFY2(run.Err().contains(wanted), run.err.constData());
    QVERIFY2(!arguments.contains(QLatin1String("--quiet")) || run.err.isEmpty(), run.err.constData());
    QVERIFY(!QFileInfo::exists(stage->Path(QStringLiteral("out"))));
}

void tst_CliExitCodes::emptyRunsHaveEventsAndReports()
{
    const CliRun run = stage->Run(QStringLiteral("run empty -o out --allow-empty --json --report r.json"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QList<QByteArray> events = run.out.trimmed().split('\n');
    QCOMPARE(events.size(), 2);
    QCOMPARE(QJsonDocument::fromJson(events.last()).object().value(QStringLiteral("event")).toString(),
             QStringLiteral("end"));
    QVERIFY(QJsonDocument::fromJson(stage->Content(QStringLiteral("r.json"))).isArray());
}

void tst_CliExitCodes::wildcardsWithoutMatchAreNamed()
{
    for (const char* command : {"run", "plan"}) {
        const CliRun none =
            stage->Run(QStringLiteral("%1 photos -o out --include *.nef --include *.cr2").arg(QLatin1String(command)));
        QCOMPARE(none.exitCode, 5);
        QVERIFY2(none.err.contains("--include \"*.nef\" and --include \"*.cr2\" match nothing"), none.err.constData());
    }
    const CliRun some = stage->Run(QStringLiteral("run photos -o out --format jpeg --include *.nef --include *.jpg"));
    QCOMPARE(some.exitCode, 0);
    QVERIFY2(!some.err.contains("no pictures"), some.err.constData());
}

void tst_CliExitCodes::nothingToResume()
{
    const CliRun none = stage->Run(QStringLiteral("run --resume -o out"));
    QCOMPARE(none.exitCode, 7);
    QCOMPARE(stage->Run(QStringLiteral("run photos -o out --format jpeg")).exitCode, 0);
    QCOMPARE(stage->Run(QStringLiteral("run photos --resume -o out --format jpeg")).exitCode, 7);
}

void tst_CliExitCodes::askingIsToldOnce_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    QTest::addColumn<QString>("options");
    QTest::addColumn<QByteArray>("told");
    const auto row = [](const char* name, const char* first, const char* second, const char* options,
                        const char* told) {
        QTest::newRow(name) << QByteArray(first) << QByteArray(second) << QString::fromLatin1(options)
                            << QByteArray(told);
    };
    row("no question", "1", "2", "", "");
    row("one question", "input 2", "2", "", "1 picture was left out. --on-input-error decides");
    row("two questions of a kind", "input 2", "input 1", "", "2 pictures were left out. --on-input-error decides");
    row("two questions of two kinds", "input 2", "crash", "",
        "2 pictures were left out. --on-input-error and --on-processing-error decide");
    row("answered by the command line", "input 2", "2", "--on-input-error skip", "");
    row("one of two answered", "input 2", "crash", "--on-input-error skip",
        "1 picture was left out. --on-processing-error decides");
    row("quiet", "input 2", "2", "--quiet", "");
}

void tst_CliExitCodes::askingIsToldOnce()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    QFETCH(QString, options);
    QFETCH(QByteArray, told);
    stage->Write(QStringLiteral("photos/1.jpg"), first);
    stage->Write(QStringLiteral("photos/2.jpg"), second);
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --format jpeg ") + options);
    QCOMPARE(run.err.count("without a terminal nobody could be asked"), told.isEmpty() ? 0 : 1);
    QVERIFY2(run.err.contains(told), run.err.constData());
    QVERIFY2(!told.isEmpty() || !run.err.contains("ask"), run.err.constData());
}

QTEST_GUILESS_MAIN(tst_CliExitCodes)
#include "tst_cliexitcodes.moc"
