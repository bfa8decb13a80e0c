// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchDocument.h"

#include "DeathCase.h"
#include "JobTexts.h"
#include "MetaMethods.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

#include <QtTest>

#include <functional>

using Edit = std::function<void(ZTBatchDocument&)>;
Q_DECLARE_METATYPE(Edit)

class tst_ZTBatchDocument : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObject();
    void newDocument();
    void ownedObjects();
    void documentName();
    void hostValues();
    void setModificationState();
    void changesThatCount_data();
    void changesThatCount();
    void changesThatDoNotCount_data();
    void changesThatDoNotCount();
    void stateNeverPassesOne();
    void documentHearsOfChangesFirst();
    void setStyle();
    void setStyleToItsOwn();
    void deletedByItsOwnSignal();
    void failedAssertions_data();
    void failedAssertions();
};

void tst_ZTBatchDocument::metaObject()
{
    QCOMPARE(OwnMetaMethods(ZTBatchDocument::staticMetaObject),
             (QStringList{QStringLiteral("public signal DocumentNameChanged(QString)"),
                          QStringLiteral("public signal StyleChanged()"),
                          QStringLiteral("public signal ModificationStateChanged(int)"),
                          QStringLiteral("private slot IncrementModificationState()"),
                          QStringLiteral("private slot OnInputDataChanged(QModelIndex,QModelIndex)"),
                          QStringLiteral("private slot OnInputRowsRemoved(QModelIndex,int,int)"),
                          QStringLiteral("private slot OnInputRowsInserted(QModelIndex,int,int)")}));
    const QMetaObject& metaObject = ZTBatchDocument::staticMetaObject;
    QCOMPARE(QByteArray(metaObject.className()), QByteArrayLiteral("ZTBatchDocument"));
    QCOMPARE(metaObject.superClass(), &QObject::staticMetaObject);
    QCOMPARE(metaObject.enumeratorCount(), 0);
    QCOMPARE(metaObject.propertyCount(), QObject::staticMetaObject.propertyCount());
    const QMetaMethod nameChanged = metaObject.method(metaObject.indexOfSignal("DocumentNameChanged(QString)"));
    QCOMPARE(nameChanged.parameterNames(), QList<QByteArray>{QByteArrayLiteral("name")});
}

void tst_ZTBatchDocument::newDocument()
{
    const ZTBatchDocument document;
    QCOMPARE(document.parent(), nullptr);
    QCOMPARE(document.GetDocumentName(), QString());
    QCOMPARE(document.GetFileName(), QString());
    QCOMPARE(document.GetGroupFilter(), QString());
    QCOMPARE(document.ModificationState(), 0);
    QCOMPARE(document.GetInputModel()->rowCount(), 0);
    QCOMPARE(document.GetStyle()->GetEffectCount(), 0);
    QCOMPARE(document.GetStyle()->Name(), QString());
    QCOMPARE(document.GetStyle()->Description(), QString());
    QCOMPARE(document.GetStyle()->Group(), nullptr);
    QCOMPARE(document.GetOutputSettings()->GetPath(), QString());
}

void tst_ZTBatchDocument::ownedObjects()
{
    QObject parent;
    auto* const document = new ZTBatchDocument(&parent);
    QCOMPARE(document->parent(), &parent);
    QCOMPARE(document->children(),
             (QObjectList{document->GetInputModel(), document->GetStyle(), document->GetOutputSettings()}));

    const QPointer<ZTBatchInputModel> model(document->GetInputModel());
    const QPointer<ZTStyle> style(document->GetStyle());
    const QPointer<ZTBatchOutputSettings> settings(document->GetOutputSettings());
    delete document;
    QVERIFY(model == nullptr);
    QVERIFY(style == nullptr);
    QVERIFY(settings == nullptr);
}

void tst_ZTBatchDocument::documentName()
{
    ZTBatchDocument document;
    QSignalSpy names(&document, &ZTBatchDocument::DocumentNameChanged);
    QSignalSpy states(&document, &ZTBatchDocument::ModificationStateChanged);
    document.SetDocumentName(QString());
    QCOMPARE(names.count(), 0);
    document.SetDocumentName(QStringLiteral("Holidays"));
    document.SetDocumentName(QStringLiteral("Holidays"));
    QCOMPARE(names, (QList<QVariantList>{{QStringLiteral("Holidays")}}));
    QCOMPARE(document.GetDocumentName(), QStringLiteral("Holidays"));
    document.SetDocumentName(QStringLiteral("holidays"));
    QCOMPARE(names.count(), 2);
    QCOMPARE(states.count(), 0);
    QCOMPARE(document.ModificationState(), 0);
}

void tst_ZTBatchDocument::hostValues()
{
    ZTBatchDocument document;
    QSignalSpy names(&document, &ZTBatchDocument::DocumentNameChanged);
    QSignalSpy states(&document, &ZTBatchDocument::ModificationStateChanged);
    document.SetFileName(QStringLiteral("/jobs/a.xml"));
    document.SetGroupFilter(QStringLiteral("*.jpg"));
    QCOMPARE(document.GetFileName(), QStringLiteral("/jobs/a.xml"));
    QCOMPARE(document.GetGroupFilter(), QStringLiteral("*.jpg"));
    QCOMPARE(names.count() + states.count(), 0);
    QVERIFY(!document.Serialize(nullptr).contains(QLatin1String("jobs")));
    QVERIFY(!document.Serialize(nullptr).contains(QLatin1String("*.jpg")));
}

void tst_ZTBatchDocument::setModificationState()
{
    ZTBatchDocument document;
    QSignalSpy states(&document, &ZTBatchDocument::ModificationStateChanged);
    document.SetModificationState(0);
    document.SetModificationState(7);
    document.SetModificationState(7);
    document.SetModificationState(-1);
    document.SetModificationState(0);
    QCOMPARE(states, (QList<QVariantList>{{7}, {-1}, {0}}));
    QCOMPARE(document.ModificationState(), 0);
}

void tst_ZTBatchDocument::changesThatCount_data()
{
    QTest::addColumn<Edit>("edit");

    const auto row = [](const char* name, const Edit& edit) { QTest::newRow(name) << edit; };
    using Settings = ZTBatchOutputSettings;
    row("folder structure", [](ZTBatchDocument& document) {
        document.GetOutputSettings()->SetFolderStructure(Settings::StructureAsInput);
    });
    row("format", [](ZTBatchDocument& document) {
        document.GetOutputSettings()->SetFormat(QStringLiteral("PNG"), QByteArray());
    });
    row("path", [](ZTBatchDocument& document) { document.GetOutputSettings()->SetPath(QStringLiteral("/a")); });
    row("naming", [](ZTBatchDocument& document) {
        document.GetOutputSettings()->SetNamingTemplate(Settings::PartPrefix, Settings::TemplateNumber);
    });
    row("prefix separator",
        [](ZTBatchDocument& document) { document.GetOutputSettings()->SetPrefixSeparator(QStringLiteral("-")); });
    row("suffix separator",
        [](ZTBatchDocument& document) { document.GetOutputSettings()->SetSuffixSeparator(QStringLiteral("-")); });
    row("size", [](ZTBatchDocument& document) {
        document.GetOutputSettings()->SetImageSizeSettings({1, 0, 2, 800.0, 300});
    });
    row("transformation", [](ZTBatchDocument& document) {
        Settings::Transformation record;
        record.state = true;
        document.GetOutputSettings()->SetTransformationSettings(record);
    });
    row("crop", [](ZTBatchDocument& document) {
        document.GetOutputSettings()->SetCropSettings({132, QSize(1, 1), 1});
    });
    row("profile, the same again",
        [](ZTBatchDocument& document) { document.GetOutputSettings()->SetICCProfile(QByteArray()); });
    row("new input", [](ZTBatchDocument& document) { AddInput(document, File, QStringLiteral("/b")); });
    row("new rows", [](ZTBatchDocument& document) { document.GetInputModel()->insertRows(0, 1); });
    row("input gone", [](ZTBatchDocument& document) { document.GetInputModel()->removeRows(0, 1); });
    row("input disabled", [](ZTBatchDocument& document) {
        document.GetInputModel()->setEnabled(document.GetInputModel()->index(0, 0), false);
    });
    row("input stamped", [](ZTBatchDocument& document) {
        document.GetInputModel()->setLastModification(document.GetInputModel()->index(0, 0), QStringLiteral("now"));
    });
    row("tool tip, the same again", [](ZTBatchDocument& document) {
        document.GetInputModel()->setToolTip(document.GetInputModel()->index(0, 0), QString());
    });
}

void tst_ZTBatchDocument::changesThatCount()
{
    QFETCH(Edit, edit);

    ZTBatchDocument document;
    AddInput(document, File, QStringLiteral("/a"));
    document.SetModificationState(0);
    QSignalSpy states(&document, &ZTBatchDocument::ModificationStateChanged);
    edit(document);
    QCOMPARE(states, (QList<QVariantList>{{1}}));
    QCOMPARE(document.ModificationState(), 1);
}

void tst_ZTBatchDocument::changesThatDoNotCount_data()
{
    QTest::addColumn<Edit>("edit");

    const auto row = [](const char* name, const Edit& edit) { QTest::newRow(name) << edit; };
    row("nothing", [](ZTBatchDocument&) {});
    row("effects", [](ZTBatchDocument& document) {
        document.GetStyle()->AppendEffect(QStringLiteral("blur"), QByteArray(), true);
    });
    row("style", [](ZTBatchDocument& document) {
        ZTStyle style(QString(), QString(), nullptr, nullptr);
        style.AppendEffect(QStringLiteral("blur"), QByteArray(), true);
        document.SetStyle(style);
    });
    row("same path", [](ZTBatchDocument& document) { document.GetOutputSettings()->SetPath(QString()); });
    row("number that is not shown", [](ZTBatchDocument& document) {
        document.GetOutputSettings()->SetStartNumber(ZTBatchOutputSettings::PartPrefix, 9);
    });
    row("same state of input", [](ZTBatchDocument& document) {
        document.GetInputModel()->setEnabled(document.GetInputModel()->index(0, 0), true);
    });
    row("record edited in place", [](ZTBatchDocument& document) {
        document.GetInputModel()->getNodeData(document.GetInputModel()->index(0, 0))->inputInfo = QStringLiteral("x");
    });
    row("written", [](ZTBatchDocument& document) { document.Serialize(&document); });
    row("refused", [](ZTBatchDocument& document) { document.Deserialize(QStringLiteral("<root/>")); });
}

void tst_ZTBatchDocument::changesThatDoNotCount()
{
    QFETCH(Edit, edit);

    ZTBatchDocument document;
    AddInput(document, File, QStringLiteral("/a"));
    document.SetModificationState(0);
    QSignalSpy states(&document, &ZTBatchDocument::ModificationStateChanged);
    QSignalSpy styles(&document, &ZTBatchDocument::StyleChanged);
    edit(document);
    QCOMPARE(states.count(), 0);
    QCOMPARE(styles.count(), 0);
    QCOMPARE(document.ModificationState(), 0);
}

void tst_ZTBatchDocument::stateNeverPassesOne()
{
    ZTBatchDocument document;
    QSignalSpy states(&document, &ZTBatchDocument::ModificationStateChanged);
    document.GetOutputSettings()->SetPath(QStringLiteral("/a"));
    document.GetOutputSettings()->SetPath(QStringLiteral("/b"));
    AddInput(document, File, QStringLiteral("/a"));
    QCOMPARE(document.ModificationState(), 1);
    QCOMPARE(states.count(), 1);

    // A change raises only 0; a value that the host has set is kept.
    document.SetModificationState(5);
    document.GetOutputSettings()->SetPath(QStringLiteral("/c"));
    QCOMPARE(document.ModificationState(), 5);
    QCOMPARE(states.count(), 2);
}

void tst_ZTBatchDocument::documentHearsOfChangesFirst()
{
    // The document's own slot is connected first, so hosts see the new state when their slots run.
    ZTBatchDocument document;
    QVector<int> states;
    connect(document.GetOutputSettings(), &ZTBatchOutputSettings::PathChanged, &document,
            [&] { states.append(document.ModificationState()); });
    connect(document.GetInputModel(), &QAbstractItemModel::rowsInserted, &document,
            [&] { states.append(document.ModificationState()); });
    document.GetOutputSettings()->SetPath(QStringLiteral("/a"));
    document.SetModificationState(0);
    AddInput(document, File, QStringLiteral("/a"));
    QCOMPARE(states, (QVector<int>{1, 1}));
}

void tst_ZTBatchDocument::setStyle()
{
    ZTBatchDocument document;
    document.GetStyle()->AppendEffect(QStringLiteral("old"), QByteArray(), true);
    ZTStyle style(QStringLiteral("name"), QString(), nullptr, nullptr);
    style.AppendEffect(QStringLiteral("blur"), QByteArrayLiteral("1"), true);
    style.AppendEffect(QStringLiteral("hue"), QByteArrayLiteral("2"), false);
    const ZTStyle* const owned = document.GetStyle();
    document.SetStyle(style);

    QCOMPARE(document.GetStyle(), owned);
    QCOMPARE(owned->GetEffectCount(), 2);
    QCOMPARE(owned->EffectAt(0), QStringLiteral("blur"));
    QCOMPARE(owned->DataAt(1), QByteArrayLiteral("2"));
    QCOMPARE(owned->IsEnabled(1), false);
    QCOMPARE(style.GetEffectCount(), 2);

    document.SetStyle(ZTStyle(QString(), QString(), nullptr, nullptr));
    QCOMPARE(owned->GetEffectCount(), 0);
}

void tst_ZTBatchDocument::setStyleToItsOwn()
{
    ZTBatchDocument document;
    document.GetStyle()->AppendEffect(QStringLiteral("blur"), QByteArrayLiteral("1"), true);
    document.SetStyle(*document.GetStyle());
    QCOMPARE(document.GetStyle()->GetEffectCount(), 1);
    QCOMPARE(document.GetStyle()->EffectAt(0), QStringLiteral("blur"));
}

void tst_ZTBatchDocument::deletedByItsOwnSignal()
{
    const QPointer<ZTBatchDocument> document(new ZTBatchDocument);
    connect(document, &ZTBatchDocument::ModificationStateChanged, this, [&] { delete document; });
    document->SetModificationState(1);
    QVERIFY(document == nullptr);
}

void tst_ZTBatchDocument::failedAssertions_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("line");

    QTest::newRow("Serialize() without model")
        << QStringLiteral("document-serialize-without-model") << QStringLiteral("360");
    QTest::newRow("Serialize() without style")
        << QStringLiteral("document-serialize-without-style") << QStringLiteral("420");
    QTest::newRow("Serialize() without settings")
        << QStringLiteral("document-serialize-without-settings") << QStringLiteral("440");
    QTest::newRow("SetStyle() without style")
        << QStringLiteral("document-set-style-without-style") << QStringLiteral("255");
    QTest::newRow("Deserialize() without model")
        << QStringLiteral("document-read-without-model") << QStringLiteral(R"(\d+)");
    QTest::newRow("Deserialize() without style")
        << QStringLiteral("document-read-without-style") << QStringLiteral(R"(\d+)");
    QTest::newRow("Deserialize() without settings")
        << QStringLiteral("document-read-without-settings") << QStringLiteral(R"(\d+)");
}

void tst_ZTBatchDocument::failedAssertions()
{
    QFETCH(QString, name);
    QFETCH(QString, line);

    const DeathReport report = RunDeathCase(name);
    QVERIFY2(report.aborted, qPrintable(report.output));
    const QRegularExpression lastLine(QStringLiteral(R"(^\[src\\ZTBatchDocument:%1\] Assert failed$)").arg(line));
    QVERIFY2(lastLine.match(report.lastLine).hasMatch(), qPrintable(report.output));
}

QTEST_GUILESS_MAIN(tst_ZTBatchDocument)
#include "tst_ztbatchdocument.moc"
