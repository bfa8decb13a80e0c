// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTFrame_p.h"

#include <QtEndian>
#include <QtTest>

namespace {

/// A device whose bytes arrive when the test adds them. It counts the reads.
class Pipe : public QIODevice
{
public:
    Pipe() { open(QIODevice::ReadOnly | QIODevice::Unbuffered); }

    void Arrive(const QByteArray& bytes) { arrived.append(bytes); }
    qint64 bytesAvailable() const override { return arrived.size() + QIODevice::bytesAvailable(); }
    bool isSequential() const override { return true; }

    int reads = 0;
    qint64 bytesRead = 0;

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        ++reads;
        const qint64 count = std::min<qint64>(maxSize, arrived.size());
        std::copy_n(arrived.constBegin(), count, data);
        arrived.remove(0, static_cast<int>(count));
        bytesRead += count;
        return count;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray arrived;
};

using Result = ZTFrameReader::Result;

const QByteArray messageAb = QByteArray::fromHex("00000002"
                                                 "0061"
                                                 "00000003"
                                                 "626364"); // "a", "bcd"
const QByteArray message21 = QByteArray::fromHex("00000004"
                                                 "00320031"
                                                 "00000000"); // "21", nothing

} // namespace

class tst_ZTFrameReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nothingToRead();
    void messages_data();
    void messages();
    void oneMessageAtATime();
    void namesOfNeighboursDoNotMix();
    void payloadsAroundTheFetchSize_data();
    void payloadsAroundTheFetchSize();
    void everyCut();
    void byteByByte();
    void idlePollsDoNotReadAgain();
    void refusals_data();
    void refusals();
    void largestSizesAreTaken_data();
    void largestSizesAreTaken();
    void announcedSizeTakesNoMemory();
    void memoryGrowsWithTheBytesThatCame();
    void refusalLastsUntilReset();
    void resetForgetsThePiece();
    void takenMessagesAreLetGo();
    void frameFronts_data();
    void frameFronts();
};

void tst_ZTFrameReader::nothingToRead()
{
    Pipe pipe;
    ZTFrameReader reader;
    QCOMPARE(reader.Read(pipe), Result::Incomplete);
    QCOMPARE(reader.Read(pipe), Result::Incomplete);
}

void tst_ZTFrameReader::messages_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("payload");

    QTest::newRow("plain") << messageAb << QStringLiteral("a") << QByteArrayLiteral("bcd");
    QTest::newRow("no payload") << message21 << QStringLiteral("21") << QByteArrayLiteral("");
    QTest::newRow("both empty") << QByteArray::fromHex("00000000"
                                                       "00000000")
                                << QStringLiteral("") << QByteArrayLiteral("");
    QTest::newRow("both null") << QByteArray::fromHex("ffffffff"
                                                      "ffffffff")
                               << QString() << QByteArray();
    QTest::newRow("null name") << QByteArray::fromHex("ffffffff"
                                                      "00000001"
                                                      "ff")
                               << QString() << QByteArrayLiteral("\xff");
    QTest::newRow("other scripts") << QByteArray::fromHex("00000006"
                                                          "00fcd83ddcf7"
                                                          "ffffffff")
                                   << QStringLiteral("\u00fc\U0001F4F7") << QByteArray();
    QTest::newRow("lone surrogate") << QByteArray::fromHex("00000002"
                                                           "d800"
                                                           "00000000")
                                    << QString(QChar(0xd800)) << QByteArrayLiteral("");
}

void tst_ZTFrameReader::messages()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    QFETCH(QByteArray, payload);

    Pipe pipe;
    pipe.Arrive(bytes);
    ZTFrameReader reader;
    QCOMPARE(reader.Read(pipe), Result::Message);
    const QString readName = reader.TakeName();
    const QByteArray readPayload = reader.TakePayload();
    QCOMPARE(readName, name);
    QCOMPARE(readName.isNull(), name.isNull());
    QCOMPARE(readPayload, payload);
    QCOMPARE(readPayload.isNull(), payload.isNull());
    QCOMPARE(pipe.bytesAvailable(), 0);
    QCOMPARE(reader.Read(pipe), Result::Incomplete);
}

void tst_ZTFrameReader::oneMessageAtATime()
{
    Pipe pipe;
    pipe.Arrive(messageAb + message21);
    ZTFrameReader reader;
    QCOMPARE(reader.Read(pipe), Result::Message);
    QCOMPARE(reader.TakeName(), QStringLiteral("a"));
    QCOMPARE(reader.TakePayload(), QByteArrayLiteral("bcd"));
    QCOMPARE(reader.Read(pipe), Result::Message);
    QCOMPARE(reader.TakeName(), QStringLiteral("21"));
    QCOMPARE(reader.TakePayload(), QByteArrayLiteral(""));
    QCOMPARE(reader.Read(pipe), Result::Incomplete);
}

void tst_ZTFrameReader::namesOfNeighboursDoNotMix()
{
    const QByteArray names = QByteArray::fromHex("00000000"
                                                 "ffffffff"
                                                 "00000002"
                                                 "0061"
                                                 "ffffffff"
                                                 "00000002"
                                                 "0062"
                                                 "ffffffff"
                                                 "ffffffff"
                                                 "ffffffff"
                                                 "00000002"
                                                 "0062"
                                                 "ffffffff"
                                                 "00000004"
                                                 "00620062"
                                                 "ffffffff"
                                                 "00000000"
                                                 "ffffffff");
    Pipe pipe;
    pipe.Arrive(names);
    ZTFrameReader reader;
    for (const QString& name : {QStringLiteral(""), QStringLiteral("a"), QStringLiteral("b"), QString(),
                                QStringLiteral("b"), QStringLiteral("bb"), QStringLiteral("")}) {
        QCOMPARE(reader.Read(pipe), Result::Message);
        const QString read = reader.TakeName();
        QCOMPARE(read, name);
        QCOMPARE(read.isNull(), name.isNull());
    }
    QCOMPARE(reader.Read(pipe), Result::Incomplete);
}

void tst_ZTFrameReader::payloadsAroundTheFetchSize_data()
{
    QTest::addColumn<int>("size");

    for (const int size : {65000, 65521, 65522, 65523, 65535, 65536, 65537, 131072, 131073, 1000000}) {
        QTest::addRow("%d", size) << size;
    }
}

void tst_ZTFrameReader::payloadsAroundTheFetchSize()
{
    QFETCH(int, size);

    QByteArray payload(size, Qt::Uninitialized);
    for (int i = 0; i < size; ++i) {
        payload[i] = static_cast<char>(i * 7 + i / 256);
    }
    QByteArray count(4, Qt::Uninitialized);
    qToBigEndian<quint32>(static_cast<quint32>(size), count.data());
    const QByteArray frame = QByteArray::fromHex("00000002"
                                                 "0061") +
                             count + payload;
    const QByteArray stream = frame + messageAb + frame;

    for (const int piece : {stream.size(), 1000, 65536, 65535, 7}) {
        Pipe pipe;
        ZTFrameReader reader;
        QVector<QByteArray> payloads;
        for (int begin = 0; begin < stream.size(); begin += piece) {
            pipe.Arrive(stream.mid(begin, piece));
            while (reader.Read(pipe) == Result::Message) {
                QCOMPARE(reader.TakeName(), QStringLiteral("a"));
                payloads.append(reader.TakePayload());
            }
        }
        QCOMPARE(payloads.size(), 3);
        QVERIFY(payloads.at(0) == payload);
        QCOMPARE(payloads.at(1), QByteArrayLiteral("bcd"));
        QVERIFY(payloads.at(2) == payload);
        QCOMPARE(pipe.bytesRead, qint64(stream.size()));
    }
}

void tst_ZTFrameReader::everyCut()
{
    const QByteArray stream = messageAb + message21 + messageAb;
    for (int first = 0; first <= stream.size(); ++first) {
        for (int second = first; second <= stream.size(); ++second) {
            Pipe pipe;
            ZTFrameReader reader;
            QStringList names;
            QByteArray payloads;
            for (const QByteArray& piece :
                 {stream.left(first), stream.mid(first, second - first), stream.mid(second)}) {
                pipe.Arrive(piece);
                while (reader.Read(pipe) == Result::Message) {
                    names.append(reader.TakeName());
                    payloads.append(reader.TakePayload()).append('|');
                }
            }
            QCOMPARE(names, (QStringList{QStringLiteral("a"), QStringLiteral("21"), QStringLiteral("a")}));
            QCOMPARE(payloads, QByteArrayLiteral("bcd||bcd|"));
            QCOMPARE(pipe.bytesRead, qint64(stream.size()));
        }
    }
}

void tst_ZTFrameReader::byteByByte()
{
    Pipe pipe;
    ZTFrameReader reader;
    int messages = 0;
    for (const char byte : messageAb + message21) {
        pipe.Arrive(QByteArray(1, byte));
        messages += reader.Read(pipe) == Result::Message ? 1 : 0;
    }
    QCOMPARE(messages, 2);
    QCOMPARE(reader.TakeName(), QStringLiteral("21"));
}

void tst_ZTFrameReader::idlePollsDoNotReadAgain()
{
    Pipe pipe;
    ZTFrameReader reader;
    const QByteArray half(500000, 'x');
    pipe.Arrive(QByteArray::fromHex("00000002"
                                    "0061"
                                    "000f4240") +
                half); // 1,000,000 bytes announced
    QCOMPARE(reader.Read(pipe), Result::Incomplete);
    const qint64 bytesRead = pipe.bytesRead;
    QCOMPARE(bytesRead, qint64(10 + half.size()));

    const int reads = pipe.reads;
    for (int poll = 0; poll < 1000; ++poll) {
        QCOMPARE(reader.Read(pipe), Result::Incomplete);
    }
    QCOMPARE(pipe.bytesRead, bytesRead);
    QVERIFY2(pipe.reads - reads <= 1000, "an idle poll asks the device once at most");

    pipe.Arrive(half);
    QCOMPARE(reader.Read(pipe), Result::Message);
    QCOMPARE(reader.TakePayload(), half + half);
    QCOMPARE(pipe.bytesRead, qint64(10 + 1000000));
}

void tst_ZTFrameReader::refusals_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("refusal");

    const auto row = [](const char* title, const char* hex, const char* refusal) {
        QTest::newRow(title) << QByteArray::fromHex(hex) << QString::fromLatin1(refusal);
    };
    row("name over 64 KiB", "00010002", "Frame refused: its name has 65538 bytes, 65536 are allowed.");
    row("name odd and over 64 KiB", "00010001", "Frame refused: its name has 65537 bytes, 65536 are allowed.");
    row("name of nearly 4 GiB", "fffffffe", "Frame refused: its name has 4294967294 bytes, 65536 are allowed.");
    row("name of one byte", "00000001", "Frame refused: its name has an odd number of bytes, 1.");
    row("name of 65535 bytes", "0000ffff", "Frame refused: its name has an odd number of bytes, 65535.");
    row("payload over 1 GiB",
        "00000000"
        "40000001",
        "Frame refused: its payload has 1073741825 bytes, 1073741824 are allowed.");
    row("payload of 2 GiB",
        "00000002"
        "0061"
        "80000000",
        "Frame refused: its payload has 2147483648 bytes, 1073741824 are allowed.");
    row("payload of nearly 4 GiB",
        "ffffffff"
        "fffffffe",
        "Frame refused: its payload has 4294967294 bytes, 1073741824 are allowed.");
}

void tst_ZTFrameReader::refusals()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, refusal);

    // The size is sufficient for the refusal: the reader does not wait for more.
    Pipe pipe;
    pipe.Arrive(messageAb + bytes);
    ZTFrameReader reader;
    QCOMPARE(reader.Read(pipe), Result::Message);
    QCOMPARE(reader.Read(pipe), Result::Refused);
    QCOMPARE(reader.Refusal(), refusal);
}

void tst_ZTFrameReader::largestSizesAreTaken_data()
{
    QTest::addColumn<QByteArray>("front");

    QTest::newRow("name of 64 KiB") << QByteArray::fromHex("00010000");
    QTest::newRow("payload of 1 GiB") << QByteArray::fromHex("00000000"
                                                             "40000000");
    QTest::newRow("null name and payload of 1 GiB") << QByteArray::fromHex("ffffffff"
                                                                           "40000000");
}

void tst_ZTFrameReader::largestSizesAreTaken()
{
    QFETCH(QByteArray, front);

    Pipe pipe;
    pipe.Arrive(front + QByteArray(100, '\0'));
    ZTFrameReader reader;
    QCOMPARE(reader.Read(pipe), Result::Incomplete);
    QCOMPARE(pipe.bytesAvailable(), 0);
}

void tst_ZTFrameReader::announcedSizeTakesNoMemory()
{
    Pipe pipe;
    pipe.Arrive(QByteArray::fromHex("00000000"
                                    "40000000") +
                QByteArray(10, 'x'));
    ZTFrameReader reader;
    QCOMPARE(reader.Read(pipe), Result::Incomplete);
    QVERIFY(reader.TakePayload().capacity() <= 4 * 1024 * 1024);
}

void tst_ZTFrameReader::memoryGrowsWithTheBytesThatCame()
{
    Pipe pipe;
    pipe.Arrive(QByteArray::fromHex("00000000"
                                    "40000000"));
    ZTFrameReader reader;
    for (int i = 0; i < 64; ++i) {
        pipe.Arrive(QByteArray(100000, 'x'));
        QCOMPARE(reader.Read(pipe), Result::Incomplete);
    }
    const QByteArray payload = reader.TakePayload();
    QCOMPARE(payload.size(), 6400000);
    QVERIFY(payload.capacity() <= 2 * payload.size());
}

void tst_ZTFrameReader::refusalLastsUntilReset()
{
    Pipe pipe;
    pipe.Arrive(QByteArray::fromHex("00000001") + messageAb);
    ZTFrameReader reader;
    QCOMPARE(reader.Read(pipe), Result::Refused);
    QCOMPARE(reader.Read(pipe), Result::Refused);
    const int reads = pipe.reads;
    pipe.Arrive(messageAb);
    QCOMPARE(reader.Read(pipe), Result::Refused);
    QCOMPARE(pipe.reads, reads);

    reader.Reset();
    QCOMPARE(reader.Read(pipe), Result::Message);
    QCOMPARE(reader.TakePayload(), QByteArrayLiteral("bcd"));
    QCOMPARE(reader.Refusal(), QString());
}

void tst_ZTFrameReader::resetForgetsThePiece()
{
    const QByteArray stream = messageAb + message21;
    for (int cut = 0; cut < stream.size(); ++cut) {
        Pipe pipe;
        pipe.Arrive(stream.left(cut));
        ZTFrameReader reader;
        while (reader.Read(pipe) == Result::Message) {
        }
        reader.Reset();
        pipe.Arrive(messageAb);
        QCOMPARE(reader.Read(pipe), Result::Message);
        QCOMPARE(reader.TakeName(), QStringLiteral("a"));
        QCOMPARE(reader.TakePayload(), QByteArrayLiteral("bcd"));
    }
}

void tst_ZTFrameReader::takenMessagesAreLetGo()
{
    Pipe pipe;
    pipe.Arrive(messageAb);
    ZTFrameReader reader;
    QCOMPARE(reader.Read(pipe), Result::Message);
    const QByteArray payload = reader.TakePayload();
    QVERIFY(payload.isDetached());
    QVERIFY(reader.TakePayload().isNull());
}

void tst_ZTFrameReader::frameFronts_data()
{
    messages_data();
}

void tst_ZTFrameReader::frameFronts()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QString, name);
    QFETCH(QByteArray, payload);

    QByteArray frame = QByteArrayLiteral("before");
    AppendFrameFront(frame, name, payload);
    QCOMPARE(frame + payload, "before" + bytes);
}

QTEST_GUILESS_MAIN(tst_ZTFrameReader)
#include "tst_ztframereader.moc"
