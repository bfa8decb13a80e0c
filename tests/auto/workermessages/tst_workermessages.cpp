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
    void timesOnTheWire_data();
    void timesOnTheWire();
    void warningsThatAreNotThere_data();
    void warningsThatAreNotThere();
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

void tst_WorkerMessages::timesOnTheWire_data()
{
    QTest::addColumn<QDateTime>("captured");
    QTest::addColumn<QDateTime>("expected");
    const QDate date(2019, 7, 6);
    const QTime time(5, 4, 3, 2);
    QTest::newRow("local") << QDateTime(date, time) << QDateTime(date, time);
    QTest::newRow("none") << QDateTime() << QDateTime();
    QTest::newRow("universal") << QDateTime(date, time, Qt::UTC) << QDateTime(date, time);
}

void tst_WorkerMessages::timesOnTheWire()
{
    QFETCH(QDateTime, captured);
    QFETCH(QDateTime, expected);
    Report report;
    report.captured = captured;
    FrameReader reader;
    reader.Append(FrameFromWorker(report));
    const std::optional<FromWorker> message = reader.NextFromWorker();
    QVERIFY(message);
    QCOMPARE(std::get<Report>(*message).captured, expected);
    QCOMPARE(std::get<Report>(*message).captured.timeSpec(), Qt::LocalTime);
}

void tst_WorkerMessages::warningsThatAreNotThere_data()
{
    QTest::addColumn<quint32>("count");
    for (const quint32 count : {2U, 1000U, 1001U, 0x7FFFFFFFU, 0xFFFFFFFFU}) {
        QTest::addRow("%u", count) << count;
    }
}

// The count of warnings comes before them. Whatever it says, no memory is taken for what does not follow.
void tst_WorkerMessages::warningsThatAreNotThere()
{
    QFETCH(quint32, count);
    Report report;
    report.warnings.append({WarningKind::Decoder, QStringLiteral("beware")});
    QByteArray frame = FrameFromWorker(report);
    constexpr int place = 4 + 1 + 3 * 4 + 2 * 4; // behind three numbers and two texts that are null
    QCOMPARE(qFromBigEndian<quint32>(frame.constData() + place), 1U);
    qToBigEndian(count, frame.data() + place);
    FrameReader reader;
    reader.Append(frame);
    QVERIFY(!reader.NextFromWorker());
    QVERIFY(reader.IsBroken());
}

QTEST_GUILESS_MAIN(tst_WorkerMessages)
#include "tst_workermessages.moc"
