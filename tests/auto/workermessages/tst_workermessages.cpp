// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "server/protocol/TaskFailure.h"
#include "server/protocol/WorkerMessages.h"
#include "server/protocol/WorkerVersions.h"

#include <QTimeZone>
#include <QtEndian>
#include <QtTest>

#include <array>
#include <limits>

using namespace BatchJob;
using namespace BatchProtocol;

/// What goes over the pipe of a worker.
class tst_WorkerMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void policiesOnTheWire_data();
    void policiesOnTheWire();
    void unknownPolicyIsKept_data();
    void unknownPolicyIsKept();
    void countOfWarningsIsNotBelieved_data();
    void countOfWarningsIsNotBelieved();
    void textsAreCarriedAndCleaned();
    void numbersOfFilesAreCarried();
    void versionsAreBounded_data();
    void versionsAreBounded();
    void programsWithoutVersions_data();
    void programsWithoutVersions();
    void countOfFilesIsNotBelieved_data();
    void countOfFilesIsNotBelieved();
    void timesComeWithoutTheirZone();
};

namespace {

// Behind the length, the kind of message and the number of the task.
constexpr int placeOfPolicy = 4 + 1 + 4;

void Put(QByteArray& frame, int place, quint32 number)
{
    std::array<char, sizeof(number)> bytes{};
    qToBigEndian(number, bytes.data());
    frame.replace(place, int(bytes.size()), bytes.data(), int(bytes.size()));
}

void AddHighCounts()
{
    QTest::addColumn<quint32>("count");
    QTest::newRow("one") << quint32(1);
    QTest::newRow("a thousand million") << quint32(1'000'000'000);
    QTest::newRow("a quarter of the highest") << quint32(0x40000000);
    QTest::newRow("highest that is positive with a sign") << quint32(0x7FFFFFFF);
    QTest::newRow("lowest that is negative with a sign") << quint32(0x80000000);
    QTest::newRow("highest") << quint32(0xFFFFFFFF);
}

} // namespace

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
    Report report;
    report.failure = PolicyKind(policy);
    const QByteArray frame = FrameFromWorker(report);
    QCOMPARE(qFromBigEndian<qint32>(frame.constData() + placeOfPolicy), number);
    FrameReader reader;
    reader.Append(frame);
    const std::optional<FromWorker> message = reader.NextFromWorker();
    QVERIFY(message && std::holds_alternative<Report>(*message));
    QVERIFY(std::get<Report>(*message).failure == report.failure);
}

void tst_WorkerMessages::unknownPolicyIsKept_data()
{
    QTest::addColumn<qint32>("number");
    QTest::newRow("behind the last") << 6;
    QTest::newRow("below none") << -1;
    QTest::newRow("highest") << std::numeric_limits<qint32>::max();
    QTest::newRow("lowest") << std::numeric_limits<qint32>::min();
}

void tst_WorkerMessages::unknownPolicyIsKept()
{
    QFETCH(qint32, number);
    QByteArray frame = FrameFromWorker(Report());
    Put(frame, placeOfPolicy, quint32(number));
    FrameReader reader;
    reader.Append(frame);
    const std::optional<FromWorker> message = reader.NextFromWorker();
    QVERIFY(message);
    QCOMPARE(FrameFromWorker(*message), frame);
}

void tst_WorkerMessages::countOfWarningsIsNotBelieved_data()
{
    AddHighCounts();
}

void tst_WorkerMessages::countOfWarningsIsNotBelieved()
{
    QFETCH(quint32, count);
    constexpr int emptyText = 4;
    constexpr int placeOfCount = placeOfPolicy + 4 + 4 + 2 * emptyText; // behind policy, code and two texts
    Report report;
    report.reason = report.detail = QStringLiteral("");
    QByteArray frame = FrameFromWorker(report);
    QCOMPARE(qFromBigEndian<quint32>(frame.constData() + placeOfCount), quint32(0));
    Put(frame, placeOfCount, count);
    FrameReader reader;
    reader.Append(frame);
    QVERIFY(!reader.NextFromWorker());
    QVERIFY(reader.IsBroken());
}

void tst_WorkerMessages::textsAreCarriedAndCleaned()
{
    Report report;
    report.texts.camera = QStringLiteral("EOS");
    report.texts.creator = QStringLiteral("a\nb\u202E") + QString(1000, QLatin1Char('x'));
    FrameReader reader;
    reader.Append(FrameFromWorker(report));
    const std::optional<FromWorker> message = reader.NextFromWorker();
    QVERIFY(message && std::holds_alternative<Report>(*message));
    const PictureTexts texts = ProbeResultOf(std::get<Report>(*message)).texts;
    QCOMPARE(texts.camera, QStringLiteral("EOS"));
    QCOMPARE(texts.title, QString());
    QCOMPARE(texts.creator, QStringLiteral("a b ") + QString(251, QLatin1Char('x')));
}

void tst_WorkerMessages::numbersOfFilesAreCarried()
{
    PictureTask task;
    task.fileNumber = qint64(1) << 40;
    task.countsTwin = true;
    FrameReader reader;
    reader.Append(FrameToWorker(task));
    const std::optional<ToWorker> message = reader.NextToWorker();
    QVERIFY(message && std::holds_alternative<PictureTask>(*message));
    QCOMPARE(std::get<PictureTask>(*message).fileNumber, task.fileNumber);
    QVERIFY(std::get<PictureTask>(*message).countsTwin);
}

void tst_WorkerMessages::versionsAreBounded_data()
{
    QTest::addColumn<QByteArray>("said");
    QTest::addColumn<QString>("first");
    QTest::addColumn<int>("count");
    QTest::newRow("two") << LinesOf({{QStringLiteral("b"), QStringLiteral("2")},
                                     {QStringLiteral("a"), QStringLiteral("1.0 x")}})
                         << "1.0 x" << 2;
    QTest::newRow("nothing") << QByteArray() << QString() << 0;
    QTest::newRow("no version") << QByteArray("a\na \n 1\n\n") << QString() << 0;
    QTest::newRow("a long line") << "a " + QByteArray(1000, '1') + "\nb 2\n" << QString() << 1;
    QTest::newRow("controls") << QByteArray("a 1\x1b[2J\n") << "1\\x1b[2J" << 1;
    QByteArray many;
    for (int i = 0; i < 10'000; ++i) {
        many += 'a' + QByteArray::number(i) + " 1\n";
    }
    QTest::newRow("many lines") << many << QString() << 100;
}

void tst_WorkerMessages::versionsAreBounded()
{
    QFETCH(QByteArray, said);
    QFETCH(QString, first);
    QFETCH(int, count);
    const Versions versions = VersionsIn(said);
    QCOMPARE(versions.size(), count);
    QCOMPARE(versions.value(QStringLiteral("a")), first);
}

void tst_WorkerMessages::programsWithoutVersions_data()
{
    QTest::addColumn<QString>("program");
    QTest::newRow("missing") << "/no/such/worker";
    QTest::newRow("says nothing") << "true";
}

void tst_WorkerMessages::programsWithoutVersions()
{
    QFETCH(QString, program);
    QString problem;
    QVERIFY(!VersionsOfWorker(program, problem));
    QVERIFY(!problem.isEmpty());
}

void tst_WorkerMessages::countOfFilesIsNotBelieved_data()
{
    AddHighCounts();
}

void tst_WorkerMessages::countOfFilesIsNotBelieved()
{
    QFETCH(quint32, count);
    constexpr int behindReadable = 4 + 1; // the count of writable files and whether fonts are used
    QByteArray frame = FrameToWorker(Job());
    const int placeOfCount = frame.size() - behindReadable - 4;
    QCOMPARE(qFromBigEndian<quint32>(frame.constData() + placeOfCount), quint32(0));
    Put(frame, placeOfCount, count);
    FrameReader reader;
    reader.Append(frame);
    QVERIFY(!reader.NextToWorker());
    QVERIFY(reader.IsBroken());
}

// The zone would be a file that the worker names and the supervisor opens.
void tst_WorkerMessages::timesComeWithoutTheirZone()
{
    const QDateTime time(QDate(2024, 5, 1), QTime(10, 20, 30), QTimeZone("Asia/Tokyo"));
    QVERIFY(time.isValid());
    Report report;
    report.captured = time;
    FrameReader reader;
    reader.Append(FrameFromWorker(report));
    const std::optional<FromWorker> message = reader.NextFromWorker();
    QVERIFY(message);
    const QDateTime captured = std::get<Report>(*message).captured;
    QCOMPARE(captured.timeSpec(), Qt::LocalTime);
    QCOMPARE(captured, time);
}

QTEST_GUILESS_MAIN(tst_WorkerMessages)
#include "tst_workermessages.moc"
