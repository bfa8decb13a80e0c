// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Sanitizers.h"
#include "ServerRun.h"

#include <QtTest>

using Policies = ServerRun::Policies;

/// Workers that a picture has taken over: whatever they say, and however often, it costs one picture.
class tst_ServerLies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void liesCostOnePicture_data();
    void liesCostOnePicture();
    void namesThatAreTakenForEver_data();
    void namesThatAreTakenForEver();
    void textsAreOneVisibleLine();
    void runsOfLiesCanBeCancelled_data();
    void runsOfLiesCanBeCancelled();
};

namespace {

/// A run whose worker tells `lie` over the file bad.jpg.
class LyingRun : public ServerRun
{
public:
    explicit LyingRun(const QByteArray& lie)
        : ServerRun(Worker::Lying)
    {
        Write(QStringLiteral("lies"), "bad* " + lie + '\n');
        SetVariable(QStringLiteral("VELKORA_BATCH_WORKERS"), QStringLiteral("1"));
        SetVariable(QStringLiteral("VELKORA_BATCH_PICTURE_SECONDS"), QStringLiteral("2"));
        for (const char* name : {"0", "1", "bad", "3", "4"}) {
            inputs.append(Write(QStringLiteral("in/%1.jpg").arg(QLatin1String(name)), name));
        }
    }

    QStringList inputs;
};

const QStringList goodResults{QStringLiteral("0.jpg"), QStringLiteral("1.jpg"), QStringLiteral("3.jpg"),
                              QStringLiteral("4.jpg")};

/// More than a supervisor needs for these runs, less than a second of a flood.
constexpr qint64 mostMemory = (isSanitized ? 300 : 100) << 20;

} // namespace

void tst_ServerLies::liesCostOnePicture_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("reason");
    const QString invalid = QStringLiteral("the worker sent an invalid answer");
    const QString tooLong = QStringLiteral("it takes longer than the limit of 2 seconds");
    const QString noisy = QStringLiteral("the worker wrote more than 16 MiB of messages");
#ifdef Q_OS_WIN
    const QString crashed = QStringLiteral("the worker ended ");
#else
    const QString crashed = QStringLiteral("the worker ended by signal");
#endif
    const auto row = [](const char* lie, int code, const QString& reason) { QTest::newRow(lie) << code << reason; };
    row("absent", 9, QStringLiteral("the worker reported a result that is not there"));
    row("early", 9, invalid);
    row("twice", 2, QStringLiteral("so it says"));
    row("other", 9, invalid);
    row("begins-other", 9, invalid);
    row("begins-crash", 9, QStringLiteral("the worker "));
    row("ready", 9, invalid);
    row("half", 9, tooLong);
    row("half-end", 9, QStringLiteral("the worker ended with exit code 0"));
    row("stall", 9, tooLong);
    row("noise", 9, invalid);
    row("frame", 9, invalid);
    row("beginnings", 9, invalid);
    row("reports", 2, QStringLiteral("so it says"));
    row("errors", 9, noisy);
    row("giant", 2, QString(1000, QLatin1Char('x')));
    row("warnings", 9, invalid);
    row("countless", 9, invalid);
    row("odd-failure", 9, QStringLiteral("the worker's report is invalid: so it says"));
    row("odd-format", 3, QStringLiteral("so it says"));
    row("crash", 9, crashed);
}

void tst_ServerLies::liesCostOnePicture()
{
    QFETCH(int, code);
    QFETCH(QString, reason);
    LyingRun run(QTest::currentDataTag());
    QVERIFY(run.Start());
    Policies policies;
    policies.format = ZTBatchManager::WriteToFormatNearest;
    run.Process(run.Job(run.inputs), policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Lines(QStringLiteral("error")),
             QStringList{QStringLiteral("error [in/bad.jpg] [out/bad.jpg] 1 %1").arg(code)});
    QVERIFY2(run.Count(QStringLiteral("log in/bad.jpg: ") + reason) == 1, qPrintable(run.Report()));
    QCOMPARE(run.Names(QStringLiteral("out")), goodResults);
    QVERIFY2(run.PeakMemory() < mostMemory, QByteArray::number(run.PeakMemory()));
}

void tst_ServerLies::namesThatAreTakenForEver_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<int>("code");
    QTest::newRow("skip") << int(ZTBatchManager::NamingSkip) << int(ZTBatchMessage::FileNameAlreadyExists);
    QTest::newRow("overwrite") << int(ZTBatchManager::NamingOverwrite) << int(ZTBatchMessage::FileNameAlreadyExists);
    QTest::newRow("rename") << int(ZTBatchManager::NamingRename) << int(ZTBatchMessage::WriteOutputFormatError);
}

// Another program may take a few names after they were planned, but not each of them.
void tst_ServerLies::namesThatAreTakenForEver()
{
    QFETCH(int, policy);
    QFETCH(int, code);
    LyingRun run("taken");
    QVERIFY(run.Start());
    Policies policies;
    policies.naming = policy;
    run.Process(run.Job(run.inputs), policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    const QStringList errors = run.Lines(QStringLiteral("error [in/bad.jpg]"));
    QCOMPARE(errors.size(), 1);
    QVERIFY2(errors.first().endsWith(QStringLiteral(" 1 %1").arg(code)), qPrintable(errors.first()));
    QVERIFY(run.Count(QStringLiteral("file [in/bad.jpg]")) <= 21);
    QCOMPARE(run.Names(QStringLiteral("out")), goodResults);
}

void tst_ServerLies::textsAreOneVisibleLine()
{
    LyingRun run("odd-text");
    QVERIFY(run.Start());
    run.Process(run.Job(run.inputs));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    const QStringList logs = run.Lines(QStringLiteral("log in/bad.jpg: "));
    QCOMPARE(logs.size(), 1);
    QVERIFY(!logs.first().contains(QLatin1Char('\n')) && !logs.first().contains(QLatin1Char('\r')));
}

void tst_ServerLies::runsOfLiesCanBeCancelled_data()
{
    QTest::addColumn<QByteArray>("lie");
    for (const char* lie : {"taken", "stall", "half", "frame", "beginnings", "reports", "errors"}) {
        QTest::newRow(lie) << QByteArray(lie);
    }
}

// At any moment: while it lies, while its worker is being ended, while the next one starts.
void tst_ServerLies::runsOfLiesCanBeCancelled()
{
    QFETCH(QByteArray, lie);
    LyingRun run(lie);
    for (int i = 0; i < 20; ++i) {
        run.inputs.append(run.Write(QStringLiteral("in/bad%1.jpg").arg(i), "bad"));
    }
    QVERIFY(run.Start());
    Policies policies;
    policies.naming = ZTBatchManager::NamingRename;
    run.Process(run.Job(run.inputs), policies);
    QVERIFY2(run.WaitFor(QStringLiteral("file [in/bad.jpg]")), qPrintable(run.Report()));
    run.Send<ZTBatchMessage::MsgCancel>();
    // A run whose lies cost no time may be over.
    QVERIFY2(QTest::qWaitFor(
                 [&run] { return run.Count(QStringLiteral("cancelled")) + run.Count(QStringLiteral("finished")) == 1; },
                 30000),
             qPrintable(run.Report()));
    QVERIFY2(run.PeakMemory() < mostMemory, QByteArray::number(run.PeakMemory()));
}

QTEST_GUILESS_MAIN(tst_ServerLies)
#include "tst_serverlies.moc"
