// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Events.h"
#include "HeldRun.h"

#include "ProcessEnd.h"
#include "PseudoTerminal.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QProcess>
#include <QSet>
#include <QTemporaryFile>
#include <QtTest>

#include <csignal>

/// All that runs write in JSON is as the schema says, by the judgement of a validator that others maintain.
class tst_CliSchema : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void finishedRunsFit();
    void updatesFit();
    void strictRunsFit();
    void severalResultsFit();
    void runsWithoutWorkersFit();
    void lostServersFit();
    void questionsAndCancelledRunsFit();
    void resumedRunsFit();
    void watchedFoldersFit();
    void everyKindWasSeen();
    void wrongEventsAreRejected_data();
    void wrongEventsAreRejected();
    void wrongReportsAreRejected();
    void versionIsThatOfThisProgram();
    void impossibleClaimsAreNotPassedOn();

private:
    void Photo(const QString& name, const QByteArray& content) const
    {
        stage->Write(QStringLiteral("photos/") + name, content);
    }
    /// What the validator says of `lines` by a definition of the schema; empty when they fit.
    static QByteArray Problem(const QString& definition, const QByteArray& lines);
    void Check(const QByteArray& output);
    void CheckReport(const QString& name) const;

    std::unique_ptr<CliStage> stage;
    QSet<QString> kinds;
    QByteArray written; ///< an event of this kind
};

QByteArray tst_CliSchema::Problem(const QString& definition, const QByteArray& lines)
{
    QTemporaryFile values;
    if (!values.open() || values.write(lines) != lines.size() || !values.flush()) {
        return "the values cannot be written";
    }
    QProcess checker;
    checker.start(QStringLiteral(PYTHON),
                  {QStringLiteral(CHECK_SCHEMA), QStringLiteral(EVENTS_SCHEMA), definition, values.fileName()});
    if (!checker.waitForFinished(60'000) || checker.exitStatus() != QProcess::NormalExit) {
        return "the validator did not run";
    }
    const QByteArray said = checker.readAllStandardOutput() + checker.readAllStandardError();
    return checker.exitCode() == 0 ? QByteArray() : "it says: " + said;
}

void tst_CliSchema::Check(const QByteArray& output)
{
    QVERIFY(!output.isEmpty());
    const QByteArray problem = Problem(QStringLiteral("event"), output);
    QVERIFY2(problem.isEmpty(), problem.constData());
    for (const QByteArray& line : output.trimmed().split('\n')) {
        const QString kind = QJsonDocument::fromJson(line).object().value(QLatin1String("event")).toString();
        kinds.insert(kind);
        if (kind == QLatin1String("written")) {
            written = line;
        }
    }
}

void tst_CliSchema::CheckReport(const QString& name) const
{
    const QJsonDocument report = QJsonDocument::fromJson(stage->Content(name));
    QVERIFY(report.isArray() && !report.array().isEmpty());
    const QByteArray problem = Problem(QStringLiteral("report"), report.toJson(QJsonDocument::Compact) + '\n');
    QVERIFY2(problem.isEmpty(), problem.constData());
}

void tst_CliSchema::initTestCase()
{
    stage = std::make_unique<CliStage>(CliStage::Server::StandIn);
    Photo(QStringLiteral("1.jpg"), "plain");
    Photo(QStringLiteral("2.jpg"), "warn other-pages it has 3 pages; only the first is used");
    Photo(QStringLiteral("3.jpg"), "input 2");
    Photo(QStringLiteral("4.jpg"), "format TIFF");
    Photo(QStringLiteral("5.jpg"), "detail a library says this");
    Photo(QStringLiteral("6.jpg"), "plain");
    Photo(QStringLiteral("7.odd"), "\xFF\xD8\xFF\xE0");
}

void tst_CliSchema::cleanupTestCase()
{
    stage.reset();
}

void tst_CliSchema::finishedRunsFit()
{
    stage->Write(QStringLiteral("out/1.png"), "old");
    stage->Write(QStringLiteral("out/6.png"), "old");
    const QString arguments = QStringLiteral("run photos -o out --format png --json --report r.json "
                                             "--on-name-exists %1 --on-format %2");
    const CliRun run = stage->Run(arguments.arg(QStringLiteral("rename"), QStringLiteral("nearest")));
    QCOMPARE(run.exitCode, 1);
    Check(run.out);
    CheckReport(QStringLiteral("r.json"));
    const CliRun again = stage->Run(arguments.arg(QStringLiteral("overwrite"), QStringLiteral("skip")));
    Check(again.out);
    CheckReport(QStringLiteral("r.json"));
    const CliRun skipped = stage->Run(arguments.arg(QStringLiteral("skip"), QStringLiteral("stop")));
    Check(skipped.out);
    CheckReport(QStringLiteral("r.json"));
}

void tst_CliSchema::updatesFit()
{
    const QString arguments = QStringLiteral("run photos -o update --format png --json --report r.json --update");
    const CliRun first = stage->Run(arguments);
    Check(first.out);
    const CliRun again = stage->Run(arguments);
    QVERIFY2(again.out.contains("\"event\":\"unchanged\""), again.out.constData());
    Check(again.out);
    CheckReport(QStringLiteral("r.json"));
}

void tst_CliSchema::strictRunsFit()
{
    const CliRun run = stage->Run(QStringLiteral("run photos -o strict --format png --json --strict --report r.json"));
    QCOMPARE(run.exitCode, 1);
    Check(run.out);
    CheckReport(QStringLiteral("r.json"));
}

void tst_CliSchema::severalResultsFit()
{
    QCOMPARE(stage->Run(QStringLiteral("create web.xml --format png")).exitCode, 0);
    QCOMPARE(stage->Run(QStringLiteral("create same.xml --format original")).exitCode, 0);
    const CliRun run = stage->Run(QStringLiteral("run web.xml same.xml photos -o several --json --report r.json"));
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.out.contains("\"presets\":[\"web\",\"same\"]"), run.out.constData());
    Check(run.out);
    CheckReport(QStringLiteral("r.json"));
}

void tst_CliSchema::runsWithoutWorkersFit()
{
    const CliStage bare(CliStage::Server::WithoutWorker);
    bare.Write(QStringLiteral("photos/1.jpg"), "plain");
    const CliRun run = bare.Run(QStringLiteral("run photos -o out --format png --json"));
    QCOMPARE(run.exitCode, 3);
    Check(run.out);
}

void tst_CliSchema::lostServersFit()
{
    Photo(QStringLiteral("0.jpg"), "wait " + stage->Path(QStringLiteral("gate")).toUtf8());
    HeldRun run(*stage, QStringLiteral("run photos -o lost --format png --json"));
    QVERIFY2(run.WaitFor("\"begin\""), run.Out().constData());
    const qint64 server = run.Server();
    QVERIFY(server != 0);
    KillProcess(server);
    QVERIFY2(run.WaitFor("\"server-lost\""), run.Out().constData());
    stage->Write(QStringLiteral("gate"), {});
    QCOMPARE(run.End(), 1);
    Check(run.Out());
    QVERIFY(QFile::remove(stage->Path(QStringLiteral("gate"))));
}

// A user answers, and interrupts the run over a picture that takes its time.
void tst_CliSchema::questionsAndCancelledRunsFit()
{
    stage->Write(QStringLiteral("asked/2.png"), "old");
    Photo(QStringLiteral("0.jpg"), "plain");
    Photo(QStringLiteral("9.jpg"), "wait " + stage->Path(QStringLiteral("gate")).toUtf8());
    const QString before = QDir::currentPath();
    const QByteArray temporaryBefore = qgetenv("TMPDIR");
    QVERIFY(QDir::setCurrent(stage->Folder()));
    qputenv("TMPDIR", stage->Environment().value(QStringLiteral("TMPDIR")).toLocal8Bit());
    const QString command = QStringLiteral("exec \"$0\" \"$@\" > events.json");
    PseudoTerminal terminal(QStringLiteral("/bin/sh"), QStringList{QStringLiteral("-c"), command, stage->Program()} +
                                                           stage->Arguments(QStringLiteral(
                                                               "run photos -o asked --format png --json --workers 1")));
    QDir::setCurrent(before);
    qputenv("TMPDIR", temporaryBefore);
    QVERIFY2(terminal.WaitFor("for all that follow) "), terminal.Output().constData());
    terminal.Type("rename all\n");
    const auto wrote = [this](const char* text) {
        return stage->Content(QStringLiteral("events.json")).contains(text);
    };
    QTRY_VERIFY_WITH_TIMEOUT(wrote("\"answer\""), 60'000);
    QTRY_VERIFY_WITH_TIMEOUT(wrote("9.jpg\""), 60'000);
    terminal.Type("\x03");
    QCOMPARE(terminal.ExitCode(), 4);
    Check(stage->Content(QStringLiteral("events.json")));
}

void tst_CliSchema::resumedRunsFit()
{
    stage->Write(QStringLiteral("gate"), {});
    const CliRun run = stage->Run(QStringLiteral("run --resume -o asked --json --report r.json"));
    QVERIFY2(run.out.contains("\"earlier\":true"), run.out.constData());
    Check(run.out);
    CheckReport(QStringLiteral("r.json"));
}

void tst_CliSchema::watchedFoldersFit()
{
    HeldRun run(*stage, QStringLiteral("watch photos -o watched --format png --settle 0"));
    QVERIFY(run.WaitFor("\"event\":\"end\""));
    QVERIFY(run.RequestEnd());
    QCOMPARE(run.End(), 0);
    Check(run.Out());
}

void tst_CliSchema::everyKindWasSeen()
{
    QFile file(QStringLiteral(EVENTS_SCHEMA));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonObject definitions =
        QJsonDocument::fromJson(file.readAll()).object().value(QLatin1String("$defs")).toObject();
    QSet<QString> known;
    for (const QJsonValue kind :
         definitions.value(QLatin1String("event")).toObject().value(QLatin1String("oneOf")).toArray()) {
        const QString name = kind.toObject().value(QLatin1String("$ref")).toString().section(QLatin1Char('/'), -1);
        const QJsonObject event = definitions.value(name)
                                      .toObject()
                                      .value(QLatin1String("properties"))
                                      .toObject()
                                      .value(QLatin1String("event"))
                                      .toObject();
        known.insert(event.value(QLatin1String("const")).toString());
        for (const QJsonValue word : event.value(QLatin1String("enum")).toArray()) {
            known.insert(word.toString());
        }
    }
    known.remove(QString());
    QStringList missing = (known - kinds).values();
    QCOMPARE(missing.join(QLatin1Char(' ')), QString());
    QCOMPARE(kinds, known);
}

void tst_CliSchema::wrongEventsAreRejected_data()
{
    QTest::addColumn<QString>("field");
    QTest::addColumn<QJsonValue>("value");
    const QJsonValue none(QJsonValue::Undefined);
    QTest::newRow("unknown kind") << QStringLiteral("event") << QJsonValue(QStringLiteral("writen"));
    QTest::newRow("no kind") << QStringLiteral("event") << none;
    QTest::newRow("no time") << QStringLiteral("time") << none;
    QTest::newRow("time without zone") << QStringLiteral("time")
                                       << QJsonValue(QStringLiteral("2024-05-06T07:08:09.123"));
    QTest::newRow("no input") << QStringLiteral("input") << none;
    QTest::newRow("no output") << QStringLiteral("output") << none;
    QTest::newRow("width without height") << QStringLiteral("height") << none;
    QTest::newRow("no width at all") << QStringLiteral("width") << QJsonValue(0);
    QTest::newRow("width as text") << QStringLiteral("width") << QJsonValue(QStringLiteral("32"));
    QTest::newRow("quality of 101") << QStringLiteral("quality") << QJsonValue(101);
    QTest::newRow("negative seconds") << QStringLiteral("seconds") << QJsonValue(-0.5);
    QTest::newRow("neither done nor earlier") << QStringLiteral("done") << none;
    QTest::newRow("both done and earlier") << QStringLiteral("earlier") << QJsonValue(true);
    QTest::newRow("a reason") << QStringLiteral("reason") << QJsonValue(QStringLiteral("none"));
    QTest::newRow("unknown field") << QStringLiteral("colour") << QJsonValue(1);
}

void tst_CliSchema::wrongEventsAreRejected()
{
    QFETCH(QString, field);
    QFETCH(QJsonValue, value);
    QJsonObject event = QJsonDocument::fromJson(written).object();
    QVERIFY(event.contains(QLatin1String("done")) && event.contains(QLatin1String("width")));
    event.insert(field, value);
    if (value.isUndefined()) {
        event.remove(field);
    }
    const QByteArray wrong = QJsonDocument(event).toJson(QJsonDocument::Compact) + '\n';
    const QByteArray problem = Problem(QStringLiteral("event"), written + '\n' + wrong);
    QVERIFY2(problem.startsWith("it says: line 2: "), problem.constData());
}

void tst_CliSchema::wrongReportsAreRejected()
{
    QVERIFY(!Problem(QStringLiteral("report"), "[{}]\n").isEmpty());
    QVERIFY(!Problem(QStringLiteral("report"), written + '\n').isEmpty());
}

void tst_CliSchema::versionIsThatOfThisProgram()
{
    const CliRun run = stage->Run(QStringLiteral("run photos -o version --format png --json"));
    QJsonObject start = EventsOf(run.out, QStringLiteral("start")).value(0);
    QVERIFY(start.contains(QLatin1String("version")));
    start.insert(QStringLiteral("version"), start.value(QLatin1String("version")).toInt() + 1);
    QVERIFY(!Problem(QStringLiteral("event"), QJsonDocument(start).toJson(QJsonDocument::Compact) + '\n').isEmpty());
}

// A worker may have been taken over by a picture.
void tst_CliSchema::impossibleClaimsAreNotPassedOn()
{
    stage->Write(QStringLiteral("odd/1.jpg"), "claim");
    const CliRun run = stage->Run(QStringLiteral("run odd -o claims --format png --json --report r.json"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    Check(run.out);
    CheckReport(QStringLiteral("r.json"));
    const QJsonObject event = EventsOf(run.out, QStringLiteral("written")).value(0);
    for (const char* name : {"inputWidth", "inputHeight", "width", "height", "quality", "seconds"}) {
        QVERIFY2(!event.contains(QLatin1String(name)), name);
    }
    QCOMPARE(event.value(QLatin1String("bytes")).toInt(), 5);
}

QTEST_GUILESS_MAIN(tst_CliSchema)
#include "tst_clischema.moc"
