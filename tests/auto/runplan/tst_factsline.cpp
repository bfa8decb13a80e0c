// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/journal/RunJournal.h"
#include "job/plan/FactsLine.h"
#include "job/plan/WarningLine.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace BatchJob;

/// What is known of a written picture, on its way from the server to a host: in lines of the log, and in the journal.
class tst_FactsLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wording();
    void nothingKnownIsNoLine();
    void factsComeBack_data();
    void factsComeBack();
    void otherLines_data();
    void otherLines();
    void impossibleFactsAreNotKnown();
    void journalsKeepFacts_data();
    void journalsKeepFacts();
    void journalsWithImpossibleFactsAreRead();
};

namespace {

const QString file = QStringLiteral("/in/a.jpg");

PictureFacts AllFacts()
{
    return {QSize(6000, 4000), QSize(1600, 1067), 345'678, 85, 1'234};
}

void AddFactRows()
{
    QTest::addColumn<PictureFacts>("facts");
    QTest::newRow("all") << AllFacts();
    QTest::newRow("bytes only") << PictureFacts{{}, {}, 0, 0, -1};
    QTest::newRow("without quality") << PictureFacts{QSize(1, 2), QSize(3, 4), 5, 0, 0};
    QTest::newRow("one side of each") << PictureFacts{QSize(10'000'000, 1), QSize(1, 10'000'000), -1, 1, 86'400'000};
    QTest::newRow("many bytes") << PictureFacts{{}, {}, qint64(1) << 53, 100, 7};
}

} // namespace

Q_DECLARE_METATYPE(BatchJob::PictureFacts)

void tst_FactsLine::wording()
{
    QCOMPARE(
        (FactsLine{file, AllFacts()}.Text()),
        QStringLiteral("/in/a.jpg: facts: from 6000 x 4000 pixels, to 1600 x 1067 pixels, 345678 bytes, quality 85, "
                       "1.234 seconds"));
}

void tst_FactsLine::nothingKnownIsNoLine()
{
    QCOMPARE((FactsLine{file, {}}.Text()), QString());
}

void tst_FactsLine::factsComeBack_data()
{
    AddFactRows();
}

void tst_FactsLine::factsComeBack()
{
    QFETCH(PictureFacts, facts);
    for (const QString& name :
         {file, QStringLiteral("/a: facts: 5 bytes"), QStringLiteral("/a, quality 5"), QString()}) {
        const std::optional<FactsLine> read = FactsLine::Parse(FactsLine{name, facts}.Text(), name);
        QVERIFY(read);
        QCOMPARE(read->file, name);
        QVERIFY(read->facts == facts);
    }
}

void tst_FactsLine::otherLines_data()
{
    QTest::addColumn<QString>("line");
    const auto row = [](const char* line) { QTest::newRow(line) << QString::fromLatin1(line); };
    row("");
    row("/in/a.jpg: facts: ");
    row("/in/b.jpg: facts: 5 bytes");
    row("/in/a.jpg: facts: 5 byte");
    row("/in/a.jpg: facts: 5 bytes,");
    row("/in/a.jpg: facts: 5 bytes, 5 bytes");
    row("/in/a.jpg: facts: -5 bytes");
    row("/in/a.jpg: facts: 05 bytes");
    row("/in/a.jpg: facts: quality 85, 5 bytes");
    row("/in/a.jpg: facts: quality 101");
    row("/in/a.jpg: facts: quality 0");
    row("/in/a.jpg: facts: from 0 x 1 pixels");
    row("/in/a.jpg: facts: to 10000001 x 1 pixels");
    row("/in/a.jpg: facts: to 99999999999 x 1 pixels");
    row("/in/a.jpg: facts: 1.2 seconds");
    row("/in/a.jpg: facts: 999999.000 seconds");
    row("/in/a.jpg: facts: 9007199254740993 bytes");
    row("/in/a.jpg: warning (decoder): 5 bytes");
}

void tst_FactsLine::otherLines()
{
    QFETCH(QString, line);
    QVERIFY(!FactsLine::Parse(line, file));
}

void tst_FactsLine::impossibleFactsAreNotKnown()
{
    const PictureFacts impossible{QSize(0, 5), QSize(5, 10'000'001), -7, 101, 86'400'001};
    QVERIFY(PossibleFacts(impossible) == PictureFacts());
    QVERIFY(PossibleFacts(AllFacts()) == AllFacts());
}

void tst_FactsLine::journalsKeepFacts_data()
{
    AddFactRows();
}

void tst_FactsLine::journalsKeepFacts()
{
    QFETCH(PictureFacts, facts);
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("journal"));
    const QDateTime finished(QDate(2024, 5, 6), QTime(7, 8, 9, 123), Qt::UTC);
    RunJournal journal;
    QVERIFY(journal.Create(path, QStringLiteral("<root/>"), {}));
    journal.Settle(0, {ResultKind::Written, QStringLiteral("/out/a.jpg"), 0, {}, {}, facts, finished});
    journal.Settle(1, {ResultKind::Failed, QString(), 2, QStringLiteral("it is damaged"), {}, {}, finished});
    journal.Settle(2, {ResultKind::Written, QStringLiteral("/out/b.jpg"), 0, {}});
    const std::optional<JournalState> state = ReadJournal(path);
    QVERIFY(state);
    QVERIFY(state->results.value(0).facts == facts);
    QCOMPARE(state->results.value(0).finished, finished);
    QVERIFY(state->results.value(1).facts == PictureFacts());
    QCOMPARE(state->results.value(1).finished, finished);
    QVERIFY(state->results.value(2).facts == PictureFacts());
    QVERIFY(!state->results.value(2).finished.isValid());
}

void tst_FactsLine::journalsWithImpossibleFactsAreRead()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("journal"));
    RunJournal journal;
    QVERIFY(journal.Create(path, QStringLiteral("<root/>"), {}));
    QFile lines(path);
    QVERIFY(lines.open(QIODevice::Append));
    lines.write("{\"written\":0,\"output\":\"/o/a\",\"from\":[0],\"to\":7,\"bytes\":1e300,\"quality\":-1,"
                "\"milliseconds\":\"x\",\"finished\":\"yesterday\"}\n");
    lines.close();
    const std::optional<JournalState> state = ReadJournal(path);
    QVERIFY(state);
    QCOMPARE(state->results.value(0).output, QStringLiteral("/o/a"));
    QVERIFY(state->results.value(0).facts == PictureFacts());
    QVERIFY(!state->results.value(0).finished.isValid());
}

QTEST_GUILESS_MAIN(tst_FactsLine)
#include "tst_factsline.moc"
