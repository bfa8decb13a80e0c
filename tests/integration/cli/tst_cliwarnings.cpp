// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"
#include "ProcessEnd.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QtTest>

/// What a run says of pictures that are written, but not as their user may expect, and of files that it leaves out. The
/// workers copy files, and warn where a file says so.
class tst_CliWarnings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void summariesCountByKind();
    void quietRunsSayProblemsOnly();
    void eventsAndReportsNameEach();
    void strictRunsFail_data();
    void strictRunsFail();
    void strictRunsWithoutWarnings();
    void resumedRunsCountEarlierWarnings_data();
    void resumedRunsCountEarlierWarnings();
    void replacedServersLoseNoWarning();
    void oddNamesKeepTheirWarnings_data();
    void oddNamesKeepTheirWarnings();
    void renamedResultsKeepTheirWarnings();
    void detailsAreForVerboseRuns();
    void unknownExtensionsAreCounted_data();
    void unknownExtensionsAreCounted();
    void unknownExtensionsInReportsAndEvents();
    void otherCommandsTellOfUnknownExtensions_data();
    void otherCommandsTellOfUnknownExtensions();

private:
    QString Photo(const QString& name, const QByteArray& content) const
    {
        return stage->Write(QStringLiteral("photos/") + name, content);
    }
    /// The events of `kind` that a run with `arguments` and --json writes.
    QVector<QJsonObject> Events(const QByteArray& output, const QString& kind) const;

    std::unique_ptr<CliStage> stage;
};

namespace {

const QByteArray jpeg("\xFF\xD8\xFF\xE0");

QString Value(const QJsonObject& object, const char* key)
{
    return object.value(QLatin1String(key)).toString();
}

bool WaitForOutput(QProcess& process, QByteArray& output, const QByteArray& text, int count = 1)
{
    constexpr int patience = 60'000;
    while (output.count(text) < count) {
        if (!process.waitForReadyRead(patience)) {
            return false;
        }
        output += process.readAllStandardOutput();
    }
    return true;
}

} // namespace

void tst_CliWarnings::init()
{
    stage = std::make_unique<CliStage>(CliStage::Server::StandIn);
    Photo(QStringLiteral("1.jpg"), "plain");
}

QVector<QJsonObject> tst_CliWarnings::Events(const QByteArray& output, const QString& kind) const
{
    QVector<QJsonObject> events;
    for (const QByteArray& line : output.trimmed().split('\n')) {
        const QJsonObject event = QJsonDocument::fromJson(line).object();
        if (Value(event, "event") == kind) {
            events.append(event);
        }
    }
    return events;
}

void tst_CliWarnings::summariesCountByKind()
{
    const QString first = Photo(QStringLiteral("2.jpg"), "warn other-pages it has 3 pages; only the first is used");
    Photo(QStringLiteral("3.jpg"), "warn other-pages it has 9 pages; only the first is used");
    const QString lost = Photo(QStringLiteral("4.jpg"), "warn metadata-lost its maker notes are lost");
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --format png --workers 1"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY2(run.Err().contains(QStringLiteral("\n3 warnings: 2 \u00d7 only the first page, 1 \u00d7 metadata lost\n")),
             run.err.constData());
    QVERIFY2(run.Err().contains(QStringLiteral("\n    %1: it has 3 pages; only the first is used\n").arg(first)),
             run.err.constData());
    QVERIFY2(run.Err().contains(QStringLiteral("\n    %1: its maker notes are lost\n").arg(lost)), run.err.constData());
    QVERIFY2(!run.err.contains("9 pages"), run.err.constData());
    QVERIFY2(run.err.contains("Written             4"), run.err.constData());

    const CliRun verbose = stage->Run(QStringLiteral("run photos -o more --format png --verbose"));
    QVERIFY2(verbose.err.contains("3.jpg: warning (other-pages): it has 9 pages; only the first is used\n"),
             verbose.err.constData());
}

void tst_CliWarnings::quietRunsSayProblemsOnly()
{
    Photo(QStringLiteral("2.jpg"), "warn decoder odd");
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --format png --quiet"));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(run.err, QByteArray());
    const CliRun strict = stage->Run(QStringLiteral("run photos -o strict --format png --quiet --strict"));
    QCOMPARE(strict.exitCode, 1);
    QVERIFY2(strict.err.contains("2.jpg: written with a warning: odd\n"), strict.err.constData());
}

void tst_CliWarnings::eventsAndReportsNameEach()
{
    const QString odd = Photo(QStringLiteral("2.jpg"), "warn gain-map-lost it gets \"darker\"");
    const CliRun run =
        stage->Run(QStringLiteral("run photos -o out --format png --workers 1 --json --report report.json"));
    QCOMPARE(run.exitCode, 0);
    const QVector<QJsonObject> warnings = Events(run.out, QStringLiteral("warning"));
    QCOMPARE(warnings.size(), 1);
    QJsonObject warning = warnings.first();
    warning.remove(QStringLiteral("time"));
    QCOMPARE(warning, (QJsonObject{{QStringLiteral("event"), QStringLiteral("warning")},
                                   {QStringLiteral("input"), odd},
                                   {QStringLiteral("kind"), QStringLiteral("gain-map-lost")},
                                   {QStringLiteral("text"), QStringLiteral("it gets \"darker\"")}}));
    QVERIFY(run.out.indexOf("\"event\":\"warning\"") < run.out.indexOf("\"done\":2"));
    QCOMPARE(Events(run.out, QStringLiteral("written")).size(), 2);
    const QJsonObject end = Events(run.out, QStringLiteral("end")).value(0);
    QCOMPARE(end.value(QStringLiteral("warnings")).toObject(), (QJsonObject{{QStringLiteral("gain-map-lost"), 1}}));

    const QJsonArray report = QJsonDocument::fromJson(stage->Content(QStringLiteral("report.json"))).array();
    QCOMPARE(report.size(), 2);
    QCOMPARE(report[0].toObject().value(QStringLiteral("warnings")).toArray().size(), 0);
    const QJsonObject entry = report[1].toObject();
    QCOMPARE(Value(entry, "result"), QStringLiteral("written"));
    QCOMPARE(entry.value(QStringLiteral("warnings")).toArray(),
             (QJsonArray{QJsonObject{{QStringLiteral("kind"), QStringLiteral("gain-map-lost")},
                                     {QStringLiteral("text"), QStringLiteral("it gets \"darker\"")}}}));

    QCOMPARE(stage->Run(QStringLiteral("run photos -o csv --format png --report report.csv")).exitCode, 0);
    const QList<QByteArray> lines = stage->Content(QStringLiteral("report.csv")).split('\n');
    QCOMPARE(lines.value(0),
             QByteArray("input,output,result,code,reason,warnings,inputWidth,inputHeight,inputBytes,width,height,"
                        "bytes,quality,seconds,finished\r"));
    QVERIFY2(lines.value(1).contains(",\"written\",0,\"\",\"\",64,48,5,32,24,5,85,0.012,"), lines.value(1).constData());
    QVERIFY2(lines.value(2).contains(",\"written\",0,\"\",\"gain-map-lost: it gets \"\"darker\"\"\",64,48,"),
             lines.value(2).constData());
}

void tst_CliWarnings::strictRunsFail_data()
{
    QTest::addColumn<QString>("kind");
    for (const char* kind :
         {"other-pages", "incomplete", "profile-unused", "colours-converted", "metadata-lost", "gain-map-lost",
          "depth-lost", "film-lost", "audio-lost", "other-versions", "framing", "decoder"}) {
        QTest::newRow(kind) << QString::fromLatin1(kind);
    }
}

void tst_CliWarnings::strictRunsFail()
{
    QFETCH(QString, kind);
    const QString odd = Photo(QStringLiteral("2.jpg"), "warn " + kind.toLatin1() + " as told");
    const CliRun run =
        stage->Run(QStringLiteral("run photos -o out --format png --strict --json --report report.json"));
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(Events(run.out, QStringLiteral("written")).size(), 1);
    const QVector<QJsonObject> failed = Events(run.out, QStringLiteral("failed"));
    QCOMPARE(failed.size(), 1);
    QCOMPARE(Value(failed.first(), "input"), odd);
    QCOMPARE(Value(failed.first(), "reason"), QStringLiteral("written with a warning: as told"));
    QCOMPARE(failed.first().value(QStringLiteral("code")).toInt(-1), 0);
    // The result is there, and whole.
    QCOMPARE(Value(failed.first(), "output"), stage->Path(QStringLiteral("out/2.png")));
    QVERIFY(stage->Content(QStringLiteral("out/2.png")).startsWith("warn "));
    QVERIFY2(run.err.contains("Failed              1  Written with a warning: 1\n"), run.err.constData());
    const QJsonArray report = QJsonDocument::fromJson(stage->Content(QStringLiteral("report.json"))).array();
    QCOMPARE(Value(report[1].toObject(), "result"), QStringLiteral("failed"));
    QCOMPARE(report[1].toObject().value(QStringLiteral("warnings")).toArray().size(), 1);
    // Nothing is left to resume.
    QCOMPARE(stage->Names(QStringLiteral("out")), QStringList({QStringLiteral("1.png"), QStringLiteral("2.png")}));
}

void tst_CliWarnings::strictRunsWithoutWarnings()
{
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --format png --strict"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY2(!run.err.contains(" warning"), run.err.constData());
}

void tst_CliWarnings::resumedRunsCountEarlierWarnings_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QString>("event");
    QTest::newRow("plain") << "" << 0 << "written";
    QTest::newRow("strict") << " --strict" << 1 << "failed";
}

void tst_CliWarnings::resumedRunsCountEarlierWarnings()
{
    QFETCH(QString, option);
    QFETCH(int, exitCode);
    QFETCH(QString, event);
    const QString gate = stage->Path(QStringLiteral("gate"));
    Photo(QStringLiteral("1.jpg"), "warn other-pages early");
    Photo(QStringLiteral("2.jpg"), "wait " + gate.toUtf8());
    QProcess process;
    process.setProcessEnvironment(stage->Environment());
    process.setWorkingDirectory(stage->Folder());
    process.start(stage->Program(),
                  stage->Arguments(QStringLiteral("run photos -o out --format png --workers 1 --json")));
    QByteArray output;
    QVERIFY2(WaitForOutput(process, output, "\"written\""), output.constData());
    const QList<qint64> servers = ChildrenOf(process.processId());
    process.kill();
    QVERIFY(process.waitForFinished());
    stage->Write(QStringLiteral("gate"), {});
    QCOMPARE(servers.size(), 1);
    QTRY_VERIFY_WITH_TIMEOUT(!IsProcessAlive(servers.first()), 60'000);
    const CliRun rest = stage->Run(QStringLiteral("run --resume -o out --json") + option);
    QVERIFY2(rest.exitCode == exitCode, rest.err.constData());
    QVERIFY2(rest.Err().contains(QStringLiteral("\n1 warning: 1 \u00d7 only the first page\n")), rest.err.constData());
    const QVector<QJsonObject> warnings = Events(rest.out, QStringLiteral("warning"));
    QCOMPARE(warnings.size(), 1);
    QVERIFY(warnings.first().value(QStringLiteral("earlier")).toBool());
    bool isEarlier = false;
    for (const QJsonObject& result : Events(rest.out, event)) {
        isEarlier = isEarlier || result.value(QStringLiteral("earlier")).toBool();
    }
    QVERIFY2(isEarlier, rest.out.constData());
}

void tst_CliWarnings::replacedServersLoseNoWarning()
{
    const QString gate = stage->Path(QStringLiteral("gate"));
    Photo(QStringLiteral("1.jpg"), "warn framing early");
    Photo(QStringLiteral("2.jpg"), "wait " + gate.toUtf8());
    Photo(QStringLiteral("3.jpg"), "warn framing late");
    QProcess process;
    process.setProcessEnvironment(stage->Environment());
    process.setWorkingDirectory(stage->Folder());
    process.start(stage->Program(),
                  stage->Arguments(QStringLiteral("run photos -o out --format png --workers 1 --json")));
    QByteArray output;
    QVERIFY2(WaitForOutput(process, output, "\"begin\"", 2), output.constData());
    const QList<qint64> servers = ChildrenOf(process.processId());
    QCOMPARE(servers.size(), 1);
    KillProcess(servers.first());
    stage->Write(QStringLiteral("gate"), {});
    QVERIFY(process.waitForFinished(120'000));
    output += process.readAllStandardOutput();
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(Events(output, QStringLiteral("warning")).size(), 2);
    QVERIFY2(QString::fromUtf8(process.readAllStandardError())
                 .contains(QStringLiteral("\n2 warnings: 2 \u00d7 framing without effect\n")),
             output.constData());
}

void tst_CliWarnings::oddNamesKeepTheirWarnings_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("like a warning") << "2.jpg: warning (decoder): x.jpg" << QByteArray("real");
    QTest::newRow("like the end of a kind") << "2): .jpg" << QByteArray("real");
    QTest::newRow("text like a warning") << "2.jpg" << QByteArray("photos/2.jpg: warning (decoder): no");
    QTest::newRow("text of several lines") << "2.jpg" << QByteArray("one\ntwo");
    QTest::newRow("no text") << "2.jpg" << QByteArray("");
}

void tst_CliWarnings::oddNamesKeepTheirWarnings()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, text);
#ifdef Q_OS_WIN
    if (name.contains(QLatin1Char(':'))) {
        QSKIP("Names cannot hold a colon.");
    }
#endif
    const QString odd = Photo(name, "warn framing " + text);
    Photo(QStringLiteral("3.jpg"), "warn other-pages other");
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --format png --on-name-exists rename --json"));
    QCOMPARE(run.exitCode, 0);
    const QVector<QJsonObject> warnings = Events(run.out, QStringLiteral("warning"));
    QCOMPARE(warnings.size(), 2);
    const QJsonObject& found = Value(warnings[0], "input") == odd ? warnings[0] : warnings[1];
    QCOMPARE(Value(found, "input"), odd);
    QCOMPARE(Value(found, "kind"), QStringLiteral("framing"));
    QCOMPARE(Value(found, "text"), QString::fromUtf8(text).simplified());
}

void tst_CliWarnings::renamedResultsKeepTheirWarnings()
{
    stage->Write(QStringLiteral("out/2.png"), "old");
    Photo(QStringLiteral("2.jpg"), "warn framing here");
    const CliRun run =
        stage->Run(QStringLiteral("run photos -o out --format png --on-name-exists rename --json --workers 1"));
    QCOMPARE(run.exitCode, 0);
    QCOMPARE(Events(run.out, QStringLiteral("note")).size(), 1);
    QCOMPARE(Value(Events(run.out, QStringLiteral("note")).first(), "text"),
             QStringLiteral("written as \"%1\" (naming policy)").arg(stage->Path(QStringLiteral("out/2 (2).png"))));
    QCOMPARE(Events(run.out, QStringLiteral("warning")).size(), 1);
}

void tst_CliWarnings::detailsAreForVerboseRuns()
{
    const QString bad = Photo(QStringLiteral("2.jpg"), "detail VipsJpeg: odd\nmarker");
    const QByteArray detail = bad.toUtf8() + ": detail: VipsJpeg: odd marker";
    const CliRun plain = stage->Run(QStringLiteral("run photos -o out --format png --json"));
    QCOMPARE(plain.exitCode, 1);
    QVERIFY2(plain.err.contains("failed " + bad.toUtf8() + ": as the script says\n"), plain.err.constData());
    QVERIFY2(!plain.err.contains("VipsJpeg"), plain.err.constData());
    QStringList logs;
    for (const QJsonObject& event : Events(plain.out, QStringLiteral("log"))) {
        logs.append(Value(event, "text"));
    }
    QVERIFY2(logs.contains(QString::fromUtf8(detail)), plain.out.constData());
    const CliRun verbose = stage->Run(QStringLiteral("run photos -o more --format png --verbose"));
    QVERIFY2(verbose.err.contains("log: " + detail + '\n'), verbose.err.constData());
}

void tst_CliWarnings::unknownExtensionsAreCounted_data()
{
    QTest::addColumn<int>("files");
    QTest::addColumn<QByteArray>("text");
    QTest::newRow("none") << 0 << QByteArray();
    QTest::newRow("one") << 1
                         << QByteArray("\n1 file with another extension was left out, but begins like a picture; ");
    QTest::newRow("many") << 14
                          << QByteArray("\n14 files with other extensions were left out, but begin like pictures; ");
}

void tst_CliWarnings::unknownExtensionsAreCounted()
{
    QFETCH(int, files);
    QFETCH(QByteArray, text);
    for (int i = 0; i < files; ++i) {
        Photo(QStringLiteral("odd/p%1.picture").arg(i), jpeg);
    }
    Photo(QStringLiteral("odd/readme"), "text");
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --format png"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY2(text.isEmpty() ? !run.err.contains("left out") : run.err.contains(text), run.err.constData());
    QVERIFY2(!run.err.contains(".picture"), run.err.constData());
    const CliRun verbose = stage->Run(QStringLiteral("run photos -o more --format png --verbose"));
    QCOMPARE(verbose.err.count(".picture is left out: it begins like a JPEG file"), files);
    const CliRun quiet = stage->Run(QStringLiteral("run photos -o quiet --format png --quiet"));
    QCOMPARE(quiet.err, QByteArray());
    // As the line says.
    const CliRun taken = stage->Run(QStringLiteral("run photos -o taken --format png --include *"));
    QCOMPARE(taken.exitCode, 0);
    QCOMPARE(stage->Names(QStringLiteral("taken")).size(), files + 2);
}

void tst_CliWarnings::unknownExtensionsInReportsAndEvents()
{
    const QString odd = Photo(QStringLiteral("a.picture"), jpeg);
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --format png --json --report report.json"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QJsonObject start = Events(run.out, QStringLiteral("start")).value(0);
    QCOMPARE(start.value(QStringLiteral("leftOut")).toInt(-1), 1);
    QCOMPARE(start.value(QStringLiteral("files")).toInt(), 1);
    const QJsonArray report = QJsonDocument::fromJson(stage->Content(QStringLiteral("report.json"))).array();
    QCOMPARE(report.size(), 2);
    QCOMPARE(Value(report[0].toObject(), "result"), QStringLiteral("written"));
    QCOMPARE(Value(report[1].toObject(), "result"), QStringLiteral("left out"));
    QCOMPARE(Value(report[1].toObject(), "input"), odd);
    QCOMPARE(Value(report[1].toObject(), "reason"),
             QStringLiteral("it begins like a JPEG file, but its extension is not known"));
}

void tst_CliWarnings::otherCommandsTellOfUnknownExtensions_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::newRow("plan") << "plan photos -o out --format png";
    QTest::newRow("create") << "create job.xml photos -o out --format png";
    QTest::newRow("show") << "show photos -o out --format png";
}

void tst_CliWarnings::otherCommandsTellOfUnknownExtensions()
{
    QFETCH(QString, arguments);
    Photo(QStringLiteral("a.picture"), jpeg);
    const CliRun run = stage->Run(arguments);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY2(run.err.contains("1 file with another extension was left out"), run.err.constData());
    const CliRun verbose = stage->Run(QString(arguments).replace(QStringLiteral("job"), QStringLiteral("job2")) +
                                      QStringLiteral(" --verbose"));
    QVERIFY2(verbose.err.contains("a.picture is left out: it begins like a JPEG file"), verbose.err.constData());
    const CliRun quiet = stage->Run(QString(arguments).replace(QStringLiteral("job"), QStringLiteral("job3")) +
                                    QStringLiteral(" --quiet"));
    QVERIFY2(!quiet.err.contains("left out"), quiet.err.constData());
}

QTEST_GUILESS_MAIN(tst_CliWarnings)
#include "tst_cliwarnings.moc"
