// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/journal/RunJournal.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace BatchJob;

/// What is read from lines that a journal may have, but that the server does not write like this.
class tst_JournalReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lossesAreThoseOfFilesWithoutResult_data();
    void lossesAreThoseOfFilesWithoutResult();
    void retriedFilesHaveNoResult();
    void linesOfAnyLength();
    void truncatedLastLine();
    void resultsAlone();
};

void tst_JournalReading::lossesAreThoseOfFilesWithoutResult_data()
{
    using Losses = QHash<int, int>;
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<Losses>("losses");
    const auto row = [](const char* name, const char* lines, const Losses& losses) {
        QTest::newRow(name) << QByteArray(lines) << losses;
    };
    row("twice", "{\"lost\":[1,2]}\n{\"lost\":[1]}\n", {{1, 2}, {2, 1}});
    row("result afterwards", "{\"lost\":[1]}\n{\"written\":1,\"output\":\"/a\"}\n", {});
    row("result before", "{\"written\":1,\"output\":\"/a\"}\n{\"lost\":[1]}\n", {});
    row("negative place", "{\"lost\":[-1]}\n", {});
    row("no numbers", "{\"lost\":[\"1\",null,[2],1.5]}\n", {});
}

void tst_JournalReading::lossesAreThoseOfFilesWithoutResult()
{
    using Losses = QHash<int, int>;
    QFETCH(QByteArray, lines);
    QFETCH(Losses, losses);
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("journal"));
    {
        RunJournal journal;
        QVERIFY(journal.Create(path, QStringLiteral("<root/>"), {}));
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::Append));
    QCOMPARE(file.write(lines), qint64(lines.size()));
    file.close();
    const std::optional<JournalState> state = ReadJournal(path);
    QVERIFY(state);
    QCOMPARE(state->losses, losses);
}

void tst_JournalReading::retriedFilesHaveNoResult()
{
    using Kind = JournalState::Result::Kind;
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("journal"));
    const QString output = QStringLiteral("/a");
    {
        RunJournal journal;
        QVERIFY(journal.Create(path, QStringLiteral("<root/>"), {}));
        journal.Settle(0, {Kind::Written, output, 0, {}});
        journal.Settle(1, {Kind::Failed, output, 9, QStringLiteral("broken")});
        journal.Settle(2, {Kind::Skipped, output, 9, QStringLiteral("taken")});
        journal.Settle(3, {Kind::Failed, output, 9, QStringLiteral("broken")});
        journal.Retry({0, 1, 2, 4, -1});
    }
    std::optional<JournalState> state = ReadJournal(path);
    QVERIFY(state);
    QCOMPARE(state->results.size(), 2);
    QVERIFY(state->results.contains(0) && state->results.contains(3));
    {
        RunJournal journal;
        QVERIFY(journal.Open(path));
        journal.Settle(1, {Kind::Written, output, 0, {}});
    }
    state = ReadJournal(path);
    QVERIFY(state);
    QCOMPARE(state->results.value(1).kind, Kind::Written);
}

/// A journal is read in blocks, whose ends may be anywhere in a line.
void tst_JournalReading::linesOfAnyLength()
{
    constexpr int block = 1 << 20;
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("journal"));
    const QString document(3 * block, QLatin1Char('x'));
    QStringList outputs;
    for (const int length : {1, block - 200, 100, block, block + 1, 2 * block, 5}) {
        outputs.append(QLatin1Char('/') + QString(length, QLatin1Char('y')));
    }
    {
        RunJournal journal;
        QVERIFY(journal.Create(path, document, {}));
        for (int i = 0; i < outputs.size(); ++i) {
            journal.Settle(i, {ResultKind::Written, outputs.at(i), 0, {}});
        }
    }
    const std::optional<JournalState> state = ReadJournal(path);
    QVERIFY(state);
    QVERIFY(state->document == document);
    QCOMPARE(state->results.size(), outputs.size());
    for (int i = 0; i < outputs.size(); ++i) {
        QVERIFY(state->results.value(i).output == outputs.at(i));
    }
}

void tst_JournalReading::truncatedLastLine()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("journal"));
    {
        RunJournal journal;
        QVERIFY(journal.Create(path, QStringLiteral("<root/>"), {}));
        journal.Settle(0, {ResultKind::Written, QStringLiteral("/a"), 0, {}});
        journal.Settle(1, {ResultKind::Written, QStringLiteral("/b"), 0, {}});
    }
    QFile file(path);
    QVERIFY(file.resize(file.size() - 1));
    const std::optional<JournalState> state = ReadJournal(path);
    QVERIFY(state);
    QCOMPARE(state->results.keys(), QList<int>{0});
}

void tst_JournalReading::resultsAlone()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("journal"));
    const Versions makers{{QStringLiteral("libjxl"), QStringLiteral("0.7")}};
    {
        RunJournal journal;
        QVERIFY(journal.Create(path, QStringLiteral("<root/>"), {}));
        journal.NoteMakers(makers);
        journal.FixNames({{QStringLiteral("/a"), QStringLiteral("JPEG"), 1}});
        journal.Settle(0, {ResultKind::Written, QStringLiteral("/a"), 0, {}});
    }
    const std::optional<JournalState> state = ReadJournal(path, JournalUse::Results);
    QVERIFY(state);
    QCOMPARE(state->makers, makers);
    QCOMPARE(state->byMakers, QSet<int>{0});
    QCOMPARE(state->results.keys(), QList<int>{0});
    QVERIFY(state->document.isEmpty());
    QVERIFY(state->names.isEmpty());
}

QTEST_GUILESS_MAIN(tst_JournalReading)
#include "tst_journalreading.moc"
