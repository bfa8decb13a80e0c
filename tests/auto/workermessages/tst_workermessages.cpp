#include "server/protocol/WorkerMessages.h"

#include <QtEndian>
#include <QtTest>

using namespace BatchJob;
using namespace BatchProtocol;

/// What goes over the pipe of a worker.
class tst_WorkerMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void policiesOnTheWire_data();
    void policiesOnTheWire();
};

void tst_WorkerMessages::policiesOnTheWire_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<int>("number");
    const auto row = [](const char* name, PolicyKind policy, int number) {
        QTest::newRow(name) << int(policy) << number;
    };
    row("no failure", PolicyKind::None, 0);
    row("input", PolicyKind::Input, 1);
    row("output", PolicyKind::Output, 2);
    row("processing", PolicyKind::Processing, 3);
    row("naming", PolicyKind::Naming, 4);
    row("write-to-format", PolicyKind::WriteToFormat, 5);
}

void tst_WorkerMessages::policiesOnTheWire()
{
    QFETCH(int, policy);
    QFETCH(int, number);
    constexpr int place = 4 + 1 + 4; // behind the length, the kind of message and the number of the task
    Report report;
    report.failure = PolicyKind(policy);
    const QByteArray frame = FrameFromWorker(report);
    QCOMPARE(qFromBigEndian<qint32>(frame.constData() + place), number);
    FrameReader reader;
    reader.Append(frame);
    const std::optional<FromWorker> message = reader.NextFromWorker();
    QVERIFY(message && std::holds_alternative<Report>(*message));
    QVERIFY(std::get<Report>(*message).failure == report.failure);
}

QTEST_GUILESS_MAIN(tst_WorkerMessages)
#include "tst_workermessages.moc"
