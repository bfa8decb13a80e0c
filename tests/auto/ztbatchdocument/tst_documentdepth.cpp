// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobTexts.h"
#include "ZTBatchDocument.h"

#include <QtTest>

/// Deep trees of folders are written and read back, however small the stack is.
class tst_DocumentDepth : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsWrittenIsRead_data();
    void whatIsWrittenIsRead();
    void deepestJobOnSmallStack();
    void brokenDeepJobOnSmallStack();
};

namespace {

// Below root and input.
constexpr int deepestFolder = 16382;

/// A job with a chain of folders, without the indentation.
QString Chain(int folders)
{
    return QLatin1String("<!DOCTYPE batch><root><input>") +
           QStringLiteral("<inputElement inputText='d'>").repeated(folders) +
           QStringLiteral("</inputElement>").repeated(folders) + QLatin1String("</input></root>");
}

int Depth(const ZTBatchDocument& document)
{
    int depth = 0;
    for (QModelIndex index = document.GetInputModel()->index(0, 0); index.isValid();
         index = document.GetInputModel()->index(0, 0, index)) {
        ++depth;
    }
    return depth;
}

constexpr uint smallStack = 512 * 1024;

} // namespace

void tst_DocumentDepth::whatIsWrittenIsRead_data()
{
    QTest::addColumn<int>("folders");

    QTest::newRow("998 folders") << 998;
    QTest::newRow("999 folders") << 999;
    QTest::newRow("1000 folders") << 1000;
    QTest::newRow("as many as a path of 4096 bytes has") << 2047;
}

void tst_DocumentDepth::whatIsWrittenIsRead()
{
    QFETCH(int, folders);

    ZTBatchDocument document;
    QModelIndex innermost;
    for (int i = 0; i < folders; ++i) {
        innermost = AddInput(document, Folder, QStringLiteral("d"), innermost);
    }
    AddInput(document, File, QStringLiteral("a.jpg"), innermost);
    const QString text = document.Serialize(nullptr);
    ZTBatchDocument copy;
    QVERIFY(copy.Deserialize(text));
    QCOMPARE(Depth(copy), folders + 1);
    QCOMPARE(copy.GetInputModel()->GetFileNodesCount(), 1);
    QVERIFY(copy.Serialize(nullptr) == text);
}

void tst_DocumentDepth::deepestJobOnSmallStack()
{
    int depth = 0;
    RunOnStack(smallStack, [&] {
        ZTBatchDocument document;
        document.Deserialize(Chain(deepestFolder));
        depth = Depth(document);
    });
    QCOMPARE(depth, deepestFolder);
}

void tst_DocumentDepth::brokenDeepJobOnSmallStack()
{
    bool isRead = true;
    RunOnStack(smallStack, [&] {
        QString text = Chain(deepestFolder);
        text.chop(1);
        isRead = ZTBatchDocument().Deserialize(text);
    });
    QVERIFY(!isRead);
}

QTEST_MAIN(tst_DocumentDepth)
#include "tst_documentdepth.moc"
