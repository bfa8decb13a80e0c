#include "JobTexts.h"

#include "DebugLines.h"
#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"
#include "ZVApplication.h"

#include <QTemporaryDir>
#include <QThread>
#include <QtTest>

#include <functional>
#include <memory>

using Settings = ZTBatchOutputSettings;
using Change = std::function<void(Settings::Transformation&)>;
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Settings::ImageSize)
Q_DECLARE_METATYPE(Settings::Crop)

/// Tests of reading a document from texts that it did not write.
class tst_DocumentReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refused_data();
    void refused();
    void accepted_data();
    void accepted();
    void depthOnSmallStack();

    void replacesEverything();
    void keepsWhatIsNotInTheText();
    void missingSections();
    void modificationState();
    void signalsOfTheModel();

    void inputNodes();
    void inputIsSorted();
    void inputOddities_data();
    void inputOddities();
    void fileCounts();
    void onlyTopLevelNodesHaveBookmarks();

    void effects();
    void effectOddities_data();
    void effectOddities();

    void sectionsAnywhere_data();
    void sectionsAnywhere();
    void imageSize_data();
    void imageSize();
    void formatAndFolders();
    void naming();
    void namingIgnoresBadNumbers();
    void transformationDefaults();
    void transformationAttributes_data();
    void transformationAttributes();
    void missingTransformation();
    void crop_data();
    void crop();
    void profile();
    void outputSignals();

    void deletedWhileReading_data();
    void deletedWhileReading();
};

namespace {

QString Job(const QString& content)
{
    return QLatin1String("<!DOCTYPE batch><root name=\"x\">") + content + QLatin1String("</root>");
}

QString OutputJob(const QString& content)
{
    return Job(QLatin1String("<output>") + content + QLatin1String("</output>"));
}

QString Repeated(const char* text, int count)
{
    return QString::fromLatin1(text).repeated(count);
}

/// A document in which nothing is as it was made.
void Fill(ZTBatchDocument& document)
{
    document.SetDocumentName(QStringLiteral("name"));
    document.SetFileName(QStringLiteral("file"));
    document.SetGroupFilter(QStringLiteral("filter"));
    AddInput(document, File, QStringLiteral("/old/file"));
    AddInput(document, File, QStringLiteral("/old/folder/file"),
             AddInput(document, Folder, QStringLiteral("/old/folder")));
    document.GetStyle()->AppendEffect(QStringLiteral("old"), QByteArrayLiteral("old"), true);
    Settings* const settings = document.GetOutputSettings();
    settings->SetFormat(QStringLiteral("PNG"), QByteArrayLiteral("{}"));
    settings->SetPath(QStringLiteral("/old/out"));
    settings->SetICCProfile(QByteArrayLiteral("old"));
    settings->SetFolderStructure(Settings::StructureByCaptureDate);
    settings->SetPrefixSeparator(QStringLiteral("old-"));
    settings->SetSuffixSeparator(QStringLiteral("-old"));
    settings->SetNamingTemplate(Settings::PartMiddle, Settings::TemplateCaptureTime);
    settings->SetImageSizeSettings({1, 2, 3, 4.5, 6});
    settings->SetCropSettings({1, QSize(2, 3), 4});
    Settings::Transformation record;
    record.angle = 45;
    record.state = true;
    settings->SetTransformationSettings(record);
}

QStringList OutputOf(const ZTBatchDocument& document)
{
    const QStringList lines = ElementLines(document.Serialize(nullptr));
    return lines.mid(lines.indexOf(QStringLiteral(" output")));
}

QStringList EffectsOf(const ZTBatchDocument& document)
{
    QStringList effects;
    const ZTStyle* const style = document.GetStyle();
    for (int i = 0; i < style->GetEffectCount(); ++i) {
        effects.append(style->EffectAt(i) + QLatin1Char(' ') + QString::fromLatin1(style->DataAt(i).toHex()) +
                       (style->IsEnabled(i) ? QLatin1String(" on") : QLatin1String(" off")));
    }
    return effects;
}

void RunOnStack(uint bytes, const std::function<void()>& function)
{
    const std::unique_ptr<QThread> thread(QThread::create(function));
    thread->setStackSize(bytes);
    thread->start();
    thread->wait();
}

/// Elements in each other, `root` included.
QString Nested(int levels)
{
    return QLatin1String("<!DOCTYPE batch>") + Repeated("<root>", levels) + Repeated("</root>", levels);
}

} // namespace

void tst_DocumentReading::refused_data()
{
    QTest::addColumn<QString>("xml");
    QTest::addColumn<QString>("line");

    const QString error = QStringLiteral("[src\\ZTBatchDocument:552] Error to parse a document content.");
    const QString wrong = QStringLiteral("[src\\ZTBatchDocument:558] Wrong document.");
    const auto broken = [&](const char* name, const QString& xml) { QTest::newRow(name) << xml << error; };
    const auto other = [&](const char* name, const QString& xml) { QTest::newRow(name) << xml << wrong; };

    broken("null", QString());
    broken("empty", QStringLiteral(""));
    broken("blank", QStringLiteral(" \n"));
    broken("text", QStringLiteral("job"));
    broken("type only", QStringLiteral("<!DOCTYPE batch>"));
    broken("open", QStringLiteral("<!DOCTYPE batch><root>"));
    broken("crossed", QStringLiteral("<!DOCTYPE batch><root><input></root></input>"));
    broken("cut in an attribute", QStringLiteral("<!DOCTYPE batch><root name=\"x"));
    broken("no quotes", QStringLiteral("<!DOCTYPE batch><root name=x/>"));
    broken("less-than in an attribute", QStringLiteral("<!DOCTYPE batch><root name=\"<\"/>"));
    broken("two roots", QStringLiteral("<!DOCTYPE batch><root/><root/>"));
    broken("noncharacter", QStringLiteral("<!DOCTYPE batch><root name=\"") + QChar(0xFFFF) + QStringLiteral("\"/>"));
    broken("one level too deep", Nested(16385));
    broken("far too deep", Nested(1000000));
    broken("far too deep and open", QLatin1String("<!DOCTYPE batch>") + Repeated("<root>", 1000000));
    broken("deep behind quoted ends",
           QLatin1String("<!DOCTYPE batch>") + Repeated("<root a='/>'>", 100000) + Repeated("</root>", 100000));
    broken("deep behind comments",
           QLatin1String("<!DOCTYPE batch>") + Repeated("<root><!--</root>-->", 100000) + Repeated("</root>", 100000));
    broken("deep behind CDATA", QLatin1String("<!DOCTYPE batch>") + Repeated("<root><![CDATA[</root>]]>", 100000) +
                                    Repeated("</root>", 100000));
    broken("deep behind instructions",
           QLatin1String("<!DOCTYPE batch>") + Repeated("<root><?p </root>?>", 100000) + Repeated("</root>", 100000));
    broken("wide and too deep", QLatin1String("<!DOCTYPE batch><root>") + Repeated("<a/>", 100000) +
                                    Repeated("<a>", 16384) + Repeated("</a>", 16384) + QLatin1String("</root>"));
    broken("deep content model", QLatin1String("<!DOCTYPE batch [<!ELEMENT root ") + Repeated("(", 1000000) +
                                     QLatin1String("a") + Repeated(")", 1000000) + QLatin1String(">]><root/>"));
    broken("entity", QStringLiteral("<!DOCTYPE batch [<!ENTITY e 'x'>]><root/>"));
    broken("parameter entity", QStringLiteral("<!DOCTYPE batch [<!ENTITY % e 'x'>]><root/>"));
    broken("entity of itself", QStringLiteral("<!DOCTYPE batch [<!ENTITY e '&e;'>]><root>&e;</root>"));
    QString laughs = QStringLiteral("<!DOCTYPE batch [<!ENTITY e0 'ha'>");
    for (int i = 1; i < 12; ++i) {
        laughs += QStringLiteral("<!ENTITY e%1 '%2'>").arg(i).arg(QStringLiteral("&e%1;").arg(i - 1).repeated(10));
    }
    broken("entities of entities", laughs + QLatin1String("]><root>&e11;</root>"));
    broken("entities of entities in an attribute", laughs + QLatin1String("]><root name='&e11;'/>"));
    broken("long entity, often", QLatin1String("<!DOCTYPE batch [<!ENTITY e '") + Repeated("x", 4000) +
                                     QLatin1String("'>]><root>") + Repeated("&e;", 100000) + QLatin1String("</root>"));
    broken("deep entity", QLatin1String("<!DOCTYPE batch [<!ENTITY e '") + Repeated("<a>", 2000) +
                              Repeated("</a>", 2000) + QLatin1String("'>]><root>&e;</root>"));

    other("no type", QStringLiteral("<root/>"));
    other("other case", QStringLiteral("<!DOCTYPE Batch><root/>"));
    other("longer", QStringLiteral("<!DOCTYPE batches><root/>"));
    other("shorter", QStringLiteral("<!DOCTYPE bat><root/>"));
    other("another type", QStringLiteral("<!DOCTYPE html><batch/>"));
    other("type in a comment", QStringLiteral("<!--<!DOCTYPE batch>--><root/>"));
}

void tst_DocumentReading::refused()
{
    QFETCH(QString, xml);
    QFETCH(QString, line);

    ZTBatchDocument document;
    Fill(document);
    for (const int state : {0, 1}) {
        document.SetModificationState(state);
        const QStringList before = StateOf(document);
        const QModelIndex index = document.GetInputModel()->index(0, 0);
        QSignalSpy states(&document, &ZTBatchDocument::ModificationStateChanged);
        QSignalSpy names(&document, &ZTBatchDocument::DocumentNameChanged);
        QSignalSpy removals(document.GetInputModel(), &QAbstractItemModel::rowsAboutToBeRemoved);
        QSignalSpy updates(document.GetInputModel(), &ZTBatchInputModel::ModelUpdated);
        DebugLines lines;

        QVERIFY(!document.Deserialize(xml));
        QCOMPARE(lines.All(), QStringList{line});
        QCOMPARE(StateOf(document), before);
        QCOMPARE(document.GetInputModel()->index(0, 0), index);
        QCOMPARE(states.count() + names.count() + removals.count() + updates.count(), 0);
    }
}

void tst_DocumentReading::accepted_data()
{
    QTest::addColumn<QString>("xml");

    const auto row = [](const char* name, const QString& xml) { QTest::newRow(name) << xml; };
    row("shortest", QStringLiteral("<!DOCTYPE batch><a/>"));
    row("declaration and comments",
        QStringLiteral(
            "<?xml version='1.0' encoding='UTF-8'?>\n<!--a-->\n<!DOCTYPE batch >\n<!--b--><root/><!--c-->\n"));
    row("system identifier", QStringLiteral("<!DOCTYPE batch SYSTEM 'batch.dtd'><root/>"));
    row("public identifier", QStringLiteral("<!DOCTYPE batch PUBLIC '-//x//y' 'batch.dtd'><root/>"));
    row("declarations of elements",
        QStringLiteral("<!DOCTYPE batch [<!ELEMENT root (a,(b|c)*)><!ATTLIST root name CDATA #IMPLIED>]><root/>"));
    row("parentheses without declarations",
        Job(QLatin1String("<input>") + Repeated("<!--((((-->", 5000) + QLatin1String("</input>")));
    row("many siblings", Job(Repeated("<a/>", 5000)));
    row("deep, but not all at once", Job((Repeated("<a>", 900) + Repeated("</a>", 900)).repeated(3)));
    row("as deep as may be", Nested(16384));
    row("character references", QStringLiteral("<!DOCTYPE batch><root name='&#65;&lt;&amp;'/>"));
}

void tst_DocumentReading::accepted()
{
    QFETCH(QString, xml);

    ZTBatchDocument document;
    const DebugLines lines;
    QVERIFY(document.Deserialize(xml));
    QCOMPARE(lines.All(), QStringList());
}

void tst_DocumentReading::depthOnSmallStack()
{
    bool shallow = false;
    bool deepest = false;
    bool tooDeep = true;
    bool model = true;
    RunOnStack(512 * 1024, [&] {
        ZTBatchDocument document;
        const DebugLines lines;
        shallow = document.Deserialize(Nested(1000));
        deepest = document.Deserialize(Nested(16384));
        tooDeep = document.Deserialize(Nested(100000));
        model = document.Deserialize(QLatin1String("<!DOCTYPE batch [<!ELEMENT root ") + Repeated("(", 1001) +
                                     QLatin1String("a") + Repeated(")", 1001) + QLatin1String(">]><root/>"));
    });
    QVERIFY(shallow);
    QVERIFY(deepest);
    QVERIFY(!tooDeep);
    QVERIFY(!model);
}

void tst_DocumentReading::replacesEverything()
{
    ZTBatchDocument source;
    AddInput(source, File, QStringLiteral("/new"));
    source.GetStyle()->AppendEffect(QStringLiteral("new"), QByteArrayLiteral("new"), false);

    ZTBatchDocument document;
    Fill(document);
    QVERIFY(document.Deserialize(source.Serialize(nullptr)));
    document.SetDocumentName(QString());
    QCOMPARE(document.Serialize(nullptr), source.Serialize(nullptr));
    QCOMPARE(InputLines(*document.GetInputModel()), QStringList{QStringLiteral("1 /new /new")});
    QCOMPARE(EffectsOf(document), QStringList{QStringLiteral("new 6e6577 off")});
}

void tst_DocumentReading::keepsWhatIsNotInTheText()
{
    ZTBatchDocument document;
    Fill(document);
    QSignalSpy names(&document, &ZTBatchDocument::DocumentNameChanged);
    QVERIFY(document.Deserialize(Job(QString())));
    QCOMPARE(document.GetDocumentName(), QStringLiteral("name"));
    QCOMPARE(document.GetFileName(), QStringLiteral("file"));
    QCOMPARE(document.GetGroupFilter(), QStringLiteral("filter"));
    QCOMPARE(names.count(), 0);
}

void tst_DocumentReading::missingSections()
{
    ZTBatchDocument document;
    Fill(document);
    const QStringList output = OutputOf(document);
    QSignalSpy updates(document.GetInputModel(), &ZTBatchInputModel::ModelUpdated);
    QVERIFY(document.Deserialize(Job(QString())));
    QCOMPARE(document.GetInputModel()->rowCount(), 0);
    QCOMPARE(updates.count(), 0);
    QCOMPARE(EffectsOf(document), QStringList());
    QCOMPARE(OutputOf(document), output);

    // An output without sections leaves some settings and resets three.
    QVERIFY(document.Deserialize(OutputJob(QString())));
    const Settings* const settings = document.GetOutputSettings();
    QVERIFY((settings->GetImageSizeSettings() == Settings::ImageSize{1, 2, 3, 4.5, 6}));
    QString format;
    QByteArray options;
    settings->GetFormat(format, options);
    QCOMPARE(format, QStringLiteral("PNG"));
    QCOMPARE(options, QByteArrayLiteral("{}"));
    QCOMPARE(settings->GetPath(), QStringLiteral("/old/out"));
    QCOMPARE(settings->GetFolderStructure(), Settings::StructureByCaptureDate);
    QCOMPARE(settings->GetPrefixSeparator(), QStringLiteral("old-"));
    QCOMPARE(settings->GetNamingTemplate(Settings::PartMiddle), Settings::TemplateCaptureTime);
    QVERIFY((settings->GetCropSettings() == Settings::Crop{132, QSize(800, 600), 0}));
    QCOMPARE(settings->GetICCProfile(), QByteArray());
    QCOMPARE(settings->GetTransformationSettings().angle, 0);
}

void tst_DocumentReading::modificationState()
{
    ZTBatchDocument document;
    QSignalSpy states(&document, &ZTBatchDocument::ModificationStateChanged);

    // Nothing changes, and 0 is announced.
    QVERIFY(document.Deserialize(Job(QString())));
    QCOMPARE(states, (QList<QVariantList>{{0}}));
    states.clear();

    // The change comes first.
    QVERIFY(document.Deserialize(Job(QStringLiteral("<input><inputElement/></input>"))));
    QCOMPARE(states, (QList<QVariantList>{{1}, {0}}));
    QCOMPARE(document.ModificationState(), 0);
    states.clear();

    // A value of the host stays until the end.
    document.SetModificationState(7);
    states.clear();
    QVERIFY(document.Deserialize(Job(QString())));
    QCOMPARE(states, (QList<QVariantList>{{0}}));

    document.GetOutputSettings()->SetPath(QStringLiteral("/x"));
    QCOMPARE(document.ModificationState(), 1);
}

void tst_DocumentReading::signalsOfTheModel()
{
    ZTBatchDocument document;
    AddInput(document, File, QStringLiteral("/old"));
    QStringList log;
    ZTBatchInputModel* const model = document.GetInputModel();
    connect(model, &QAbstractItemModel::rowsRemoved, this, [&](const QModelIndex&, int first, int last) {
        log.append(QStringLiteral("removed %1-%2").arg(first).arg(last));
    });
    connect(model, &QAbstractItemModel::rowsInserted, this,
            [&](const QModelIndex&, int first) { log.append(QStringLiteral("inserted %1").arg(first)); });
    connect(model, &ZTBatchInputModel::FolderInserted, this, [&] { log.append(QStringLiteral("folder")); });
    connect(model, &ZTBatchInputModel::ModelUpdated, this, [&] { log.append(QStringLiteral("updated")); });
    connect(&document, &ZTBatchDocument::ModificationStateChanged, this,
            [&](int state) { log.append(QStringLiteral("state %1").arg(state)); });
    document.SetModificationState(0);
    log.clear();

    QVERIFY(document.Deserialize(Job(QStringLiteral("<input><inputElement type='1'/>"
                                                    "<inputElement><inputElement/></inputElement></input>"))));
    QCOMPARE(log, (QStringList{QStringLiteral("state 1"), QStringLiteral("removed 0-0"), QStringLiteral("inserted 0"),
                               QStringLiteral("folder"), QStringLiteral("inserted 1"), QStringLiteral("updated"),
                               QStringLiteral("state 0")}));
    log.clear();
    QVERIFY(document.Deserialize(Job(QStringLiteral("<input/>"))));
    QCOMPARE(log, (QStringList{QStringLiteral("state 1"), QStringLiteral("removed 0-1"), QStringLiteral("updated"),
                               QStringLiteral("state 0")}));
}

void tst_DocumentReading::inputNodes()
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

void tst_DocumentReading::inputIsSorted()
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

void tst_DocumentReading::inputOddities_data()
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

void tst_DocumentReading::inputOddities()
{
    QFETCH(QString, input);
    QFETCH(QStringList, nodes);

    ZTBatchDocument document;
    QVERIFY(document.Deserialize(Job(QLatin1String("<input>") + input + QLatin1String("</input>"))));
    QCOMPARE(InputLines(*document.GetInputModel()), nodes);
}

void tst_DocumentReading::fileCounts()
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

void tst_DocumentReading::onlyTopLevelNodesHaveBookmarks()
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

void tst_DocumentReading::effects()
{
    ZTBatchDocument document;
    document.GetStyle()->AppendEffect(QStringLiteral("old"), QByteArray(), true);
    QVERIFY(document.Deserialize(Job(QStringLiteral("<style><effect UID='b' data='00ff' enabled='1'/>"
                                                    "<effect UID='a' data='' enabled='0'/></style>"))));
    QCOMPARE(EffectsOf(document), (QStringList{QStringLiteral("b 00ff on"), QStringLiteral("a  off")}));
}

void tst_DocumentReading::effectOddities_data()
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

void tst_DocumentReading::effectOddities()
{
    QFETCH(QString, style);
    QFETCH(QStringList, effects);

    ZTBatchDocument document;
    QVERIFY(document.Deserialize(Job(QLatin1String("<style>") + style + QLatin1String("</style>"))));
    QCOMPARE(EffectsOf(document), effects);
}

void tst_DocumentReading::sectionsAnywhere_data()
{
    QTest::addColumn<QString>("xml");

    const auto row = [](const char* name, const char* xml) {
        QTest::newRow(name) << QLatin1String("<!DOCTYPE batch>") + QString::fromLatin1(xml);
    };
    row("in their places", "<root><input><inputElement fileName='a'/></input><style><effect UID='e'/></style>"
                           "<output><folder fileName='o'/></output></root>");
    row("other order", "<root><output><folder fileName='o'/></output><style><effect UID='e'/></style>"
                       "<input><inputElement fileName='a'/></input></root>");
    row("other root", "<x><input><inputElement fileName='a'/></input><style><effect UID='e'/></style>"
                      "<output><folder fileName='o'/></output></x>");
    row("deep", "<root><x><y/><input><inputElement fileName='a'/></input></x><x><x><style><effect UID='e'/></style>"
                "</x></x><x><output><x><y><folder fileName='o'/></y></x></output></x></root>");
    row("the first wins", "<root><x><input><inputElement fileName='a'/></input></x>"
                          "<input><inputElement fileName='b'/></input><style><effect UID='e'/></style><style/>"
                          "<output><x><folder fileName='o'/></x><folder fileName='p'/></output>"
                          "<output><folder fileName='q'/></output></root>");
    row("in each other", "<input><inputElement fileName='a'/><style><effect UID='e'/><output><folder fileName='o'/>"
                         "</output></style></input>");
    row("root is a section", "<output><folder fileName='o'/><input><inputElement fileName='a'/></input>"
                             "<style><effect UID='e'/></style></output>");
    row("an outer output before an inner one",
        "<root><output><output><folder fileName='o'/></output></output><folder fileName='p'/>"
        "<input><inputElement fileName='a'/></input><style><effect UID='e'/></style></root>");
    row("sections outside the output do not count",
        "<root><folder fileName='p'/><input><inputElement fileName='a'/><folder fileName='p'/></input>"
        "<style><effect UID='e'/></style><output><folder fileName='o'/></output></root>");
}

void tst_DocumentReading::sectionsAnywhere()
{
    QFETCH(QString, xml);

    ZTBatchDocument document;
    QVERIFY(document.Deserialize(xml));
    QCOMPARE(InputLines(*document.GetInputModel()), QStringList{QStringLiteral("0  a")});
    QCOMPARE(EffectsOf(document), QStringList{QStringLiteral("e  off")});
    QCOMPARE(document.GetOutputSettings()->GetPath(), QStringLiteral("o"));
}

void tst_DocumentReading::imageSize_data()
{
    QTest::addColumn<QString>("attributes");
    QTest::addColumn<Settings::ImageSize>("expected");

    const auto row = [](const char* name, const char* attributes, const Settings::ImageSize& expected) {
        QTest::newRow(name) << QString::fromLatin1(attributes) << expected;
    };
    row("nothing", "", {0, 0, 2, 800.0, 0});
    row("everything", "restriction='1' size='1.5' side='3' unit='4' resolution='72'", {1, 4, 3, 1.5, 72});
    row("no restriction, so nothing else", "restriction='0' size='1.5' side='3' unit='4' resolution='72'",
        {0, 0, 2, 800.0, 72});
    row("restriction that is no number", "restriction='x' size='1.5' resolution='72'", {0, 0, 2, 800.0, 72});
    row("restriction alone", "restriction='2'", {2, 0, 0, 0.0, 0});
    row("negative", "restriction='-1' size='-1e3' side='-1' unit='-1' resolution='-1'", {-1, -1, -1, -1000.0, -1});
    row("size that is no number", "restriction='1' size='1,5' side='1.5' unit='' resolution='1e2'", {1, 0, 0, 0.0, 0});
}

void tst_DocumentReading::imageSize()
{
    QFETCH(QString, attributes);
    QFETCH(Settings::ImageSize, expected);

    ZTBatchDocument document;
    Fill(document);
    QVERIFY(document.Deserialize(OutputJob(QStringLiteral("<imageSize %1/>").arg(attributes))));
    const Settings::ImageSize actual = document.GetOutputSettings()->GetImageSizeSettings();
    QCOMPARE(actual.restriction, expected.restriction);
    QCOMPARE(actual.unit, expected.unit);
    QCOMPARE(actual.side, expected.side);
    QCOMPARE(actual.size, expected.size);
    QCOMPARE(actual.resolution, expected.resolution);
}

void tst_DocumentReading::formatAndFolders()
{
    ZTBatchDocument document;
    const Settings* const settings = document.GetOutputSettings();
    QString format;
    QByteArray options;
    QVERIFY(document.Deserialize(OutputJob(QStringLiteral(
        "<imageFormat format='TIFF' data='00fe'/><folder fileName='/o'/><folderStructure type='-4'/>"))));
    settings->GetFormat(format, options);
    QCOMPARE(format, QStringLiteral("TIFF"));
    QCOMPARE(options, QByteArray("\0\xFE", 2));
    QCOMPARE(settings->GetPath(), QStringLiteral("/o"));
    QCOMPARE(int(settings->GetFolderStructure()), -4);

    // Sections without attributes are not missing sections.
    QVERIFY(document.Deserialize(OutputJob(QStringLiteral("<imageFormat/><folder/><folderStructure/>"))));
    settings->GetFormat(format, options);
    QCOMPARE(format, QString());
    QCOMPARE(options, QByteArray());
    QCOMPARE(settings->GetPath(), QString());
    QCOMPARE(settings->GetFolderStructure(), Settings::StructureFlat);
}

void tst_DocumentReading::naming()
{
    ZTBatchDocument document;
    Fill(document);
    const Settings* const settings = document.GetOutputSettings();
    QVERIFY(document.Deserialize(
        OutputJob(QStringLiteral("<naming prefixSeparator='p' suffixSeparator='s'>"
                                 "<prefix type='4' name='text' startAt='9' count='9'/>"
                                 "<x><middle type='1'/></x><Suffix type='0'/><ERRORNAMINGTAG type='0'/>text"
                                 "<suffix type='1' name='ignored' startAt='12' count='5'/>"
                                 "</naming>"))));
    QCOMPARE(settings->GetPrefixSeparator(), QStringLiteral("p"));
    QCOMPARE(settings->GetSuffixSeparator(), QStringLiteral("s"));
    QCOMPARE(settings->GetNamingTemplate(Settings::PartPrefix), Settings::TemplateCustomText);
    QCOMPARE(settings->GetCustomTemplate(Settings::PartPrefix), QStringLiteral("text"));
    QCOMPARE(settings->GetStartNumber(Settings::PartPrefix), 0);
    QCOMPARE(settings->GetDigitsCount(Settings::PartPrefix), 1);
    QCOMPARE(settings->GetNamingTemplate(Settings::PartMiddle), Settings::TemplateCaptureTime);
    QCOMPARE(settings->GetNamingTemplate(Settings::PartSuffix), Settings::TemplateNumber);
    QCOMPARE(settings->GetCustomTemplate(Settings::PartSuffix), QString());
    QCOMPARE(settings->GetStartNumber(Settings::PartSuffix), 12);
    QCOMPARE(settings->GetDigitsCount(Settings::PartSuffix), 5);

    // A part named twice: each is taken, one after the other.
    QVERIFY(document.Deserialize(OutputJob(QStringLiteral(
        "<naming><prefix type='1' startAt='3' count='2'/><prefix type='7' startAt='8'/><middle/></naming>"))));
    QCOMPARE(settings->GetPrefixSeparator(), QString());
    QCOMPARE(settings->GetSuffixSeparator(), QString());
    QCOMPARE(int(settings->GetNamingTemplate(Settings::PartPrefix)), 7);
    QCOMPARE(settings->GetStartNumber(Settings::PartPrefix), 3);
    QCOMPARE(settings->GetDigitsCount(Settings::PartPrefix), 2);
    QCOMPARE(settings->GetNamingTemplate(Settings::PartMiddle), Settings::TemplateOriginalName);
}

void tst_DocumentReading::namingIgnoresBadNumbers()
{
    ZTBatchDocument document;
    const Settings* const settings = document.GetOutputSettings();
    QVERIFY(document.Deserialize(
        OutputJob(QStringLiteral("<naming><prefix type='1' startAt='-1' count='0'/><suffix type='1'/></naming>"))));
    QCOMPARE(settings->GetStartNumber(Settings::PartPrefix), 0);
    QCOMPARE(settings->GetDigitsCount(Settings::PartPrefix), 1);
    // A missing number reads as 0: a start, but no count.
    QCOMPARE(settings->GetStartNumber(Settings::PartSuffix), 0);
    QCOMPARE(settings->GetDigitsCount(Settings::PartSuffix), 3);
}

void tst_DocumentReading::transformationDefaults()
{
    ZVApplication::SetTexturePatternIndex(6);
    ZTBatchDocument document;
    Fill(document);
    QVERIFY(document.Deserialize(OutputJob(QStringLiteral("<transformation/>"))));
    ZVApplication::SetTexturePatternIndex(0);

    const Settings::Transformation actual = document.GetOutputSettings()->GetTransformationSettings();
    QCOMPARE(actual.state, false);
    QCOMPARE(actual.angle, 0);
    QCOMPARE(actual.blending, 0);
    QCOMPARE(actual.opacity, 1.0);
    QCOMPARE(actual.margins, QMargins(0, 0, 0, 0));
    QCOMPARE(actual.shadowEnabled, false);
    QCOMPARE(actual.shadowMode, 0);
    QCOMPARE(actual.shadowOpacity, 1.0);
    QCOMPARE(actual.shadowAngle, 0);
    QCOMPARE(actual.shadowDistance, 5);
    QCOMPARE(actual.shadowSize, 5);
    QCOMPARE(actual.shadowColor, QColor(Qt::black));
    QCOMPARE(actual.backgroundType, 0);
    QCOMPARE(actual.backgroundColor, QColor(Qt::black));
    QVERIFY((actual.backgroundPattern == std::array<int, 3>{6, 0, 0}));
    QCOMPARE(actual.backgroundImage, QString());
    QCOMPARE(actual.backgroundOpacity, 1.0);
    QCOMPARE(actual.backgroundCustomOutput, false);
    QCOMPARE(actual.backgroundCustomSize, QSize(800, 600));
    QVERIFY(actual.backgroundImageData.isNull());
}

void tst_DocumentReading::transformationAttributes_data()
{
    QTest::addColumn<QString>("attribute");
    QTest::addColumn<Change>("change");

    const auto row = [](const char* attribute, const Change& change) {
        QTest::newRow(attribute) << QString::fromLatin1(attribute) << change;
    };
    using Record = Settings::Transformation;
    row("State='1'", [](Record& r) { r.state = true; });
    row("State='-1'", [](Record& r) { r.state = true; });
    row("State='true'", [](Record&) {});
    row("Angle='-90'", [](Record& r) { r.angle = -90; });
    row("Angle='1.5'", [](Record&) {});
    row("Blending='8'", [](Record& r) { r.blending = 8; });
    row("Blending='-1'", [](Record&) {});
    row("Blending='4294967295'", [](Record& r) { r.blending = -1; });
    row("Blending='4294967296'", [](Record&) {});
    row("Opacity='0.25'", [](Record& r) { r.opacity = 0.25; });
    row("Opacity='1e-3'", [](Record& r) { r.opacity = 0.001; });
    row("Opacity='0,5'", [](Record& r) { r.opacity = 0.0; });
    row("Opacity=''", [](Record& r) { r.opacity = 0.0; });
    row("Margins='1 2 3 4'", [](Record& r) { r.margins = QMargins(1, 2, 3, 4); });
    row("Margins=' 1  -2\n3 4 5'", [](Record& r) { r.margins = QMargins(1, -2, 3, 4); });
    row("Margins='1 2'", [](Record& r) { r.margins = QMargins(1, 2, 0, 0); });
    row("Margins='1 x 3 4'", [](Record& r) { r.margins = QMargins(1, 0, 0, 0); });
    row("Margins='x'", [](Record&) {});
    row("ShadowEnabled='1'", [](Record& r) { r.shadowEnabled = true; });
    row("ShadowMode='1'", [](Record& r) { r.shadowMode = 1; });
    row("ShadowOpacity='0'", [](Record& r) { r.shadowOpacity = 0.0; });
    row("ShadowAngle='7'", [](Record& r) { r.shadowAngle = 7; });
    row("ShadowDistance='x'", [](Record& r) { r.shadowDistance = 0; });
    row("ShadowSize='-7'", [](Record& r) { r.shadowSize = -7; });
    row("ShadowColor='#fF0001'", [](Record& r) { r.shadowColor = QColor(255, 0, 1); });
    row("ShadowColor='red'", [](Record& r) { r.shadowColor = QColor(Qt::red); });
    row("ShadowColor=''", [](Record& r) { r.shadowColor = QColor(); });
    row("BackgroundType='2'", [](Record& r) { r.backgroundType = 2; });
    row("BackgroundColor='#123456'", [](Record& r) { r.backgroundColor = QColor(0x12, 0x34, 0x56); });
    row("BackgroundPattern='7 8 9'", [](Record& r) { r.backgroundPattern = {7, 8, 9}; });
    row("BackgroundPattern='7'", [](Record& r) { r.backgroundPattern = {7, 0, 0}; });
    row("BackgroundPattern=''", [](Record&) {});
    row("BackgroundImage='/b'", [](Record& r) { r.backgroundImage = QStringLiteral("/b"); });
    row("BackgroundOpacity='0.5'", [](Record& r) { r.backgroundOpacity = 0.5; });
    row("BackgroundCustomOutput='1'", [](Record& r) { r.backgroundCustomOutput = true; });
    row("BackgroundCustomWidth='1'", [](Record& r) { r.backgroundCustomSize.setWidth(1); });
    row("BackgroundCustomHeight='-1'", [](Record& r) { r.backgroundCustomSize.setHeight(-1); });
}

/// Each row is one attribute, without the beginning of its name that all share.
void tst_DocumentReading::transformationAttributes()
{
    QFETCH(QString, attribute);
    QFETCH(Change, change);

    Settings::Transformation expected;
    expected.margins = QMargins();
    expected.shadowEnabled = false;
    expected.shadowOpacity = 1.0;
    change(expected);
    ZTBatchDocument document;
    Fill(document);
    QVERIFY(document.Deserialize(OutputJob(QStringLiteral("<transformation transformation%1/>").arg(attribute))));
    const Settings::Transformation actual = document.GetOutputSettings()->GetTransformationSettings();
    QVERIFY2(actual == expected, qPrintable(OutputOf(document).join(QLatin1Char('\n'))));
}

/// Differs from a section without attributes in the shadow's opacity and the pattern.
void tst_DocumentReading::missingTransformation()
{
    ZVApplication::SetTexturePatternIndex(6);
    ZTBatchDocument document;
    Fill(document);
    QVERIFY(document.Deserialize(OutputJob(QString())));
    ZVApplication::SetTexturePatternIndex(0);

    Settings::Transformation expected;
    expected.margins = QMargins(0, 0, 0, 0);
    expected.shadowEnabled = false;
    QVERIFY(document.GetOutputSettings()->GetTransformationSettings() == expected);
}

void tst_DocumentReading::crop_data()
{
    QTest::addColumn<QString>("section");
    QTest::addColumn<Settings::Crop>("expected");

    const auto row = [](const char* name, const char* section, const Settings::Crop& expected) {
        QTest::newRow(name) << QString::fromLatin1(section) << expected;
    };
    row("missing", "", {132, QSize(800, 600), 0});
    row("nothing", "<crop/>", {132, QSize(800, 600), 0});
    row("everything", "<crop cropAlignment='33' cropWidth='-3' cropHeight='2' cropType='4'/>", {33, QSize(-3, 2), 4});
    row("older job", "<crop cropEnabled='1' cropWidth='3' cropHeight='2'/>", {132, QSize(3, 2), 5});
    row("older job with a type", "<crop cropEnabled='1' cropType='2'/>", {132, QSize(800, 600), 5});
    row("older job, any number", "<crop cropEnabled='-1' cropType='2'/>", {132, QSize(800, 600), 5});
    row("older job without crop", "<crop cropEnabled='0' cropType='2'/>", {132, QSize(800, 600), 2});
    row("older job, no number", "<crop cropEnabled='yes' cropType='2'/>", {132, QSize(800, 600), 2});
    row("no numbers", "<crop cropAlignment='x' cropWidth='' cropHeight='1.0' cropType='z'/>", {0, QSize(0, 0), 0});
}

void tst_DocumentReading::crop()
{
    QFETCH(QString, section);
    QFETCH(Settings::Crop, expected);

    ZTBatchDocument document;
    Fill(document);
    QVERIFY(document.Deserialize(OutputJob(section)));
    const Settings::Crop actual = document.GetOutputSettings()->GetCropSettings();
    QCOMPARE(actual.alignment, expected.alignment);
    QCOMPARE(actual.size, expected.size);
    QCOMPARE(actual.type, expected.type);
}

void tst_DocumentReading::profile()
{
    ZTBatchDocument document;
    QVERIFY(document.Deserialize(OutputJob(QStringLiteral("<advancedOutput ICCProfile='00ff7f'/>"))));
    QCOMPARE(document.GetOutputSettings()->GetICCProfile(), QByteArray("\0\xFF\x7F", 3));
    QVERIFY(document.Deserialize(OutputJob(QStringLiteral("<advancedOutput/>"))));
    QCOMPARE(document.GetOutputSettings()->GetICCProfile(), QByteArray());
}

void tst_DocumentReading::outputSignals()
{
    ZTBatchDocument document;
    QStringList log;
    const auto note = [&](const char* name) { return [&log, name] { log.append(QString::fromLatin1(name)); }; };
    const Settings* const settings = document.GetOutputSettings();
    connect(settings, &Settings::RestrictionChanged, this, note("size"));
    connect(settings, &Settings::FormatChanged, this, note("format"));
    connect(settings, &Settings::PathChanged, this, note("path"));
    connect(settings, &Settings::FolderStructureChanged, this, note("structure"));
    connect(settings, &Settings::PrefixSeparatorChanged, this, note("suffix separator"));
    connect(settings, &Settings::SuffixSeparatorChanged, this, note("prefix separator"));
    connect(settings, &Settings::NamingChanged, this, note("naming"));
    connect(settings, &Settings::TransformationChanged, this, note("transformation"));
    connect(settings, &Settings::CropChanged, this, note("crop"));
    connect(settings, &Settings::AdvancedSettingsChanged, this, note("profile"));
    const QString job = OutputJob(QStringLiteral(
        "<advancedOutput/><crop cropType='1'/><transformation/>"
        "<naming prefixSeparator='p' suffixSeparator='s'><middle type='1' startAt='5' count='4'/></naming>"
        "<folderStructure type='1'/><folder fileName='f'/><imageFormat format='x'/><imageSize/>"));
    QVERIFY(document.Deserialize(job));
    QCOMPARE(log, (QStringList{QStringLiteral("size"), QStringLiteral("format"), QStringLiteral("path"),
                               QStringLiteral("structure"), QStringLiteral("prefix separator"),
                               QStringLiteral("suffix separator"), QStringLiteral("naming"), QStringLiteral("naming"),
                               QStringLiteral("naming"), QStringLiteral("transformation"), QStringLiteral("crop"),
                               QStringLiteral("profile")}));
    log.clear();
    QVERIFY(document.Deserialize(job));
    QCOMPARE(log, QStringList{QStringLiteral("profile")});
}

void tst_DocumentReading::deletedWhileReading_data()
{
    QTest::addColumn<QByteArray>("sender");
    QTest::addColumn<QByteArray>("signal");

    const auto row = [](const char* sender, const char* signal) {
        QTest::addRow("%s %s", sender, signal + 1) << QByteArray(sender) << QByteArray(signal);
    };
    row("model", SIGNAL(rowsRemoved(QModelIndex, int, int)));
    row("model", SIGNAL(rowsInserted(QModelIndex, int, int)));
    row("model", SIGNAL(FolderInserted(QModelIndex)));
    row("model", SIGNAL(ModelUpdated()));
    row("settings", SIGNAL(RestrictionChanged()));
    row("settings", SIGNAL(FormatChanged()));
    row("settings", SIGNAL(PathChanged()));
    row("settings", SIGNAL(FolderStructureChanged()));
    row("settings", SIGNAL(SuffixSeparatorChanged()));
    row("settings", SIGNAL(PrefixSeparatorChanged()));
    row("settings", SIGNAL(NamingChanged()));
    row("settings", SIGNAL(TransformationChanged()));
    row("settings", SIGNAL(CropChanged()));
    row("settings", SIGNAL(AdvancedSettingsChanged()));
    row("document", SIGNAL(ModificationStateChanged(int)));
}

/// Deletes an object when it is told to.
class Executioner : public QObject
{
    Q_OBJECT

public:
    explicit Executioner(QObject* victim)
        : victim(victim)
    {
    }

public Q_SLOTS:
    void Execute() { delete victim; }

private:
    QPointer<QObject> victim;
};

void tst_DocumentReading::deletedWhileReading()
{
    QFETCH(QByteArray, sender);
    QFETCH(QByteArray, signal);

    const QPointer<ZTBatchDocument> document(new ZTBatchDocument);
    Fill(*document);
    QObject* const emitter = sender == "model"      ? static_cast<QObject*>(document->GetInputModel())
                             : sender == "settings" ? static_cast<QObject*>(document->GetOutputSettings())
                                                    : document.data();
    const QString job =
        Job(QStringLiteral("<input><inputElement/><inputElement/></input><style><effect UID='a'/></style>"
                           "<output><imageSize/><imageFormat/><folder/><folderStructure/><naming>"
                           "<prefix type='1' startAt='3' count='3'/><suffix type='4' name='x'/></naming>"
                           "<transformation/><crop/><advancedOutput/></output>"));
    Executioner executioner(document);
    QVERIFY(connect(emitter, signal.constData(), &executioner, SLOT(Execute())));
    QVERIFY(document->Deserialize(job));
    QVERIFY(document == nullptr);
}

QTEST_GUILESS_MAIN(tst_DocumentReading)
#include "tst_documentreading.moc"
