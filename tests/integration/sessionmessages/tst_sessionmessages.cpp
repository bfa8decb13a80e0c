// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ManagerRun.h"
#include "OwnFolder.h"

#include <QtTest>

using namespace HostLines;

namespace {

using Session = ZTBatchManager::ZTBatchSession;
using Command = std::function<void(Session&)>;

/// An identifier, which is ASCII, in UTF-16.
QByteArray Utf16(const QString& id)
{
    QByteArray bytes;
    for (const QChar character : id) {
        bytes.append('\0').append(character.toLatin1());
    }
    return bytes;
}

/// A frame whose payload is the identifier and `rest`. The identifiers have 36 characters: 72 bytes, 0x48.
QByteArray Frame(const char* nameHex, const QString& id, const char* restHex)
{
    const QByteArray rest = QByteArray::fromHex(restHex);
    const QByteArray payloadSize = QByteArray::number(4 + 72 + rest.size(), 16).rightJustified(8, '0');
    return QByteArray::fromHex(nameHex) + QByteArray::fromHex(payloadSize) + QByteArray::fromHex("00000048") +
           Utf16(id) + rest;
}

const char* const name0 = "00000002 0030";
const char* const name1 = "00000002 0031";

} // namespace

Q_DECLARE_METATYPE(Command)

/// Every message between a session and the server: byte by byte to the server, field by field from it.
class tst_SessionMessages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void command_data();
    void command();
    void processTakesThePoliciesOfItsMoment();
    void processWithALongDocument();
    void commandsKeepTheirOrder();
    void deletionIsTheLastMessage();
    void deletionBeforeProcess();
    void identifiersDiffer();
    void nothingIsSentBeforeTheConnection();

    void message_data();
    void message();
    void equalProgressIsNotFiltered();
    void messagesKeepTheirOrder();
    void ignoredMessage_data();
    void ignoredMessage();
    void foreignSession_data();
    void foreignSession();
    void deletedSessionHearsNothing();
    void badFrame_data();
    void badFrame();
    void messageInPieces();
    void longMessage();
    void flood();
    void sessionDeletedInTheMiddleOfAFlood();

    void questionsAndAnswers_data();
    void questionsAndAnswers();

    void commandsWithoutPipe_data();
    void commandsWithoutPipe();
    void commandsOnALostConnection();
};

void tst_SessionMessages::command_data()
{
    QTest::addColumn<Command>("command");
    QTest::addColumn<QByteArray>("nameHex");
    QTest::addColumn<QByteArray>("restHex");

    const auto row = [](const char* title, const Command& command, const char* nameHex, const char* restHex) {
        QTest::newRow(title) << command << QByteArray(nameHex) << QByteArray(restHex);
    };
    row(
        "pause", [](Session& session) { session.Pause(); }, "00000002 0032", "");
    row(
        "resume", [](Session& session) { session.Resume(); }, "00000002 0033", "");
    row(
        "cancel", [](Session& session) { session.Cancel(); }, "00000002 0034", "");
    row(
        "process", [](Session& session) { QVERIFY(session.Process(QStringLiteral("b"))); }, "00000002 0035",
        "00000002 0062  00000002 00000002 00000002 00000003 00000002");
    row(
        "process nothing", [](Session& session) { QVERIFY(session.Process(QStringLiteral(""))); }, "00000002 0035",
        "00000000  00000002 00000002 00000002 00000003 00000002");
    row(
        "process null", [](Session& session) { QVERIFY(session.Process(QString())); }, "00000002 0035",
        "FFFFFFFF  00000002 00000002 00000002 00000003 00000002");
    row(
        "process other scripts",
        [](Session& session) { QVERIFY(session.Process(QStringLiteral("<\u00e9\u6f22\U0001F4F7>"))); }, "00000002 0035",
        "0000000C 003C 00E9 6F22 D83D DCF7 003E  00000002 00000002 00000002 00000003 00000002");
    row(
        "input skip", [](Session& session) { session.InputRespond(ZTBatchManager::InputSkip, false); },
        "00000004 0031 0036", "00000000 00");
    row(
        "input ask for all", [](Session& session) { session.InputRespond(ZTBatchManager::InputAsk, true); },
        "00000004 0031 0036", "00000002 01");
    row(
        "input beyond the known",
        [](Session& session) { session.InputRespond(static_cast<ZTBatchManager::InputPolicy>(-2), true); },
        "00000004 0031 0036", "FFFFFFFE 01");
    row(
        "output", [](Session& session) { session.OutputRespond(ZTBatchManager::OutputStop, true); },
        "00000004 0031 0037", "00000001 01");
    row(
        "processing", [](Session& session) { session.ProcessingRespond(ZTBatchManager::ProcessingStop, false); },
        "00000004 0031 0038", "00000001 00");
    row(
        "naming", [](Session& session) { session.NamingRespond(ZTBatchManager::NamingAsk, true); },
        "00000004 0031 0039", "00000003 01");
    row(
        "write to format",
        [](Session& session) { session.WriteToFormatRespond(ZTBatchManager::WriteToFormatNearest, false); },
        "00000004 0032 0030", "00000003 00");
}

void tst_SessionMessages::command()
{
    QFETCH(Command, command);
    QFETCH(QByteArray, nameHex);
    QFETCH(QByteArray, restHex);

    ManagerRun run({opensAtOnce});
    QVERIFY(run.OpenSession());
    const QString id = run.stage.SessionId();
    QCOMPARE(id.size(), 36);
    command(*run.session);
    const QByteArray expected = Frame(name0, id, "") + Frame(nameHex.constData(), id, restHex.constData());
    QVERIFY(Eventually([&] { return run.stage.Received().size() >= expected.size(); }));
    QCOMPARE(run.stage.Received().toHex(' '), expected.toHex(' '));
    // Commands change no policy of the manager and cause no signal.
    QCOMPARE(run.Manager()->GetInputPolicy(), ZTBatchManager::InputAsk);
    QCOMPARE(run.Manager()->GetWriteToFormatPolicy(), ZTBatchManager::WriteToFormatAsk);
    QCOMPARE(run.log.lines, QStringList{established});
}

void tst_SessionMessages::processTakesThePoliciesOfItsMoment()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.OpenSession());
    const QString id = run.stage.SessionId();
    ZTBatchManager* manager = run.Manager();
    manager->SetInputPolicy(ZTBatchManager::InputSkip);
    manager->SetOutputPolicy(ZTBatchManager::OutputStop);
    manager->SetProcessingPolicy(static_cast<ZTBatchManager::ProcessingPolicy>(-1));
    manager->SetNamingPolicy(static_cast<ZTBatchManager::NamingPolicy>(0x01020304));
    manager->SetWriteToFormatPolicy(ZTBatchManager::WriteToFormatNearest);
    run.session->Process(QStringLiteral("a"));
    manager->SetInputPolicy(ZTBatchManager::InputAsk);
    run.session->Process(QStringLiteral("a"));
    const QByteArray expected =
        Frame(name0, id, "") +
        Frame("00000002 0035", id, "00000002 0061  00000000 00000001 FFFFFFFF 01020304 00000003") +
        Frame("00000002 0035", id, "00000002 0061  00000002 00000001 FFFFFFFF 01020304 00000003");
    QVERIFY(Eventually([&] { return run.stage.Received().size() >= expected.size(); }));
    QCOMPARE(run.stage.Received().toHex(' '), expected.toHex(' '));
}

void tst_SessionMessages::processWithALongDocument()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.OpenSession());
    const QString id = run.stage.SessionId();
    // Far more than a socket accepts in one write.
    constexpr int length = 5000000;
    run.session->Process(QString(length, QLatin1Char('x')));
    run.session->Pause();
    const QByteArray end = Frame("00000002 0032", id, "");
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 2")) == 1; }));
    const QByteArray bytes = run.stage.Received();
    QVERIFY(bytes.endsWith(QByteArray::fromHex("0078 00000002 00000002 00000002 00000003 00000002") + end));
    QCOMPARE(bytes.count(QByteArray::fromHex("0078")), length);
}

void tst_SessionMessages::commandsKeepTheirOrder()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.OpenSession());
    QByteArray expected = Frame(name0, run.stage.SessionId(), "");
    for (int i = 0; i < 200; ++i) {
        run.session->Pause();
        run.session->Resume();
        run.session->Cancel();
        expected += Frame("00000002 0032", run.stage.SessionId(), "");
        expected += Frame("00000002 0033", run.stage.SessionId(), "");
        expected += Frame("00000002 0034", run.stage.SessionId(), "");
    }
    QVERIFY(Eventually([&] { return run.stage.Received().size() >= expected.size(); }));
    QCOMPARE(run.stage.Received(), expected);
}

void tst_SessionMessages::deletionIsTheLastMessage()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.OpenSession());
    const QString id = run.stage.SessionId();
    run.session->Cancel();
    delete run.session;
    QVERIFY(run.Manager()->IsAllowToCreateSession());
    const QByteArray expected = Frame(name0, id, "") + Frame("00000002 0034", id, "") + Frame(name1, id, "");
    QVERIFY(Eventually([&] { return run.stage.Received().size() >= expected.size(); }));
    QCOMPARE(run.stage.Received().toHex(' '), expected.toHex(' '));
}

void tst_SessionMessages::deletionBeforeProcess()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    delete run.Manager()->CreateBatchSession();
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 1")) == 1; }));
    const QString id = run.stage.SessionId();
    QCOMPARE(run.stage.Received().toHex(' '), (Frame(name0, id, "") + Frame(name1, id, "")).toHex(' '));
}

void tst_SessionMessages::identifiersDiffer()
{
    ManagerRun run({opensAtOnce});
    QVERIFY(run.Connect());
    for (int i = 0; i < 20; ++i) {
        delete run.Manager()->CreateBatchSession();
    }
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 1")) == 20; }));
    const QByteArray bytes = run.stage.Received();
    constexpr int frameSize = 4 + 2 + 4 + 4 + 72;
    QSet<QByteArray> ids;
    for (int i = 0; i < bytes.size(); i += frameSize) {
        ids.insert(bytes.mid(i + 14, 72));
    }
    QCOMPARE(ids.size(), 20);
}

void tst_SessionMessages::nothingIsSentBeforeTheConnection()
{
    ManagerRun run({QStringLiteral("start: wait 300; open")});
    run.Manager()->Start();
    QCOMPARE(run.Manager()->CreateBatchSession(), nullptr);
    QVERIFY(run.Manager()->IsAllowToCreateSession());
    QVERIFY(run.AwaitConnection(1, 1));
    const QPointer<Session> session = run.CreateSession();
    QVERIFY(session);
    QCOMPARE(run.stage.Received().toHex(' '), Frame(name0, run.stage.SessionId(), "").toHex(' '));
    QCOMPARE(run.debugLines.CountEndingWith(QStringLiteral("] Socket error: 19")), 0);
}

void tst_SessionMessages::message_data()
{
    QTest::addColumn<QString>("sent");
    QTest::addColumn<QString>("heard");

    const auto row = [](const char* title, const char* sent, const char* heard) {
        QTest::newRow(title) << QString::fromLatin1(sent) << QString::fromUtf8(heard);
    };
    row("finished", "6 id", "finished");
    row("progress", "7 id i:42", "progress 42");
    row("progress below zero", "7 id i:-1", "progress -1");
    row("greatest progress", "7 id i:2147483647", "progress 2147483647");
    row("file in progress", "8 id s:/a/b.jpg", "file [/a/b.jpg]");
    row("file with other scripts", "8 id s:%C3%A9%20%E6%BC%A2%F0%9F%93%B7", "file [\u00e9 \u6f22\U0001F4F7]");
    row("file without a name", "8 id s:", "file []");
    row("file with a null name", "8 id null", "file []");
    row("file processed", "9 id s:in s:out", "processed [in] [out]");
    row("log", "10 id s:text", "log [text]");
    row("log of lines", "10 id s:one%0Atwo", "log [one\ntwo]");
    row("range", "11 id i:0 i:5000", "range 0 5000");
    row("range upside down", "11 id i:5 i:-5", "range 5 -5");
    row("paused", "12 id", "paused");
    row("resumed", "13 id", "resumed");
    row("cancelled", "14 id", "cancelled");
    row("error", "15 id s:in s:out i:3 i:11", "error [in] [out] 3 11");
    row("unknown error", "15 id s:in null i:-1 i:99", "error [in] [] -1 99");
    row("input question", "16 id", "input question");
    row("output question", "17 id", "output question");
    row("processing question", "18 id", "processing question");
    row("naming question", "19 id", "naming question");
    row("write-to-format question", "20 id", "write-to-format question");

    // Fields that are missing at the end of a payload are read as empty or zero.
    row("progress, nothing behind the id", "7 id", "progress 0");
    row("progress, half a number", "7 id x:0001", "progress 0");
    row("file, nothing behind the id", "8 id", "file []");
    row("file, half a name", "8 id x:000000040061", "file []");
    row("processed, one name", "9 id s:in", "processed [in] []");
    row("processed, no name", "9 id", "processed [] []");
    row("log, nothing behind the id", "10 id", "log []");
    row("range, one number", "11 id i:7", "range 7 0");
    row("range, no number", "11 id", "range 0 0");
    row("error, no code", "15 id s:in s:out i:3", "error [in] [out] 3 0");
    row("error, no numbers", "15 id s:in s:out", "error [in] [out] 0 0");
    row("error, one name", "15 id s:in", "error [in] [] 0 0");
    row("error, nothing behind the id", "15 id", "error [] [] 0 0");

    // Bytes behind the last field are ignored.
    row("progress and more", "7 id i:1 i:2 s:junk", "progress 1");
    row("finished and more", "6 id x:DEADBEEF", "finished");
    row("question and more", "16 id i:1 b:1", "input question");

    // The name is read as a number, in any notation.
    row("leading zeros", "007 id i:5", "progress 5");
    row("with a sign", "+7 id i:5", "progress 5");
}

void tst_SessionMessages::message()
{
    QFETCH(QString, sent);
    QFETCH(QString, heard);

    ManagerRun run({opensAtOnce, QStringLiteral("5: send %1; send 7 id i:77").arg(sent)});
    QVERIFY(run.OpenSession());
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(QStringLiteral("progress 77")) == 1; }));
    QCOMPARE(run.log.lines, (QStringList{established, heard, QStringLiteral("progress 77")}));
    QVERIFY(run.session);
    QVERIFY(!run.Manager()->IsAllowToCreateSession());
    QCOMPARE(run.DebugTexts(), QStringList());
}

void tst_SessionMessages::equalProgressIsNotFiltered()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: send 7 id i:5; send 7 id i:5; send 6 id; send 6 id")});
    QVERIFY(run.OpenSession());
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.lines.size() == 5; }));
    QCOMPARE(run.log.Count(QStringLiteral("progress 5")), 2);
    QCOMPARE(run.log.Count(finished), 2);
}

void tst_SessionMessages::messagesKeepTheirOrder()
{
    ManagerRun run(
        {opensAtOnce, QStringLiteral("5: send 11 id i:0 i:2; send 8 id s:a; send 9 id s:a s:b; send 7 id i:1; "
                                     "send 10 id s:l; send 8 id s:c; send 15 id s:c null i:1 i:2; send 7 id i:2; "
                                     "send 12 id; send 13 id; send 14 id; send 6 id")});
    QVERIFY(run.OpenSession());
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(finished) == 1; }));
    QCOMPARE(run.log.lines.mid(1).join(QLatin1Char(';')),
             QStringLiteral("range 0 2;file [a];processed [a] [b];progress 1;log [l];file [c];error [c] [] 1 2;"
                            "progress 2;paused;resumed;cancelled;finished"));
}

void tst_SessionMessages::ignoredMessage_data()
{
    QTest::addColumn<QString>("action");

    for (const int number : {-7, -1, 0, 1, 2, 3, 4, 5, 21, 22, 100, 1000, 1006}) {
        QTest::addRow("%d", number) << QStringLiteral("send %1 id i:1 i:2").arg(number);
    }
    QTest::newRow("text") << QStringLiteral("send MsgProgress id i:1");
    QTest::newRow("number and text") << QStringLiteral("send 7x id i:1");
    QTest::newRow("hexadecimal") << QStringLiteral("send 0x7 id i:1");
    QTest::newRow("fraction") << QStringLiteral("send 7.0 id i:1");
    QTest::newRow("too great") << QStringLiteral("send 4294967303 id i:1");
    QTest::newRow("empty name") << QStringLiteral("raw 0000000000000000");
    QTest::newRow("null name and payload") << QStringLiteral("raw FFFFFFFFFFFFFFFF");
    QTest::newRow("message 7 with null payload") << QStringLiteral("raw 000000020037FFFFFFFF");
    QTest::newRow("message 7 with empty payload") << QStringLiteral("raw 00000002003700000000");
}

void tst_SessionMessages::ignoredMessage()
{
    QFETCH(QString, action);

    ManagerRun run({opensAtOnce, QStringLiteral("5: %1; send 6 id").arg(action)});
    QVERIFY(run.OpenSession());
    const int lines = run.debugLines.All().size();
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.lines.size() > 1; }));
    QCOMPARE(run.log.lines, (QStringList{established, finished}));
    QCOMPARE(run.debugLines.All().size(), lines);
    QVERIFY(run.Manager()->IsStarted());
}

void tst_SessionMessages::foreignSession_data()
{
    QTest::addColumn<QString>("id");

    QTest::newRow("another") << QStringLiteral("s:another");
    QTest::newRow("empty") << QStringLiteral("s:");
    QTest::newRow("null") << QStringLiteral("null");
    QTest::newRow("a number") << QStringLiteral("i:7");
    QTest::newRow("nothing") << QString();
    QTest::newRow("cut") << QStringLiteral("x:000000480061");
    QTest::newRow("odd count") << QStringLiteral("x:0000000300610062");
    QTest::newRow("greatest count") << QStringLiteral("x:FFFFFFFE00610062");
}

void tst_SessionMessages::foreignSession()
{
    QFETCH(QString, id);

    QStringList actions;
    for (int number = 6; number <= 20; ++number) {
        actions.append(QStringLiteral("send %1 %2 i:1 i:2").arg(number).arg(id));
    }
    actions.append(QStringLiteral("send 14 id"));
    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + actions.join(QStringLiteral("; "))});
    QVERIFY(run.OpenSession());
    const int lines = run.debugLines.All().size();
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.lines.size() > 1; }));
    QCOMPARE(run.log.lines, (QStringList{established, QStringLiteral("cancelled")}));
    QCOMPARE(run.debugLines.All().size(), lines);
}

void tst_SessionMessages::deletedSessionHearsNothing()
{
    // The server still sends messages to the session that has ended.
    ManagerRun run({opensAtOnce, QStringLiteral("1: send 7 id i:1; send 6 id; send 10 id s:late; note answered")});
    QVERIFY(run.OpenSession());
    delete run.session;
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("note answered")) == 1; }));
    const QPointer<Session> next = run.CreateSession();
    QVERIFY(next);
    QCOMPARE(run.log.lines, QStringList{established});
    QVERIFY(run.Manager()->IsStarted());
}

void tst_SessionMessages::badFrame_data()
{
    QTest::addColumn<QString>("action");

    QTest::newRow("name too long") << QStringLiteral("raw 00100000");
    QTest::newRow("name of an odd number of bytes") << QStringLiteral("raw 0000000300610062");
    QTest::newRow("payload too long") << QStringLiteral("raw 0000000200377FFFFFFF");
    QTest::newRow("text") << QStringLiteral("raw 474554202F20485454502F312E310D0A0D0A");
}

void tst_SessionMessages::badFrame()
{
    QFETCH(QString, action);

    // The bad frame ends the connection, not the server: the session continues on the next connection.
    ManagerRun run(
        {opensAtOnce, QStringLiteral("2: %1; send 7 id i:1").arg(action), QStringLiteral("3: send 7 id i:2")});
    QVERIFY(run.OpenSession());
    run.timings.reconnectInterval = 1000;
    run.session->Pause();
    QVERIFY(Eventually([&] { return run.log.Count(established) == 2; }));
    run.session->Resume();
    QVERIFY(Eventually([&] { return run.log.lines.size() == 3; }));
    QCOMPARE(run.log.lines, (QStringList{established, established, QStringLiteral("progress 2")}));
}

void tst_SessionMessages::messageInPieces()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: cut 1 7 id i:9; wait 40; raw 000002; wait 40; raw 0037000000"),
                    QStringLiteral("2: raw 00; wait 40; send 7 id i:3")});
    QVERIFY(run.OpenSession());
    const int lines = run.debugLines.All().size();
    run.session->Process(QString());
    // The answer to Pause() begins with the last byte of the payload's count, 0: an empty payload, which belongs to no
    // session. A complete message follows.
    run.session->Pause();
    QVERIFY(Eventually([&] { return run.log.lines.size() > 1; }));
    QCOMPARE(run.log.lines, (QStringList{established, QStringLiteral("progress 3")}));
    QCOMPARE(run.debugLines.All().size(), lines);
}

void tst_SessionMessages::longMessage()
{
    const QString text(2000000, QLatin1Char('x'));
    ManagerRun run({opensAtOnce, QStringLiteral("5: send 10 id s:%1; send 6 id").arg(text)});
    QVERIFY(run.OpenSession());
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(finished) == 1; }));
    QCOMPARE(run.log.lines.size(), 3);
    QVERIFY(run.log.lines[1] == QStringLiteral("log [%1]").arg(text));
}

void tst_SessionMessages::sessionDeletedInTheMiddleOfAFlood()
{
    ManagerRun run({opensAtOnce, QStringLiteral("5: flood 20000")});
    QVERIFY(run.OpenSession());
    int progress = 0;
    connect(run.session, &Session::Progress, this, [&] {
        if (++progress == 100) {
            delete run.session;
        }
    });
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 1")) == 1; }));
    QVERIFY(run.CreateSession());
    QCOMPARE(progress, 100);
}

void tst_SessionMessages::flood()
{
    constexpr int count = 100000;
    ManagerRun run({opensAtOnce, QStringLiteral("5: flood %1; send 6 id").arg(count)});
    QVERIFY(run.Connect());
    const QPointer<Session> session = run.Manager()->CreateBatchSession();
    QVERIFY(session);
    int next = 0;
    bool inOrder = true;
    bool isOver = false;
    connect(session, &Session::Progress, this, [&](int value) { inOrder = inOrder && value == next++ && !isOver; });
    connect(session, &Session::Finished, this, [&] { isOver = true; });
    session->Process(QString());
    QVERIFY(Eventually([&] { return isOver; }));
    QVERIFY(inOrder);
    QCOMPARE(next, count);
}

void tst_SessionMessages::questionsAndAnswers_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("question");
    QTest::addColumn<Command>("answer");

    QTest::newRow("input") << 16 << QStringLiteral("input question")
                           << Command([](Session& session) { session.InputRespond(ZTBatchManager::InputSkip, true); });
    QTest::newRow("output") << 17 << QStringLiteral("output question") << Command([](Session& session) {
        session.OutputRespond(ZTBatchManager::OutputSkip, true);
    });
    QTest::newRow("processing") << 18 << QStringLiteral("processing question") << Command([](Session& session) {
        session.ProcessingRespond(ZTBatchManager::ProcessingSkip, true);
    });
    QTest::newRow("naming") << 19 << QStringLiteral("naming question") << Command([](Session& session) {
        session.NamingRespond(ZTBatchManager::NamingSkip, true);
    });
    QTest::newRow("write to format") << 20 << QStringLiteral("write-to-format question")
                                     << Command([](Session& session) {
                                            session.WriteToFormatRespond(ZTBatchManager::WriteToFormatSkip, true);
                                        });
}

void tst_SessionMessages::questionsAndAnswers()
{
    QFETCH(int, number);
    QFETCH(QString, question);
    QFETCH(Command, answer);

    ManagerRun run(
        {opensAtOnce, QStringLiteral("5: send %1 id").arg(number), QStringLiteral("%1: send 6 id").arg(number)});
    QVERIFY(run.OpenSession());
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(question) == 1; }));
    // No answer is sent until the host gives one.
    QCOMPARE(run.stage.Count(QStringLiteral("message %1").arg(number)), 0);
    answer(*run.session);
    QVERIFY(Eventually([&] { return run.log.Count(finished) == 1; }));
    QCOMPARE(run.log.lines, (QStringList{established, question, finished}));
}

void tst_SessionMessages::commandsWithoutPipe_data()
{
    QTest::addColumn<QString>("end");

    QTest::newRow("crash") << QStringLiteral("crash");
    QTest::newRow("exit") << QStringLiteral("exit 0");
}

void tst_SessionMessages::commandsWithoutPipe()
{
    QFETCH(QString, end);

    ManagerRun run({opensAtOnce, QStringLiteral("5: ") + end});
    QVERIFY(run.OpenSession());
    run.session->Process(QString());
    QVERIFY(Eventually([&] { return run.log.Count(failed) == 1; }));
    const int lines = run.debugLines.All().size();

    QVERIFY(run.session->Process(QStringLiteral("again")));
    run.session->Pause();
    run.session->Resume();
    run.session->Cancel();
    run.session->InputRespond(ZTBatchManager::InputSkip, true);
    run.session->OutputRespond(ZTBatchManager::OutputSkip, true);
    run.session->ProcessingRespond(ZTBatchManager::ProcessingSkip, true);
    run.session->NamingRespond(ZTBatchManager::NamingSkip, true);
    run.session->WriteToFormatRespond(ZTBatchManager::WriteToFormatSkip, true);
    QCOMPARE(run.debugLines.All().size(), lines);

    // Commands of the old session reach the next server, which may ignore them.
    run.stage.SetRules({opensAtOnce});
    QVERIFY(run.Connect());
    run.session->Pause();
    QVERIFY(Eventually([&] { return run.stage.Count(QStringLiteral("message 2")) == 1; }));
    QCOMPARE(run.stage.Received(2).toHex(' '), Frame("00000002 0032", run.stage.SessionId(), "").toHex(' '));
}

void tst_SessionMessages::commandsOnALostConnection()
{
    ManagerRun run({opensAtOnce, QStringLiteral("2: close; disconnect")});
    QVERIFY(run.OpenSession());
    run.timings.reconnectInterval = 100;
    run.session->Pause();
    QVERIFY(Eventually([&] { return run.debugLines.CountEndingWith(QStringLiteral("] Socket error: 2")) > 1; }));
    QVERIFY(run.session->Process(QStringLiteral("lost")));
    QVERIFY(Eventually([&] { return run.debugLines.CountEndingWith(QStringLiteral("] Socket error: 19")) == 1; }));
    QCOMPARE(run.Manager()->CreateBatchSession(), nullptr);
    // A session that is deleted meanwhile frees its place, although no server is told: the pipe exists, but is closed.
    delete run.session;
    QVERIFY(run.Manager()->IsAllowToCreateSession());
    QCOMPARE(run.log.lines, QStringList{established});
}

OWN_FOLDER_TEST_MAIN(tst_SessionMessages)
#include "tst_sessionmessages.moc"
