// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchPayload.h"

#include <QtTest>

#include <type_traits>

// The bytes in these tests are written by hand: a string is the count of its bytes and its UTF-16 text, both
// big-endian; an int has four bytes, a bool one.

namespace {

const QByteArray idA = QByteArray::fromHex("00000002"
                                           "0061");
const QByteArray textB = QByteArray::fromHex("00000002"
                                             "0062");
const QByteArray textC = QByteArray::fromHex("00000002"
                                             "0063");
const QString a = QStringLiteral("a");
const QString b = QStringLiteral("b");
const QString c = QStringLiteral("c");

template<ZTBatchMessage::Message message>
using ToServer = ZTBatchPayload::ToServer<message>;
template<ZTBatchMessage::Message message>
using FromServer = ZTBatchPayload::FromServer<message>;

template<typename... Payloads>
constexpr bool areSessions = (std::is_same_v<Payloads, ZTBatchPayload::Session> && ...);
template<typename... Payloads>
constexpr bool areAnswers = (std::is_same_v<Payloads, ZTBatchPayload::Answer> && ...);
template<typename... Payloads>
constexpr bool areNotSent = (std::is_void_v<Payloads> && ...);

static_assert(areSessions<ToServer<ZTBatchMessage::MsgCreateSession>, ToServer<ZTBatchMessage::MsgCloseSession>,
                          ToServer<ZTBatchMessage::MsgPause>, ToServer<ZTBatchMessage::MsgResume>,
                          ToServer<ZTBatchMessage::MsgCancel>>);
static_assert(std::is_same_v<ToServer<ZTBatchMessage::MsgProcess>, ZTBatchPayload::Process>);
static_assert(areAnswers<ToServer<ZTBatchMessage::MsgInputQuestion>, ToServer<ZTBatchMessage::MsgOutputQuestion>,
                         ToServer<ZTBatchMessage::MsgProcessingQuestion>, ToServer<ZTBatchMessage::MsgNamingQuestion>,
                         ToServer<ZTBatchMessage::MsgWriteToFormatQuestion>>);
static_assert(std::is_same_v<ToServer<ZTBatchMessage::MsgCloseServer>, ZTBatchPayload::Empty>);
static_assert(areNotSent<ToServer<ZTBatchMessage::MsgFinished>, ToServer<ZTBatchMessage::MsgProgress>,
                         ToServer<ZTBatchMessage::MsgFileInProgress>, ToServer<ZTBatchMessage::MsgFileProcessed>,
                         ToServer<ZTBatchMessage::MsgLog>, ToServer<ZTBatchMessage::MsgProgressRange>,
                         ToServer<ZTBatchMessage::MsgPaused>, ToServer<ZTBatchMessage::MsgResumed>,
                         ToServer<ZTBatchMessage::MsgCancelled>, ToServer<ZTBatchMessage::MsgError>,
                         ToServer<ZTBatchMessage::MsgUnknown>>);

static_assert(
    areSessions<FromServer<ZTBatchMessage::MsgFinished>, FromServer<ZTBatchMessage::MsgPaused>,
                FromServer<ZTBatchMessage::MsgResumed>, FromServer<ZTBatchMessage::MsgCancelled>,
                FromServer<ZTBatchMessage::MsgInputQuestion>, FromServer<ZTBatchMessage::MsgOutputQuestion>,
                FromServer<ZTBatchMessage::MsgProcessingQuestion>, FromServer<ZTBatchMessage::MsgNamingQuestion>,
                FromServer<ZTBatchMessage::MsgWriteToFormatQuestion>>);
static_assert(std::is_same_v<FromServer<ZTBatchMessage::MsgProgress>, ZTBatchPayload::Progress>);
static_assert(std::is_same_v<FromServer<ZTBatchMessage::MsgFileInProgress>, ZTBatchPayload::InputFile>);
static_assert(std::is_same_v<FromServer<ZTBatchMessage::MsgFileProcessed>, ZTBatchPayload::FilePair>);
static_assert(std::is_same_v<FromServer<ZTBatchMessage::MsgLog>, ZTBatchPayload::Log>);
static_assert(std::is_same_v<FromServer<ZTBatchMessage::MsgProgressRange>, ZTBatchPayload::ProgressRange>);
static_assert(std::is_same_v<FromServer<ZTBatchMessage::MsgError>, ZTBatchPayload::Error>);
static_assert(areNotSent<FromServer<ZTBatchMessage::MsgCreateSession>, FromServer<ZTBatchMessage::MsgCloseSession>,
                         FromServer<ZTBatchMessage::MsgPause>, FromServer<ZTBatchMessage::MsgResume>,
                         FromServer<ZTBatchMessage::MsgCancel>, FromServer<ZTBatchMessage::MsgProcess>,
                         FromServer<ZTBatchMessage::MsgCloseServer>, FromServer<ZTBatchMessage::MsgUnknown>>);

} // namespace

class tst_ZTBatchPayload : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void empty();
    void session();
    void process();
    void progress();
    void progressRange();
    void inputFile();
    void filePair();
    void log();
    void error();
    void answer_data();
    void answer();
    void nullStringsStayNull();
    void textsSurvive_data();
    void textsSurvive();
    void shortPayloadsReadAsDefaults();
    void bytesBehindThePayloadAreNotLookedAt();
    void announcedSizesTakeNoMemory();
};

void tst_ZTBatchPayload::empty()
{
    QCOMPARE(ZTBatchPayload::Pack(ZTBatchPayload::Empty{}), QByteArray());
    QVERIFY(!ZTBatchPayload::Pack(ZTBatchPayload::Empty{}).isNull());
    bool isExact = false;
    ZTBatchPayload::Unpack<ZTBatchPayload::Empty>(QByteArray(), &isExact);
    QVERIFY(isExact);
    ZTBatchPayload::Unpack<ZTBatchPayload::Empty>(idA, &isExact);
    QVERIFY(!isExact);
}

void tst_ZTBatchPayload::session()
{
    QCOMPARE(ZTBatchPayload::Pack(ZTBatchPayload::Session{a}), idA);
    bool isExact = false;
    QCOMPARE(ZTBatchPayload::Unpack<ZTBatchPayload::Session>(idA, &isExact).sessionId, a);
    QVERIFY(isExact);
}

void tst_ZTBatchPayload::process()
{
    const QByteArray bytes = idA + textB +
                             QByteArray::fromHex("00000002"
                                                 "00000002"
                                                 "00000002"
                                                 "00000003"
                                                 "00000002");
    QCOMPARE(ZTBatchPayload::Pack(ZTBatchPayload::Process{a, b, 2, 2, 2, 3, 2}), bytes);

    const QByteArray allDifferent = idA + textB +
                                    QByteArray::fromHex("00000001"
                                                        "00000002"
                                                        "ffffffff"
                                                        "7fffffff"
                                                        "80000000");
    bool isExact = false;
    const auto payload = ZTBatchPayload::Unpack<ZTBatchPayload::Process>(allDifferent, &isExact);
    QVERIFY(isExact);
    QCOMPARE(payload.sessionId, a);
    QCOMPARE(payload.document, b);
    QCOMPARE(payload.inputPolicy, 1);
    QCOMPARE(payload.outputPolicy, 2);
    QCOMPARE(payload.processingPolicy, -1);
    QCOMPARE(payload.namingPolicy, std::numeric_limits<int>::max());
    QCOMPARE(payload.writeToFormatPolicy, std::numeric_limits<int>::min());
    QCOMPARE(ZTBatchPayload::Pack(payload), allDifferent);
}

void tst_ZTBatchPayload::progress()
{
    const QByteArray bytes = idA + QByteArray::fromHex("00000102");
    QCOMPARE(ZTBatchPayload::Pack(ZTBatchPayload::Progress{a, 258}), bytes);
    const auto payload = ZTBatchPayload::Unpack<ZTBatchPayload::Progress>(bytes);
    QCOMPARE(payload.sessionId, a);
    QCOMPARE(payload.value, 258);
}

void tst_ZTBatchPayload::progressRange()
{
    const QByteArray bytes = idA + QByteArray::fromHex("fffffffe"
                                                       "00001388");
    QCOMPARE(ZTBatchPayload::Pack(ZTBatchPayload::ProgressRange{a, -2, 5000}), bytes);
    const auto payload = ZTBatchPayload::Unpack<ZTBatchPayload::ProgressRange>(bytes);
    QCOMPARE(payload.sessionId, a);
    QCOMPARE(payload.minimum, -2);
    QCOMPARE(payload.maximum, 5000);
}

void tst_ZTBatchPayload::inputFile()
{
    QCOMPARE(ZTBatchPayload::Pack(ZTBatchPayload::InputFile{a, b}), idA + textB);
    const auto payload = ZTBatchPayload::Unpack<ZTBatchPayload::InputFile>(idA + textB);
    QCOMPARE(payload.sessionId, a);
    QCOMPARE(payload.inputFileName, b);
}

void tst_ZTBatchPayload::filePair()
{
    QCOMPARE(ZTBatchPayload::Pack(ZTBatchPayload::FilePair{a, b, c}), idA + textB + textC);
    const auto payload = ZTBatchPayload::Unpack<ZTBatchPayload::FilePair>(idA + textB + textC);
    QCOMPARE(payload.sessionId, a);
    QCOMPARE(payload.inputFileName, b);
    QCOMPARE(payload.outputFileName, c);
}

void tst_ZTBatchPayload::log()
{
    QCOMPARE(ZTBatchPayload::Pack(ZTBatchPayload::Log{a, b}), idA + textB);
    const auto payload = ZTBatchPayload::Unpack<ZTBatchPayload::Log>(idA + textB);
    QCOMPARE(payload.sessionId, a);
    QCOMPARE(payload.text, b);
}

void tst_ZTBatchPayload::error()
{
    const QByteArray bytes = idA + textB + textC +
                             QByteArray::fromHex("00000001"
                                                 "0000000b");
    QCOMPARE(ZTBatchPayload::Pack(ZTBatchPayload::Error{a, b, c, 1, ZTBatchMessage::FileNameAlreadyExists}), bytes);
    const auto payload = ZTBatchPayload::Unpack<ZTBatchPayload::Error>(bytes);
    QCOMPARE(payload.sessionId, a);
    QCOMPARE(payload.inputFileName, b);
    QCOMPARE(payload.outputFileName, c);
    QCOMPARE(payload.action, 1);
    QCOMPARE(payload.errorCode, 11);
}

void tst_ZTBatchPayload::answer_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<bool>("flag");
    QTest::addColumn<QByteArray>("tail");

    QTest::newRow("yes") << 3 << true
                         << QByteArray::fromHex("00000003"
                                                "01");
    QTest::newRow("no") << 0 << false
                        << QByteArray::fromHex("00000000"
                                               "00");
    QTest::newRow("negative") << -1 << true
                              << QByteArray::fromHex("ffffffff"
                                                     "01");
}

void tst_ZTBatchPayload::answer()
{
    QFETCH(int, policy);
    QFETCH(bool, flag);
    QFETCH(QByteArray, tail);

    QCOMPARE(ZTBatchPayload::Pack(ZTBatchPayload::Answer{a, policy, flag}), idA + tail);
    const auto payload = ZTBatchPayload::Unpack<ZTBatchPayload::Answer>(idA + tail);
    QCOMPARE(payload.sessionId, a);
    QCOMPARE(payload.policy, policy);
    QCOMPARE(payload.flag, flag);
}

void tst_ZTBatchPayload::nullStringsStayNull()
{
    const QByteArray null = QByteArray::fromHex("ffffffff");
    const QByteArray empty = QByteArray::fromHex("00000000");
    QCOMPARE(ZTBatchPayload::Pack(ZTBatchPayload::Log{QString(), QStringLiteral("")}), null + empty);
    const auto payload = ZTBatchPayload::Unpack<ZTBatchPayload::Log>(null + empty);
    QVERIFY(payload.sessionId.isNull());
    QVERIFY(payload.text.isEmpty());
    QVERIFY(!payload.text.isNull());
}

void tst_ZTBatchPayload::textsSurvive_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("umlaut") << QStringLiteral("\u00fc")
                            << QByteArray::fromHex("00000002"
                                                   "00fc");
    QTest::newRow("outside the basic plane") << QStringLiteral("\U0001F4F7")
                                             << QByteArray::fromHex("00000004"
                                                                    "d83ddcf7");
    QTest::newRow("lone surrogate") << QString(QChar(0xd800))
                                    << QByteArray::fromHex("00000002"
                                                           "d800");
    QTest::newRow("zero and line break") << QString::fromLatin1("\0\n", 2)
                                         << QByteArray::fromHex("00000004"
                                                                "0000000a");
}

void tst_ZTBatchPayload::textsSurvive()
{
    QFETCH(QString, text);
    QFETCH(QByteArray, bytes);

    QCOMPARE(ZTBatchPayload::Pack(ZTBatchPayload::Session{text}), bytes);
    QCOMPARE(ZTBatchPayload::Unpack<ZTBatchPayload::Session>(bytes).sessionId, text);
}

void tst_ZTBatchPayload::shortPayloadsReadAsDefaults()
{
    const ZTBatchPayload::Error whole{a, b, c, 7, 9};
    const QByteArray bytes = ZTBatchPayload::Pack(whole);
    QCOMPARE(bytes.size(), 26);
    for (int size = 0; size < bytes.size(); ++size) {
        bool isExact = true;
        const auto payload = ZTBatchPayload::Unpack<ZTBatchPayload::Error>(bytes.left(size), &isExact);
        QVERIFY2(!isExact, qPrintable(QString::number(size)));
        QCOMPARE(payload.sessionId, size >= 6 ? a : QString());
        QCOMPARE(payload.inputFileName, size >= 12 ? b : QString());
        QCOMPARE(payload.outputFileName, size >= 18 ? c : QString());
        QCOMPARE(payload.action, size >= 22 ? 7 : 0);
        QCOMPARE(payload.errorCode, 0);
    }
}

void tst_ZTBatchPayload::bytesBehindThePayloadAreNotLookedAt()
{
    bool isExact = true;
    const auto payload = ZTBatchPayload::Unpack<ZTBatchPayload::Progress>(idA + QByteArray::fromHex("00000005"
                                                                                                    "ff"),
                                                                          &isExact);
    QCOMPARE(payload.value, 5);
    QVERIFY(!isExact);
}

void tst_ZTBatchPayload::announcedSizesTakeNoMemory()
{
    // A string with a count of 2 GiB, but only two bytes.
    bool isExact = true;
    const auto payload = ZTBatchPayload::Unpack<ZTBatchPayload::Progress>(QByteArray::fromHex("7ffffffe"
                                                                                              "0061"),
                                                                          &isExact);
    QVERIFY(payload.sessionId.isEmpty());
    QVERIFY(payload.sessionId.capacity() < 4 * 1024 * 1024);
    QCOMPARE(payload.value, 0);
    QVERIFY(!isExact);
}

QTEST_GUILESS_MAIN(tst_ZTBatchPayload)
#include "tst_ztbatchpayload.moc"
