// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ContextTranslator.h"
#include "ZTBatchMessage.h"

#include <QtTest>

#include <type_traits>

class tst_ZTBatchMessage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbers_data();
    void numbers();
    void unknownNames_data();
    void unknownNames();
    void numbersThatNeedNoCanonicalForm_data();
    void numbersThatNeedNoCanonicalForm();
    void errorDescriptions_data();
    void errorDescriptions();
    void errorDescriptionsAreTranslatedInTheContextQObject();
    void objectsAreEmptyValues();
};

void tst_ZTBatchMessage::numbers_data()
{
    QTest::addColumn<int>("message");
    QTest::addColumn<QString>("name");

    const QVector<int> inOrder{ZTBatchMessage::MsgCreateSession,
                               ZTBatchMessage::MsgCloseSession,
                               ZTBatchMessage::MsgPause,
                               ZTBatchMessage::MsgResume,
                               ZTBatchMessage::MsgCancel,
                               ZTBatchMessage::MsgProcess,
                               ZTBatchMessage::MsgFinished,
                               ZTBatchMessage::MsgProgress,
                               ZTBatchMessage::MsgFileInProgress,
                               ZTBatchMessage::MsgFileProcessed,
                               ZTBatchMessage::MsgLog,
                               ZTBatchMessage::MsgProgressRange,
                               ZTBatchMessage::MsgPaused,
                               ZTBatchMessage::MsgResumed,
                               ZTBatchMessage::MsgCancelled,
                               ZTBatchMessage::MsgError,
                               ZTBatchMessage::MsgInputQuestion,
                               ZTBatchMessage::MsgOutputQuestion,
                               ZTBatchMessage::MsgProcessingQuestion,
                               ZTBatchMessage::MsgNamingQuestion,
                               ZTBatchMessage::MsgWriteToFormatQuestion,
                               ZTBatchMessage::MsgCloseServer};
    const QStringList names{QStringLiteral("0"),  QStringLiteral("1"),  QStringLiteral("2"),  QStringLiteral("3"),
                            QStringLiteral("4"),  QStringLiteral("5"),  QStringLiteral("6"),  QStringLiteral("7"),
                            QStringLiteral("8"),  QStringLiteral("9"),  QStringLiteral("10"), QStringLiteral("11"),
                            QStringLiteral("12"), QStringLiteral("13"), QStringLiteral("14"), QStringLiteral("15"),
                            QStringLiteral("16"), QStringLiteral("17"), QStringLiteral("18"), QStringLiteral("19"),
                            QStringLiteral("20"), QStringLiteral("21")};
    QCOMPARE(inOrder.size(), names.size());
    for (int i = 0; i < names.size(); ++i) {
        QTest::newRow(qPrintable(names[i])) << inOrder[i] << names[i];
    }
}

void tst_ZTBatchMessage::numbers()
{
    QFETCH(int, message);
    QFETCH(QString, name);

    QCOMPARE(message, name.toInt());
    QCOMPARE(ZTBatchMessage::Name(static_cast<ZTBatchMessage::Message>(message)), name);
    QCOMPARE(int(ZTBatchMessage::FromName(name)), message);
}

void tst_ZTBatchMessage::unknownNames_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("null") << QString();
    QTest::newRow("empty") << QStringLiteral("");
    QTest::newRow("word") << QStringLiteral("abc");
    QTest::newRow("one too many") << QStringLiteral("22");
    QTest::newRow("negative") << QStringLiteral("-1");
    QTest::newRow("marker") << QStringLiteral("1000");
    QTest::newRow("hexadecimal") << QStringLiteral("0x5");
    QTest::newRow("fraction") << QStringLiteral("5.0");
    QTest::newRow("more than an int") << QStringLiteral("4294967301");
    QTest::newRow("number and word") << QStringLiteral("5a");
    QTest::newRow("digits of another script") << QStringLiteral("\u0665");
}

void tst_ZTBatchMessage::unknownNames()
{
    QFETCH(QString, name);

    QCOMPARE(int(ZTBatchMessage::FromName(name)), 1000);
    QCOMPARE(ZTBatchMessage::FromName(name), ZTBatchMessage::MsgUnknown);
}

void tst_ZTBatchMessage::numbersThatNeedNoCanonicalForm_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("message");

    QTest::newRow("leading zero") << QStringLiteral("07") << 7;
    QTest::newRow("plus sign") << QStringLiteral("+7") << 7;
    QTest::newRow("minus zero") << QStringLiteral("-0") << 0;
    QTest::newRow("blanks") << QStringLiteral(" 21 ") << 21;
}

void tst_ZTBatchMessage::numbersThatNeedNoCanonicalForm()
{
    QFETCH(QString, name);
    QFETCH(int, message);

    QCOMPARE(int(ZTBatchMessage::FromName(name)), message);
}

void tst_ZTBatchMessage::errorDescriptions_data()
{
    QTest::addColumn<int>("enumerator");
    QTest::addColumn<int>("value");
    QTest::addColumn<QString>("text");

    const auto row = [](int enumerator, int value, const char* text) {
        QTest::addRow("%d", value) << enumerator << value << QString::fromLatin1(text);
    };
    row(ZTBatchMessage::NoError, 0, "No error.");
    row(ZTBatchMessage::UnsupportedInputFormat, 1, "Unsupported input format.");
    row(ZTBatchMessage::ReadFileError, 2, "Error reading file.");
    row(ZTBatchMessage::UnsupportedOutputFormat, 3, "Unsupported output format.");
    row(ZTBatchMessage::WriteOutputFormatError, 4, "Error writing output format.");
    row(ZTBatchMessage::EmptyBatchDocument, 5, "Empty batch document.");
    row(ZTBatchMessage::ReadOutputSettingsError, 6, "Error reading output settings.");
    row(ZTBatchMessage::NoAdjustmentManager, 7, "Adjustment manager does not exist.");
    row(ZTBatchMessage::NoAdjustment, 8, "Adjustment does not exist.");
    row(ZTBatchMessage::ApplyAdjustmentError, 9, "Apply adjustment error.");
    row(ZTBatchMessage::ImageTooLarge, 10, "Image too large.");
    row(ZTBatchMessage::FileNameAlreadyExists, 11, "File name already exists.");
    row(12, 12, "Unknown error.");
    row(-1, -1, "Unknown error.");
    row(1000, 1000, "Unknown error.");
}

void tst_ZTBatchMessage::errorDescriptions()
{
    QFETCH(int, enumerator);
    QFETCH(int, value);
    QFETCH(QString, text);

    QCOMPARE(enumerator, value);
    QCOMPARE(ZTBatchMessage::ErrorDescription(static_cast<ZTBatchMessage::Error>(value)), text);
}

void tst_ZTBatchMessage::errorDescriptionsAreTranslatedInTheContextQObject()
{
    ContextTranslator translator("QObject");
    QVERIFY(QCoreApplication::installTranslator(&translator));
    for (int value = -1; value <= 12; ++value) {
        const QString text = ZTBatchMessage::ErrorDescription(static_cast<ZTBatchMessage::Error>(value));
        QVERIFY2(text.startsWith(QLatin1Char('[')) && text.endsWith(QLatin1Char(']')), qPrintable(text));
    }
}

void tst_ZTBatchMessage::objectsAreEmptyValues()
{
    QVERIFY(std::is_empty<ZTBatchMessage>::value);
    QVERIFY(!std::is_polymorphic<ZTBatchMessage>::value);
    QVERIFY(std::is_copy_assignable<ZTBatchMessage>::value);
    QVERIFY(std::is_move_assignable<ZTBatchMessage>::value);
}

QTEST_GUILESS_MAIN(tst_ZTBatchMessage)
#include "tst_ztbatchmessage.moc"
