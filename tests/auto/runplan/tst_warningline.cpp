// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/journal/RunJournal.h"
#include "job/plan/TroubleLine.h"
#include "job/plan/WarningLine.h"

#include <QtTest>

using namespace BatchJob;

/// Warnings on their way from the server to a host: in lines of the log, and in the journal.
class tst_WarningLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wording();
    void everyKindHasAWordAndATitle();
    void warningsComeBack_data();
    void warningsComeBack();
    void unknownKindsComeFromDecoders_data();
    void unknownKindsComeFromDecoders();
    void otherLines_data();
    void otherLines();
    void journalsKeepWarnings();
    void journalsWithoutWarningsAreRead();
};

namespace {

/// Texts that look like parts of a line.
const QStringList& NastyTexts()
{
    static const QStringList texts{
        QString(),
        QStringLiteral("/in/a.jpg"),
        QStringLiteral("/in/a: warning: b.jpg"),
        QStringLiteral("/in/a: warning (decoder): b.jpg"),
        QStringLiteral(": warning ("),
        QStringLiteral("): "),
        QStringLiteral("(): "),
        QStringLiteral("a; skipped (input policy)"),
        QStringLiteral("a: detail: b"),
        QStringLiteral("line\nbreak\r\n"),
        QStringLiteral("%1 %2"),
        QStringLiteral("\u00e4\u4e16\U0001f5bc"),
    };
    return texts;
}

QVector<WarningKind> AllKinds()
{
    QVector<WarningKind> kinds;
    for (int kind = 0; kind <= int(WarningKind::Decoder); ++kind) {
        kinds.append(WarningKind(kind));
    }
    return kinds;
}

} // namespace

void tst_WarningLine::wording()
{
    const QString file = QStringLiteral("/in/a.tif");
    QCOMPARE(
        (WarningLine{file, {WarningKind::OtherPages, QStringLiteral("it has 3 pages; only the first is used")}}.Text()),
        QStringLiteral("/in/a.tif: warning (other-pages): it has 3 pages; only the first is used"));
    QCOMPARE((DetailLine{file, QStringLiteral("VipsJpeg: Premature end")}.Text()),
             QStringLiteral("/in/a.tif: detail: VipsJpeg: Premature end"));
}

void tst_WarningLine::everyKindHasAWordAndATitle()
{
    QSet<QString> words;
    QSet<QString> titles;
    for (const WarningKind kind : AllKinds()) {
        QVERIFY(!WarningWord(kind).contains(QLatin1Char(')')));
        QCOMPARE(WarningKindOf(WarningWord(kind)), kind);
        words.insert(WarningWord(kind));
        titles.insert(WarningTitle(kind));
    }
    QCOMPARE(words.size(), AllKinds().size());
    QCOMPARE(titles.size(), AllKinds().size());
}

void tst_WarningLine::warningsComeBack_data()
{
    QTest::addColumn<QString>("nasty");
    for (int i = 0; i < NastyTexts().size(); ++i) {
        QTest::addRow("%d %s", i, qUtf8Printable(NastyTexts().at(i).simplified())) << NastyTexts().at(i);
    }
}

void tst_WarningLine::warningsComeBack()
{
    QFETCH(QString, nasty);
    for (const QString& other : NastyTexts()) {
        for (const WarningKind kind : AllKinds()) {
            const WarningLine line{nasty, {kind, other}};
            const std::optional<WarningLine> back = WarningLine::Parse(line.Text(), nasty);
            QVERIFY2(back, qUtf8Printable(line.Text()));
            QCOMPARE(back->file, nasty);
            QVERIFY2(back->warning == line.warning, qUtf8Printable(line.Text()));
        }
    }
}

// Another version of the server may know more kinds.
void tst_WarningLine::unknownKindsComeFromDecoders_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("new kind") << "stereo-lost";
    QTest::newRow("no kind") << "";
    QTest::newRow("upper case") << "Other-Pages";
}

void tst_WarningLine::unknownKindsComeFromDecoders()
{
    QFETCH(QString, word);
    const std::optional<WarningLine> line =
        WarningLine::Parse(QStringLiteral("a: warning (%1): why").arg(word), QStringLiteral("a"));
    QVERIFY(line);
    QVERIFY((line->warning == Warning{WarningKind::Decoder, QStringLiteral("why")}));
}

void tst_WarningLine::otherLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("another file") << "b: warning (decoder): why";
    QTest::newRow("longer name") << "aa: warning (decoder): why";
    QTest::newRow("no kind") << "a: warning: why";
    QTest::newRow("kind without end") << "a: warning (decoder";
    QTest::newRow("kind without text") << "a: warning (decoder)";
    QTest::newRow("trouble") << "a: why; skipped (input policy)";
    QTest::newRow("detail") << "a: detail: why";
}

void tst_WarningLine::otherLines()
{
    QFETCH(QString, text);
    QVERIFY(!WarningLine::Parse(text, QStringLiteral("a")));
}

void tst_WarningLine::journalsKeepWarnings()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("journal"));
    const Warnings warnings{{WarningKind::MetadataLost, QStringLiteral("\"GPS\"\n{}")},
                            {WarningKind::Decoder, QStringLiteral("odd")}};
    {
        RunJournal journal;
        QVERIFY(journal.Create(path, QStringLiteral("job"), {}));
        journal.Settle(0, {ResultKind::Written, QStringLiteral("/out/a"), 0, {}, warnings});
        journal.Settle(1, {ResultKind::Written, QStringLiteral("/out/b"), 0, {}});
    }
    const std::optional<JournalState> state = ReadJournal(path);
    QVERIFY(state);
    QCOMPARE(state->results[0].warnings, warnings);
    QVERIFY(state->results[1].warnings.isEmpty());
}

// Journals of earlier versions, and such as were changed by hand.
void tst_WarningLine::journalsWithoutWarningsAreRead()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("journal")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("{\"journal\":1,\"document\":\"job\",\"policies\":[0,0,0,0,0]}\n"
               "{\"written\":0,\"output\":\"/out/a\"}\n"
               "{\"written\":1,\"output\":\"/out/b\",\"warnings\":[{\"kind\":\"new\",\"text\":\"t\"},7]}\n");
    file.close();
    const std::optional<JournalState> state = ReadJournal(file.fileName());
    QVERIFY(state && state->results.size() == 2);
    QVERIFY(state->results[0].warnings.isEmpty());
    QCOMPARE(state->results[1].warnings.value(0), (Warning{WarningKind::Decoder, QStringLiteral("t")}));
}

QTEST_GUILESS_MAIN(tst_WarningLine)
#include "tst_warningline.moc"
