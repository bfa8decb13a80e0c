// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "server/supervisor/RunDecisions.h"

#include "ZTBatchManager.h"

#include <QtTest>

using namespace BatchJob;
using namespace BatchSupervisor;
using Meaning = RunDecisions::Answer::Meaning;

/// Whose turn it is, and what an answer means.
class tst_RunDecisions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void troublesWaitForTheFilesBefore();
    void aQuestionHoldsTheOthers();
    void doneFilesArePassed();
    void allAtOnce();
    void mustWait_data();
    void mustWait();
    void answers_data();
    void answers();
    void answersWithoutQuestion();
    void droppedQuestions();
};

namespace {

Trouble TroubleOf(PolicyKind kind, bool isFromWorker = true)
{
    return {kind, ZTBatchMessage::ReadFileError, QStringLiteral("why"), {}, isFromWorker};
}

RunDecisions DecisionsFor(int files, int policy = 0)
{
    PolicyValues values;
    values.fill(policy);
    RunDecisions decisions{Policies(values)};
    decisions.SetFiles(files);
    return decisions;
}

QVector<int> FilesOf(const QVector<RunDecisions::FileTrouble>& troubles)
{
    QVector<int> files;
    for (const RunDecisions::FileTrouble& one : troubles) {
        files.append(one.file);
    }
    return files;
}

} // namespace

void tst_RunDecisions::troublesWaitForTheFilesBefore()
{
    RunDecisions decisions = DecisionsFor(4);
    QVERIFY(!decisions.TakeNext());
    decisions.Wait(2, TroubleOf(PolicyKind::Naming));
    decisions.Wait(1, TroubleOf(PolicyKind::Input));
    QVERIFY(!decisions.TakeNext());
    decisions.SetDone(0);
    const auto first = decisions.TakeNext();
    QVERIFY(first);
    QCOMPARE(first->file, 1);
    QVERIFY(first->trouble.kind == PolicyKind::Input);
    QVERIFY2(!decisions.TakeNext(), "file 1 is not done yet");
    decisions.SetDone(1);
    QCOMPARE(decisions.TakeNext()->file, 2);
    QVERIFY(!decisions.HasWaiting());
}

void tst_RunDecisions::aQuestionHoldsTheOthers()
{
    RunDecisions decisions = DecisionsFor(2);
    decisions.Ask({0, TroubleOf(PolicyKind::Output)});
    QVERIFY(decisions.IsAsking());
    QVERIFY(decisions.IsAskingAbout(PolicyKind::Output));
    QVERIFY(!decisions.IsAskingAbout(PolicyKind::Input));
    decisions.Wait(1, TroubleOf(PolicyKind::Input));
    decisions.SetDone(0);
    QVERIFY(!decisions.TakeNext());
    QVERIFY(decisions.TakeAnswer(ZTBatchMessage::MsgOutputQuestion, 0).meaning == Meaning::Decision);
    QCOMPARE(decisions.TakeNext()->file, 1);
}

void tst_RunDecisions::doneFilesArePassed()
{
    RunDecisions decisions = DecisionsFor(1000);
    for (int i = 0; i < 999; ++i) {
        QVERIFY(!decisions.IsDone(i));
        decisions.SetDone(i);
        QVERIFY(decisions.IsDone(i));
    }
    decisions.Wait(999, TroubleOf(PolicyKind::Input));
    QCOMPARE(decisions.TakeNext()->file, 999);
    decisions.SetDone(999);
    QVERIFY(!decisions.TakeNext());
}

void tst_RunDecisions::allAtOnce()
{
    RunDecisions decisions = DecisionsFor(9);
    decisions.Wait(7, TroubleOf(PolicyKind::Naming));
    decisions.Wait(3, TroubleOf(PolicyKind::Input));
    decisions.Ask({5, TroubleOf(PolicyKind::Output)});
    QCOMPARE(FilesOf(decisions.TakeAll()), (QVector<int>{3, 5, 7}));
    QVERIFY(!decisions.HasWaiting());
    QVERIFY(!decisions.IsAsking());
    QVERIFY(decisions.TakeAll().isEmpty());
}

void tst_RunDecisions::mustWait_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("policy");
    QTest::addColumn<bool>("isFromWorker");
    QTest::addColumn<bool>("mustWait");
    const auto row = [](const char* name, PolicyKind kind, int policy, bool isFromWorker, bool mustWait) {
        QTest::newRow(name) << int(kind) << policy << isFromWorker << mustWait;
    };
    row("skip", PolicyKind::Input, ZTBatchManager::InputSkip, true, false);
    row("stop", PolicyKind::Input, ZTBatchManager::InputStop, true, false);
    row("ask", PolicyKind::Input, ZTBatchManager::InputAsk, true, true);
    row("skip the name", PolicyKind::Naming, ZTBatchManager::NamingSkip, false, false);
    row("rename", PolicyKind::Naming, ZTBatchManager::NamingRename, false, true);
    row("overwrite a file", PolicyKind::Naming, ZTBatchManager::NamingOverwrite, false, false);
    row("overwrite a file that appeared", PolicyKind::Naming, ZTBatchManager::NamingOverwrite, true, true);
    row("nearest", PolicyKind::WriteToFormat, ZTBatchManager::WriteToFormatNearest, true, true);
}

void tst_RunDecisions::mustWait()
{
    QFETCH(int, kind);
    QFETCH(int, policy);
    QFETCH(bool, isFromWorker);
    RunPlan plan(OutputPlan({{QStringLiteral("/in/a.jpg"), {}}}, JobSettings()));
    PolicyValues values{};
    values[std::size_t(kind)] = policy;
    const RunDecisions decisions{Policies(values)};
    QTEST(decisions.MustWait(plan, 0, TroubleOf(PolicyKind(kind), isFromWorker)), "mustWait");
}

void tst_RunDecisions::answers_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("message");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("meaning");
    QTest::addColumn<int>("decision");
    const auto row = [](const char* name, PolicyKind kind, ZTBatchMessage::Message message, int value, Meaning meaning,
                        Decision decision = Decision::Skip) {
        QTest::newRow(name) << int(kind) << int(message) << value << int(meaning) << int(decision);
    };
    row("skip", PolicyKind::Input, ZTBatchMessage::MsgInputQuestion, 0, Meaning::Decision, Decision::Skip);
    row("stop", PolicyKind::Output, ZTBatchMessage::MsgOutputQuestion, 1, Meaning::Decision, Decision::Stop);
    row("overwrite", PolicyKind::Naming, ZTBatchMessage::MsgNamingQuestion, 1, Meaning::Decision, Decision::Overwrite);
    row("rename", PolicyKind::Naming, ZTBatchMessage::MsgNamingQuestion, 2, Meaning::Decision, Decision::Rename);
    row("nearest", PolicyKind::WriteToFormat, ZTBatchMessage::MsgWriteToFormatQuestion, 3, Meaning::Decision,
        Decision::Nearest);
    row("ask", PolicyKind::Input, ZTBatchMessage::MsgInputQuestion, 2, Meaning::Invalid);
    row("ask about a name", PolicyKind::Naming, ZTBatchMessage::MsgNamingQuestion, 3, Meaning::Invalid);
    row("nearest input", PolicyKind::Input, ZTBatchMessage::MsgInputQuestion, 3, Meaning::Invalid);
    row("unknown", PolicyKind::Processing, ZTBatchMessage::MsgProcessingQuestion, 77, Meaning::Invalid);
    row("negative", PolicyKind::Processing, ZTBatchMessage::MsgProcessingQuestion, -1, Meaning::Invalid);
    row("another question", PolicyKind::Input, ZTBatchMessage::MsgOutputQuestion, 0, Meaning::NoQuestion);
    row("no question at all", PolicyKind::Input, ZTBatchMessage::MsgPause, 0, Meaning::NoQuestion);
}

void tst_RunDecisions::answers()
{
    QFETCH(int, kind);
    QFETCH(int, message);
    QFETCH(int, value);
    QFETCH(int, meaning);
    QFETCH(int, decision);
    RunDecisions decisions = DecisionsFor(3);
    decisions.Ask({2, TroubleOf(PolicyKind(kind))});
    const RunDecisions::Answer answer = decisions.TakeAnswer(ZTBatchMessage::Message(message), value);
    QCOMPARE(int(answer.meaning), meaning);
    const bool isDecision = answer.meaning == Meaning::Decision;
    QCOMPARE(decisions.IsAsking(), !isDecision);
    if (isDecision) {
        QCOMPARE(answer.about.file, 2);
        QCOMPARE(int(answer.decision), decision);
    }
    if (answer.meaning != Meaning::NoQuestion) {
        QCOMPARE(int(answer.policy), kind);
    }
    QVERIFY2(decisions.CurrentPolicies().Of(PolicyKind(kind)) == Decision::Skip, "an answer is about one file");
}

void tst_RunDecisions::answersWithoutQuestion()
{
    RunDecisions decisions = DecisionsFor(1);
    QVERIFY(decisions.TakeAnswer(ZTBatchMessage::MsgInputQuestion, 0).meaning == Meaning::NoQuestion);
}

void tst_RunDecisions::droppedQuestions()
{
    RunDecisions decisions = DecisionsFor(1);
    decisions.Ask({0, TroubleOf(PolicyKind::Input)});
    decisions.DropQuestion();
    QVERIFY(!decisions.IsAsking());
    QVERIFY(decisions.TakeAnswer(ZTBatchMessage::MsgInputQuestion, 0).meaning == Meaning::NoQuestion);
}

QTEST_GUILESS_MAIN(tst_RunDecisions)
#include "tst_rundecisions.moc"
