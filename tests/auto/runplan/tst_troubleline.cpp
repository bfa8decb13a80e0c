// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/plan/Trouble.h"
#include "job/plan/TroubleLine.h"

#include <QtTest>

using namespace BatchJob;

/// Lines of the log that the server writes and hosts read.
class tst_TroubleLine : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wording();
    void troublesComeBack_data();
    void troublesComeBack();
    void resultsComeBack_data();
    void resultsComeBack();
    void refusalsComeBack_data();
    void refusalsComeBack();
    void otherLines_data();
    void otherLines();
    void skippedOrFailed_data();
    void skippedOrFailed();
};

namespace {

/// Texts that look like parts of a line.
const QStringList& NastyTexts()
{
    static const QStringList texts{
        QString(),
        QStringLiteral("/in/a.jpg"),
        QStringLiteral("/in/a; b.jpg"),
        QStringLiteral("/in/a: b.jpg"),
        QStringLiteral("a; skipped (naming policy)"),
        QStringLiteral("a; the run is stopped (input policy)"),
        QStringLiteral("a (naming policy)"),
        QStringLiteral(" (naming policy)"),
        QStringLiteral("; skipped"),
        QStringLiteral(": "),
        QStringLiteral("\""),
        QStringLiteral("a\" was overwritten (naming policy)"),
        QStringLiteral("written as \"a\" (naming policy)"),
        QStringLiteral("line\nbreak\r\n"),
        QStringLiteral("The job is refused: all of it."),
        QStringLiteral("."),
        QStringLiteral("%1 %2"),
        QStringLiteral("\u00e4\u4e16\U0001f5bc"),
    };
    return texts;
}

const QVector<Action>& Consequences()
{
    static const QVector<Action> actions{Action::ReportedOnly, Action::FileSkipped, Action::RunStopped};
    return actions;
}

const QVector<Action>& ResultActions()
{
    static const QVector<Action> actions{Action::WrittenUnderAnotherName, Action::ExistingFileOverwritten,
                                         Action::WrittenInAnotherFormat};
    return actions;
}

void NastyRows()
{
    QTest::addColumn<QString>("nasty");
    for (int i = 0; i < NastyTexts().size(); ++i) {
        QTest::addRow("%d %s", i, qUtf8Printable(NastyTexts().at(i).simplified())) << NastyTexts().at(i);
    }
}

} // namespace

void tst_TroubleLine::wording()
{
    const QString file = QStringLiteral("/in/a.jpg");
    QCOMPARE((TroubleLine{file, QStringLiteral("it ends early"), Action::FileSkipped, PolicyKind::Input}.Text()),
             QStringLiteral("/in/a.jpg: it ends early; skipped (input policy)"));
    QCOMPARE((TroubleLine{file, QStringLiteral("no room"), Action::RunStopped, PolicyKind::Output}.Text()),
             QStringLiteral("/in/a.jpg: no room; the run is stopped (output policy)"));
    QCOMPARE((TroubleLine{file, QStringLiteral("why"), Action::ReportedOnly, PolicyKind::WriteToFormat}.Text()),
             QStringLiteral("/in/a.jpg: why; asking (write-to-format policy)"));
    QCOMPARE((ResultLine{file, QStringLiteral("/out/a.jpg"), Action::ExistingFileOverwritten}.Text()),
             QStringLiteral("/in/a.jpg: \"/out/a.jpg\" was overwritten (naming policy)"));
    QCOMPARE((ResultLine{file, QStringLiteral("/out/b.jpg"), Action::WrittenUnderAnotherName}.Text()),
             QStringLiteral("/in/a.jpg: written as \"/out/b.jpg\" (naming policy)"));
    QCOMPARE((ResultLine{file, QStringLiteral("TIFF"), Action::WrittenInAnotherFormat}.Text()),
             QStringLiteral("/in/a.jpg: written as TIFF (write-to-format policy)"));
    QCOMPARE(RefusalLine{QStringLiteral("The job has no files")}.Text(),
             QStringLiteral("The job is refused: The job has no files."));
}

void tst_TroubleLine::troublesComeBack_data()
{
    NastyRows();
}

void tst_TroubleLine::troublesComeBack()
{
    QFETCH(QString, nasty);
    for (const QString& other : NastyTexts()) {
        for (const Action action : Consequences()) {
            for (int policy = 0; policy < policyCount; ++policy) {
                const TroubleLine line{nasty, other, action, PolicyKind(policy)};
                const std::optional<TroubleLine> back = TroubleLine::Parse(line.Text(), nasty, action);
                QVERIFY2(back, qUtf8Printable(line.Text()));
                QCOMPARE(back->file, nasty);
                QCOMPARE(back->reason, other);
                QCOMPARE(back->action, action);
                QCOMPARE(back->policy, line.policy);
                for (const Action wrong : Consequences() + ResultActions()) {
                    QVERIFY(wrong == action || !TroubleLine::Parse(line.Text(), nasty, wrong));
                }
            }
        }
    }
}

void tst_TroubleLine::resultsComeBack_data()
{
    NastyRows();
}

void tst_TroubleLine::resultsComeBack()
{
    QFETCH(QString, nasty);
    for (const QString& other : NastyTexts()) {
        for (const Action action : ResultActions()) {
            const ResultLine line{nasty, other, action};
            const std::optional<ResultLine> back = ResultLine::Parse(line.Text(), nasty, action);
            QVERIFY2(back, qUtf8Printable(line.Text()));
            QCOMPARE(back->file, nasty);
            QCOMPARE(back->result, other);
            QCOMPARE(back->action, action);
            QCOMPARE(nasty + QStringLiteral(": ") + back->Remark(), line.Text());
        }
    }
}

void tst_TroubleLine::refusalsComeBack_data()
{
    NastyRows();
}

void tst_TroubleLine::refusalsComeBack()
{
    QFETCH(QString, nasty);
    const std::optional<RefusalLine> back = RefusalLine::Parse(RefusalLine{nasty}.Text());
    QVERIFY(back);
    QCOMPARE(back->message, nasty);
}

void tst_TroubleLine::otherLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
    QTest::newRow("another file") << "b: why; skipped (input policy)";
    QTest::newRow("longer name") << "aa: why; skipped (input policy)";
    QTest::newRow("no end") << "a: why";
    QTest::newRow("no reason and no room for one") << "a: skipped (input policy)";
    QTest::newRow("beginning and end overlap") << "a; skipped (input policy)";
    QTest::newRow("no policy") << "a: why; skipped";
    QTest::newRow("unknown policy") << "a: why; skipped (other policy)";
    QTest::newRow("no name of a policy") << "a: why; skipped ( policy)";
    QTest::newRow("unknown consequence") << "a: why; forgotten (input policy)";
    QTest::newRow("warning") << "a: warning: odd colours";
    QTest::newRow("one more character") << "a: why; skipped (input policy).";
}

void tst_TroubleLine::otherLines()
{
    QFETCH(QString, text);
    for (const Action action : Consequences() + ResultActions()) {
        QVERIFY(!TroubleLine::Parse(text, QStringLiteral("a"), action));
        QVERIFY(!ResultLine::Parse(text, QStringLiteral("a"), action));
    }
    QVERIFY(!RefusalLine::Parse(text));
}

void tst_TroubleLine::skippedOrFailed_data()
{
    QTest::addColumn<int>("action");
    QTest::addColumn<int>("code");
    QTest::addColumn<bool>("isSkipped");
    const auto row = [](const char* name, Action action, int code, bool isSkipped) {
        QTest::newRow(name) << int(action) << code << isSkipped;
    };
    row("name", Action::FileSkipped, ZTBatchMessage::FileNameAlreadyExists, true);
    row("format", Action::FileSkipped, ZTBatchMessage::UnsupportedOutputFormat, true);
    row("input", Action::FileSkipped, ZTBatchMessage::ReadFileError, false);
    row("unknown input", Action::FileSkipped, ZTBatchMessage::UnsupportedInputFormat, false);
    row("too large", Action::FileSkipped, ZTBatchMessage::ImageTooLarge, false);
    row("output", Action::FileSkipped, ZTBatchMessage::WriteOutputFormatError, false);
    row("processing", Action::FileSkipped, ZTBatchMessage::ApplyAdjustmentError, false);
    row("name, stopped", Action::RunStopped, ZTBatchMessage::FileNameAlreadyExists, false);
    row("format, stopped", Action::RunStopped, ZTBatchMessage::UnsupportedOutputFormat, false);
}

void tst_TroubleLine::skippedOrFailed()
{
    QFETCH(int, action);
    QFETCH(int, code);
    QTEST(CountsAsSkipped(Action(action), code), "isSkipped");
}

QTEST_GUILESS_MAIN(tst_TroubleLine)
#include "tst_troubleline.moc"
