// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QUrl>
#include <QtTest>

/// The command with a scripted server, which reports what the test wants whatever the job.
class tst_CliScripted : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void resultsAreTold();
    void quietSaysProblemsOnly();
    void eventsAreJson();
    void reportsListEveryInput();
    void refusedJobs();
    void questionsWithoutATerminal();
    void serversThatEnd_data();
    void serversThatEnd();
    void serverThatEndsFirstThing();
    void connectionsThatAreLost();
    void controlsDoNotReachTheTerminal();
    void serversThatEndByThemselves();
    void noServer();
    void secondRunAtATime();

private:
    QString Field(const QString& name) const { return QStringLiteral("s:") + Encoded(stage->Path(name)); }
    static QString Encoded(const QString& text) { return QString::fromLatin1(QUrl::toPercentEncoding(text)); }
    QStringList ThreeResults(const QString& trigger = QStringLiteral("5")) const;

    std::unique_ptr<CliStage> stage;
};

void tst_CliScripted::init()
{
    stage = std::make_unique<CliStage>(CliStage::Server::Scripted);
    for (const char* name : {"photos/1.jpg", "photos/2.jpg", "photos/3.jpg"}) {
        stage->Write(QString::fromLatin1(name), "a picture");
    }
}

/// The first is written, the second cannot be read, the name of the third is taken.
QStringList tst_CliScripted::ThreeResults(const QString& trigger) const
{
    const QString first = Field(QStringLiteral("photos/1.jpg"));
    const QString second = Field(QStringLiteral("photos/2.jpg"));
    const QString third = Field(QStringLiteral("photos/3.jpg"));
    const QString reason = QStringLiteral("s:") + Encoded(stage->Path(QStringLiteral("photos/2.jpg")) +
                                                          QStringLiteral(": it ends early; skipped (input policy)"));
    const QStringList actions{
        QStringLiteral("send 11 id i:0 i:3"),
        QStringLiteral("send 8 id ") + first,
        QStringLiteral("send 9 id %1 %2").arg(first, Field(QStringLiteral("out/1.jpg"))),
        QStringLiteral("send 7 id i:1"),
        QStringLiteral("send 8 id ") + second,
        QStringLiteral("send 10 id ") + reason,
        QStringLiteral("send 15 id %1 %2 i:1 i:2").arg(second, Field(QStringLiteral("out/2.jpg"))),
        QStringLiteral("send 7 id i:2"),
        QStringLiteral("send 8 id ") + third,
        QStringLiteral("send 15 id %1 %2 i:1 i:11").arg(third, Field(QStringLiteral("out/3.jpg"))),
        QStringLiteral("send 7 id i:3"),
        QStringLiteral("send 6 id"),
    };
    return {QStringLiteral("start: open"), QStringLiteral("%1: %2").arg(trigger, actions.join(QStringLiteral("; ")))};
}

void tst_CliScripted::resultsAreTold()
{
    stage->Play(ThreeResults());
    const CliRun run = stage->Run(QStringLiteral("run photos -o out"));
    QVERIFY2(run.exitCode == 1, run.err.constData());
    QVERIFY(run.out.isEmpty());
    const QString written =
        QStringLiteral("[1/3] %1 -> %2\n")
            .arg(stage->Path(QStringLiteral("photos/1.jpg")), stage->Path(QStringLiteral("out/1.jpg")));
    QVERIFY2(run.Err().contains(written), run.err.constData());
    QVERIFY2(run.err.contains("failed " + stage->Path(QStringLiteral("photos/2.jpg")).toUtf8() + ": it ends early\n"),
             run.err.constData());
    QVERIFY2(run.err.contains("skipped " + stage->Path(QStringLiteral("photos/3.jpg")).toUtf8() + ": "),
             run.err.constData());
    QVERIFY2(run.err.contains("Written             1  to ") && run.err.contains("Skipped             1  ") &&
                 run.err.contains("Failed              1  "),
             run.err.constData());
    // No status line and no colours without a terminal.
    QVERIFY2(!run.err.contains('\r') && !run.err.contains('\033'), run.err.constData());
    // A finished run leaves no journal.
    QCOMPARE(stage->Names(QStringLiteral("out")), QStringList());
}

void tst_CliScripted::quietSaysProblemsOnly()
{
    stage->Play(ThreeResults());
    const CliRun run = stage->Run(QStringLiteral("run photos -o out -q"));
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.err.startsWith("failed ") && run.err.count('\n') == 2, run.err.constData());
}

void tst_CliScripted::eventsAreJson()
{
    stage->Play(ThreeResults());
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --json -q"));
    QCOMPARE(run.exitCode, 1);
    QStringList names;
    QJsonObject end;
    for (const QByteArray& line : run.out.trimmed().split('\n')) {
        end = QJsonDocument::fromJson(line).object();
        if (end.value(QStringLiteral("event")) != QLatin1String("log")) {
            names.append(end.value(QStringLiteral("event")).toString());
        }
    }
    QCOMPARE(names.join(QLatin1Char(' ')), QStringLiteral("start begin written begin failed begin skipped end"));
    QCOMPARE(end.value(QStringLiteral("written")).toInt(), 1);
    QCOMPARE(end.value(QStringLiteral("failed")).toInt(), 1);
    QCOMPARE(end.value(QStringLiteral("skipped")).toInt(), 1);
    QCOMPARE(end.value(QStringLiteral("notProcessed")).toInt(), 0);
}

void tst_CliScripted::reportsListEveryInput()
{
    stage->Play(ThreeResults());
    QCOMPARE(stage->Run(QStringLiteral("run photos -o out -q --report r.csv")).exitCode, 1);
    const QList<QByteArray> lines = stage->Content(QStringLiteral("r.csv")).split('\n');
    QCOMPARE(lines.size(), 5);
    QCOMPARE(lines[0],
             QByteArray("input,output,result,code,reason,warnings,inputWidth,inputHeight,inputBytes,width,height,"
                        "bytes,quality,seconds,finished\r"));
    QVERIFY2(lines[1].contains("/out/1.jpg\",\"written\",0,\"\",\"\",,,"), lines[1].constData());
    QVERIFY2(lines[2].contains("/out/2.jpg\",\"failed\",2,\"it ends early\",\"\",,,"), lines[2].constData());
    QVERIFY2(lines[3].contains("/out/3.jpg\",\"skipped\",11,\""), lines[3].constData());
}

void tst_CliScripted::refusedJobs()
{
    const QString reason = Encoded(QStringLiteral("The job is refused: Effect 1 is unheard of."));
    stage->Play({QStringLiteral("start: open"),
                 QStringLiteral("5: send 10 id s:%1; send 15 id s: s: i:2 i:8; send 6 id").arg(reason)});
    const CliRun run = stage->Run(QStringLiteral("run photos -o out"));
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.err.contains("velkora-batch: Effect 1 is unheard of\n"), run.err.constData());
}

void tst_CliScripted::questionsWithoutATerminal()
{
    stage->Play(ThreeResults());
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --on-input-error stop"));
    QVERIFY2(run.err.contains("nobody could be asked: 1 picture was left out"), run.err.constData());
    QVERIFY2(run.err.contains("--on-name-exists") && !run.err.contains("--on-input-error"), run.err.constData());
}

void tst_CliScripted::serversThatEnd_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("crash") << QStringLiteral("crash");
    QTest::newRow("abort") << QStringLiteral("abort");
    QTest::newRow("exit code") << QStringLiteral("exit 7");
    QTest::newRow("exit code 0") << QStringLiteral("exit 0");
}

void tst_CliScripted::serversThatEnd()
{
    QFETCH(QString, end);
    stage->Play({QStringLiteral("start: open"), QStringLiteral("5: ") + end});
    const CliRun run = stage->Run(QStringLiteral("run photos -o out"));
    QCOMPARE(run.exitCode, 3);
    QCOMPARE(run.err.count("velkora-batch: the server ended unexpectedly; a new one continues.\n"), 2);
    QCOMPARE(run.err.count("velkora-batch: the server ended unexpectedly.\n"), 1);
    QVERIFY2(run.err.contains("the server ended before it had processed anything"), run.err.constData());
    QVERIFY2(run.err.contains("Not processed       3\n"), run.err.constData());
    // The run can be resumed.
    QVERIFY2(run.err.contains("run --resume -o"), run.err.constData());
    QCOMPARE(stage->Names(QStringLiteral("out")).filter(QStringLiteral(".journal")).size(), 1);
}

void tst_CliScripted::serverThatEndsFirstThing()
{
    stage->PlayNext(ThreeResults());
    stage->Play({QStringLiteral("start: next; exit 7")});
    const CliRun run = stage->Run(QStringLiteral("run photos -o out"));
    QVERIFY2(run.exitCode == 1, run.err.constData());
    QCOMPARE(run.err.count("the server ended unexpectedly"), 1);
    QVERIFY2(run.err.contains("Written             1"), run.err.constData());
    QVERIFY(stage->Names(QStringLiteral("out")).filter(QStringLiteral(".journal")).isEmpty());
}

// The host may connect to a killed server that its last child keeps alive for a moment. Its order is lost with that
// connection, and the next one leads to the new server.
void tst_CliScripted::connectionsThatAreLost()
{
    stage->Play(ThreeResults(QStringLiteral("5@2")) << QStringLiteral("5@1: disconnect"));
    const CliRun run = stage->Run(QStringLiteral("run photos -o out"));
    QVERIFY2(run.exitCode == 1, run.err.constData());
    QVERIFY2(run.err.contains("Written             1"), run.err.constData());
}

// Whatever names and reasons hold: standard error shows codes, and JSON writes them as JSON can.
void tst_CliScripted::controlsDoNotReachTheTerminal()
{
    const QString controls = QStringLiteral("\u202Egpj.\u2066\u2028\u061C\u200F\u009B31m");
    const QString name = QStringLiteral("photos/%1.jpg").arg(controls);
    stage->Write(name, "a picture");
    const QString line = QStringLiteral("%1: it %2 ends; skipped (input policy)").arg(stage->Path(name), controls);
    stage->Play({QStringLiteral("start: open"),
                 QStringLiteral("5: send 8 id %1; send 10 id s:%2; send 15 id %1 s:x i:1 i:2; send 6 id")
                     .arg(Field(name), Encoded(line))});
    const QString shown = QStringLiteral("\\u202egpj.\\u2066\\u2028\\u061c\\u200f\\x9b31m");
    const QString out = QStringLiteral("out\u202E");
    for (const char* options : {"", " --verbose", " --json"}) {
        const CliRun run = stage->Run(QStringLiteral("run photos -o %1%2").arg(out, QLatin1String(options)));
        QVERIFY2(run.Err().contains(QStringLiteral("it %1 ends").arg(shown)), run.err.constData());
        QVERIFY2(run.Err().contains(QStringLiteral("photos/%1.jpg").arg(shown)), run.err.constData());
        const QString all = run.Err() + QString::fromUtf8(run.out);
        for (const QChar control : QStringLiteral("\u202E\u2066\u2028\u061C\u200F\u009B")) {
            QVERIFY2(!all.contains(control), qPrintable(all));
        }
    }
    const CliRun plan = stage->Run(QStringLiteral("plan photos -o x --format png --json -q"));
    QVERIFY2(plan.out.contains("\\u202egpj.") && !plan.out.contains("\u202E"), plan.out.constData());
    bool isNamed = false;
    for (const QByteArray& one : plan.out.trimmed().split('\n')) {
        const QJsonObject object = QJsonDocument::fromJson(one).object();
        isNamed = isNamed || object.value(QStringLiteral("input")).toString() == stage->Path(name);
    }
    QVERIFY(isNamed);
}

// Nobody cancelled the run: somebody has asked the server to end.
void tst_CliScripted::serversThatEndByThemselves()
{
    stage->PlayNext(ThreeResults());
    stage->Play(
        {QStringLiteral("start: open"),
         QStringLiteral("5: next; send 8 id %1; send 14 id; exit 0").arg(Field(QStringLiteral("photos/1.jpg")))});
    const CliRun run = stage->Run(QStringLiteral("run photos -o out"));
    QVERIFY2(run.exitCode == 1, run.err.constData());
    QCOMPARE(run.err.count("velkora-batch: the server ended unexpectedly; a new one continues.\n"), 1);
    QVERIFY2(run.err.contains("Written             1") && !run.err.contains("Not processed"), run.err.constData());
}

void tst_CliScripted::noServer()
{
    stage = std::make_unique<CliStage>(CliStage::Server::Missing);
    stage->Write(QStringLiteral("photos/1.jpg"), "a picture");
    const CliRun run = stage->Run(QStringLiteral("run photos -o out"));
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.err.contains("the server cannot be started; VelkoraBatchProcessing belongs beside "),
             run.err.constData());
    QCOMPARE(run.err.count("a new one goes on"), 0);
}

void tst_CliScripted::secondRunAtATime()
{
    stage->Play(
        {QStringLiteral("start: open"), QStringLiteral("5: send 8 id ") + Field(QStringLiteral("photos/1.jpg"))});
    QProcess first;
    first.setProcessEnvironment(stage->Environment());
    first.setWorkingDirectory(stage->Folder());
    first.start(stage->Program(), stage->Arguments(QStringLiteral("run photos -o out --json")));
    QByteArray events;
    while (!events.contains("\"begin\"")) {
        QVERIFY2(first.waitForReadyRead(60'000), events.constData());
        events += first.readAllStandardOutput();
    }
    stage->Play(ThreeResults());
    const CliRun second = stage->Run(QStringLiteral("run photos -o elsewhere"));
#ifdef Q_OS_WIN
    QCOMPARE(second.exitCode, 3);
    QVERIFY2(second.err.contains("another batch server is running"), second.err.constData());
#else
    QVERIFY2(second.exitCode == 1, second.err.constData());
    QVERIFY2(second.err.contains("[1/3] "), second.err.constData());
#endif
    QCOMPARE(first.state(), QProcess::Running);
    first.kill();
    QVERIFY(first.waitForFinished());
}

QTEST_GUILESS_MAIN(tst_CliScripted)
#include "tst_cliscripted.moc"
