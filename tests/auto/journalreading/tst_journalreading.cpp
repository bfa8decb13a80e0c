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

QTEST_GUILESS_MAIN(tst_JournalReading)
#include "tst_journalreading.moc"
