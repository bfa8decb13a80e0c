// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobTexts.h"
#include "ReadingTexts.h"

#include "ZTBatchDocument.h"
#include "ZTStyle.h"

#include <QTemporaryDir>
#include <QtTest>

/// Reading the input and the effects of a job, valid and invalid.
class tst_InputReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void inputNodes();
    void inputIsSorted();
    void inputOddities_data();
    void inputOddities();
    void fileCounts();
    void onlyTopLevelNodesHaveBookmarks();

    void effects();
    void effectOddities_data();
    void effectOddities();
};

void tst_InputReading::inputNodes()
{
    ZTBatchDocument document;
    QVERIFY(document.Deserialize(Job(QStringLiteral(
        "<input><inputElement inputText='t' inputInfo='i' fileName='/f' lastModification='m' type='0' toolTip='x'"
        " enabled='0' fileNodesCount='9'>"
        "<inputElement inputText='u' inputInfo='j' fileName='/f/g' lastModification='n' type='1'/>"
        "</inputElement></input>"))));
    const ZTBatchInputModel* const model = document.GetInputModel();
    const QModelIndex folder = model->index(0, 0);
    const BatchNodeData* data = model->getNodeData(folder);
    QCOMPARE(data->inputText, QStringLiteral("t"));
    QCOMPARE(data->inputInfo, QStringLiteral("i"));
    QCOMPARE(data->fileName, QStringLiteral("/f"));
    QCOMPARE(data->lastModification, QStringLiteral("m"));
    QCOMPARE(data->type, int(Folder));
    QCOMPARE(data->toolTip, QString());
    QCOMPARE(data->enabled, true);
    QCOMPARE(data->fileNodesCount, 1);
    data = model->getNodeData(model->index(0, 0, folder));
    QCOMPARE(data->inputText, QStringLiteral("u"));
    QCOMPARE(data->inputInfo, QStringLiteral("j"));
    QCOMPARE(data->fileName, QStringLiteral("/f/g"));
    QCOMPARE(data->lastModification, QStringLiteral("n"));
    QCOMPARE(data->type, int(File));
    QCOMPARE(data->enabled, true);
    QCOMPARE(data->fileNodesCount, 1);
}

void tst_InputReading::inputIsSorted()
{
    ZTBatchDocument document;
    QVERIFY(document.Deserialize(Job(QStringLiteral(
        "<input>"
        "<inputElement inputText='b' type='1' fileName='1'/><inputElement inputText='B' type='1' fileName='2'/>"
        "<inputElement inputText='b' type='1' fileName='3'/><inputElement inputText='z' type='0' fileName='4'>"
        "<inputElement inputText='y' type='1' fileName='5'/><inputElement inputText='x' type='0' fileName='6'/>"
        "</inputElement><inputElement inputText='a' type='0' fileName='7'/>"
        "</input>"))));
    QCOMPARE(InputLines(*document.GetInputModel()),
             (QStringList{QStringLiteral("0 a 7"), QStringLiteral("0 z 4"), QStringLiteral(" 0 x 6"),
                          QStringLiteral(" 1 y 5"), QStringLiteral("1 B 2"), QStringLiteral("1 b 1"),
                          QStringLiteral("1 b 3")}));
}

void tst_InputReading::inputOddities_data()
{
    QTest::addColumn<QString>("input");
    QTest::addColumn<QStringList>("nodes");

    const auto row = [](const char* name, const char* input, const QStringList& nodes) {
        QTest::newRow(name) << QString::fromLatin1(input) << nodes;
    };
    row("nothing", "", {});
    row("no attributes", "<inputElement/>", {QStringLiteral("0  ")});
    row("no type, so a folder", "<inputElement fileName='a'><inputElement type='1' fileName='b'/></inputElement>",
        {QStringLiteral("0  a"), QStringLiteral(" 1  b")});
    row("type that is no number", "<inputElement type='file'/>", {QStringLiteral("0  ")});
    row("type with blanks and sign", "<inputElement type=' +1 '/>", {QStringLiteral("1  ")});
    row("hexadecimal type", "<inputElement type='0x1'/>", {QStringLiteral("0  ")});
    row("type beyond int", "<inputElement type='4294967297'/>", {QStringLiteral("0  ")});
    row("unknown type", "<inputElement type='-3'/>", {QStringLiteral("-3  ")});
    row("children of a file", "<inputElement type='1' fileName='a'><inputElement type='1'/></inputElement>",
        {QStringLiteral("1  a")});
    row("other elements", "<InputElement/><inputelement/><other><inputElement/></other>text<!--c--><?p i?>", {});
    row("other elements between", "x<inputElement fileName='a'/>y<b/><inputElement fileName='c'/>",
        {QStringLiteral("0  a"), QStringLiteral("0  c")});
    row("namespaces mean nothing", "<n:inputElement/><inputElement xmlns='urn:x' fileName='a'/>",
        {QStringLiteral("0  a")});
    row("attributes in other case", "<inputElement FileName='a' filename='b'/>", {QStringLiteral("0  ")});
}

void tst_InputReading::inputOddities()
{
    QFETCH(QString, input);
    QFETCH(QStringList, nodes);

    ZTBatchDocument document;
    QVERIFY(document.Deserialize(Job(QLatin1String("<input>") + input + QLatin1String("</input>"))));
    QCOMPARE(InputLines(*document.GetInputModel()), nodes);
}

void tst_InputReading::fileCounts()
{
    ZTBatchDocument document;
    QVERIFY(document.Deserialize(
        Job(QStringLiteral("<input><inputElement type='1'/><inputElement inputText='outer'><inputElement type='2'/>"
                           "<inputElement inputText='inner'><inputElement type='1'/><inputElement type='1'/>"
                           "<inputElement inputText='empty'/></inputElement></inputElement></input>"))));
    ZTBatchInputModel* const model = document.GetInputModel();
    QCOMPARE(model->GetFileNodesCount(), 4);
    const QModelIndex outer = model->index(0, 0);
    QCOMPARE(model->getNodeData(outer)->fileNodesCount, 3);
    const QModelIndex inner = model->index(0, 0, outer);
    QCOMPARE(model->getNodeData(inner)->fileNodesCount, 2);
    QCOMPARE(model->getNodeData(model->index(0, 0, inner))->fileNodesCount, 0);
    model->removeRows(0, 1, outer);
    QCOMPARE(model->GetFileNodesCount(), 2);
}

void tst_InputReading::onlyTopLevelNodesHaveBookmarks()
{
    const QTemporaryDir folder;
    const QString path = folder.path();
    ZTBatchDocument document;
    QVERIFY(document.Deserialize(
        Job(QStringLiteral("<input><inputElement inputText='a' fileName='%1'><inputElement fileName='%1'/>"
                           "</inputElement><inputElement inputText='b' fileName='%1/nowhere'/>"
                           "<inputElement inputText='c'/></input>")
                .arg(path))));
    const ZTBatchInputModel* const model = document.GetInputModel();
    QCOMPARE(model->getNodeData(model->index(0, 0))->bookmark.Path(), path);
    QVERIFY(model->getNodeData(model->index(0, 0, model->index(0, 0)))->bookmark.IsEmpty());
    QVERIFY(model->getNodeData(model->index(1, 0))->bookmark.IsEmpty());
    QVERIFY(model->getNodeData(model->index(2, 0))->bookmark.IsEmpty());
}

void tst_InputReading::effects()
{
    ZTBatchDocument document;
    document.GetStyle()->AppendEffect(QStringLiteral("old"), QByteArray(), true);
    QVERIFY(document.Deserialize(Job(QStringLiteral("<style><effect UID='b' data='00ff' enabled='1'/>"
                                                    "<effect UID='a' data='' enabled='0'/></style>"))));
    QCOMPARE(EffectsOf(document), (QStringList{QStringLiteral("b 00ff on"), QStringLiteral("a  off")}));
}

void tst_InputReading::effectOddities_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<QStringList>("effects");

    const auto row = [](const char* name, const char* style, const QStringList& effects) {
        QTest::newRow(name) << QString::fromLatin1(style) << effects;
    };
    row("no identifier", "<effect data='00' enabled='1'/>", {});
    row("empty identifier", "<effect UID='' enabled='1'/><effect UID='a'/>", {QStringLiteral("a  off")});
    row("blank identifier", "<effect UID=' ' enabled='1'/>", {QStringLiteral("   on")});
    row("identifier in lower case", "<effect uid='a'/>", {});
    row("any number enables", "<effect UID='a' enabled='-2'/>", {QStringLiteral("a  on")});
    row("words do not enable", "<effect UID='a' enabled='true'/>", {QStringLiteral("a  off")});
    row("upper case data", "<effect UID='a' data='AbCd'/>", {QStringLiteral("a abcd off")});
    row("odd digits", "<effect UID='a' data='abc'/>", {QStringLiteral("a 0abc off")});
    row("what is no digit is skipped", "<effect UID='a' data='0 x1\xE9'/>", {QStringLiteral("a 01 off")});
    row("other elements", "<Effect UID='a'/><x><effect UID='b'/></x>text", {});
    row("effects in effects", "<effect UID='a'><effect UID='b'/></effect>", {QStringLiteral("a  off")});
}

void tst_InputReading::effectOddities()
{
    QFETCH(QString, style);
    QFETCH(QStringList, effects);

    ZTBatchDocument document;
    QVERIFY(document.Deserialize(Job(QLatin1String("<style>") + style + QLatin1String("</style>"))));
    QCOMPARE(EffectsOf(document), effects);
}

QTEST_GUILESS_MAIN(tst_InputReading)
#include "tst_inputreading.moc"
