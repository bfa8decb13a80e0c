// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobTexts.h"
#include "ReadingTexts.h"

#include "DebugLines.h"
#include "ObjectDeleter.h"
#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

#include <QSignalSpy>
#include <QtTest>

using Settings = ZTBatchOutputSettings;

namespace {

/// A text with `levels` nested elements.
QString Nested(int levels)
{
    return QLatin1String("<!DOCTYPE batch>") + Repeated("<root>", levels) + Repeated("</root>", levels);
}

} // namespace

/// Reading texts that no document has written: which are refused, and what a document contains afterwards.
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

    void sectionsAnywhere_data();
    void sectionsAnywhere();

    void deletedWhileReading_data();
    void deletedWhileReading();
};

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

    // An output without sections keeps most settings and resets three.
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

    // Nothing has changed; 0 is emitted nevertheless.
    QVERIFY(document.Deserialize(Job(QString())));
    QCOMPARE(states, (QList<QVariantList>{{0}}));
    states.clear();

    // The state of the change is emitted before the final 0.
    QVERIFY(document.Deserialize(Job(QStringLiteral("<input><inputElement/></input>"))));
    QCOMPARE(states, (QList<QVariantList>{{1}, {0}}));
    QCOMPARE(document.ModificationState(), 0);
    states.clear();

    // A value that the host has set is kept until the end.
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
    const ObjectDeleter deleter(document);
    QVERIFY(connect(emitter, signal.constData(), &deleter, SLOT(Delete())));
    QVERIFY(document->Deserialize(job));
    QVERIFY(document == nullptr);
}

QTEST_GUILESS_MAIN(tst_DocumentReading)
#include "tst_documentreading.moc"
