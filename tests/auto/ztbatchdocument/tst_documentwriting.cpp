// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobTexts.h"

#include "ContextTranslator.h"
#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

#include <QDomDocument>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextBrowser>
#include <QtTest>

#include <algorithm>
#include <functional>
#include <memory>

using Settings = ZTBatchOutputSettings;

/// The text that a document writes.
class tst_DocumentWriting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newDocument();
    void formIsTheDomsOwn();
    void sameJobSameText();
    void documentName();
    void input();
    void filesHaveNoChildren();
    void style();
    void imageSize_data();
    void imageSize();
    void imageFormatFolderAndProfile();
    void naming();
    void transformation();
    void crop();
    void numbers_data();
    void numbers();
    void escapes_data();
    void escapes();
    void missingFileIsWrittenWithoutSink();
    void missingFileIsLeftOutWithSink_data();
    void missingFileIsLeftOutWithSink();
    void duplicatesAreKeptWithoutSink();
    void firstOccurrenceLevelByLevelStays();
    void pathsAreComparedExactly();
    void warnings();
    void warningsAreOneAppendEach();
    void pathsInWarningsAreNoMarkup_data();
    void pathsInWarningsAreNoMarkup();
    void noWarningsNoText();
    void warningsAreTranslated();
    void sinkDeletedInTheMiddle();
    void documentDeletedByItsSink();
    void modelEditedByTheSink();
    void deepTree();
    void deepTreeOnSmallStack();

private:
    QString Touch(const QString& name);

    QTemporaryDir folder;
};

namespace {

const QStringList defaultOutput{
    QStringLiteral(" output"),
    QStringLiteral("  imageSize resolution=\"300\" restriction=\"0\""),
    QStringLiteral("  imageFormat data=\"\" format=\"Original\""),
    QStringLiteral("  folder fileName=\"\""),
    QStringLiteral("  folderStructure type=\"0\""),
    QStringLiteral("  naming prefixSeparator=\"\" suffixSeparator=\"\""),
    QStringLiteral("   prefix type=\"5\""),
    QStringLiteral("   middle name=\"Image\" type=\"4\""),
    QStringLiteral("   suffix count=\"3\" startAt=\"1\" type=\"1\""),
    QStringLiteral("  transformation transformationAngle=\"0\" transformationBackgroundColor=\"#000000\""
                   " transformationBackgroundCustomHeight=\"600\" transformationBackgroundCustomOutput=\"0\""
                   " transformationBackgroundCustomWidth=\"800\" transformationBackgroundImage=\"\""
                   " transformationBackgroundOpacity=\"1\" transformationBackgroundPattern=\"0 0 0\""
                   " transformationBackgroundType=\"0\" transformationBlending=\"0\""
                   " transformationMargins=\"5 5 5 5\" transformationOpacity=\"1\""
                   " transformationShadowAngle=\"0\" transformationShadowColor=\"#000000\""
                   " transformationShadowDistance=\"5\" transformationShadowEnabled=\"1\""
                   " transformationShadowMode=\"0\" transformationShadowOpacity=\"0.75\""
                   " transformationShadowSize=\"5\" transformationState=\"0\""),
    QStringLiteral("  crop cropAlignment=\"132\" cropHeight=\"600\" cropType=\"0\" cropWidth=\"800\""),
    QStringLiteral("  advancedOutput ICCProfile=\"\""),
};

/// The paths of the nodes in a text, indented by one blank for each level.
QStringList WrittenPaths(const QString& xml)
{
    QStringList paths;
    const QStringList lines = ElementLines(xml);
    for (const QString& line : lines) {
        const QRegularExpressionMatch match =
            QRegularExpression(QStringLiteral("^  ( *)inputElement fileName=\"([^\"]*)\"")).match(line);
        if (match.hasMatch()) {
            paths.append(match.captured(1) + match.captured(2));
        }
    }
    return paths;
}

/// Adds a chain of `levels` nested folders, built from the innermost outwards.
void AddChain(ZTBatchDocument& document, int levels)
{
    TreeNode<BatchNodeData>* folder = NewInputNode(Folder, QStringLiteral("d"));
    for (int level = 1; level < levels; ++level) {
        TreeNode<BatchNodeData>* const outer = NewInputNode(Folder, QStringLiteral("d"));
        outer->insertChild(folder);
        folder = outer;
    }
    document.GetInputModel()->InsertBranch(folder, QModelIndex());
}

} // namespace

QString tst_DocumentWriting::Touch(const QString& name)
{
    const QString path = folder.filePath(name);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) ? path : QString();
}

void tst_DocumentWriting::newDocument()
{
    const ZTBatchDocument document;
    const QString text = document.Serialize(nullptr);
    QCOMPARE(ElementLines(text),
             (QStringList{QStringLiteral("root name=\"\""), QStringLiteral(" input"), QStringLiteral(" style")} +
              defaultOutput));
    QVERIFY(text.startsWith(QLatin1String("<!DOCTYPE batch>\n<root name=\"\">\n    <input/>\n    <style/>\n"
                                          "    <output>\n        <imageSize ")));
    QVERIFY(text.endsWith(QLatin1String("\n    </output>\n</root>\n")));
}

/// Each line has the same characters as the DOM's own output; only the order of attributes may differ.
void tst_DocumentWriting::formIsTheDomsOwn()
{
    ZTBatchDocument document;
    document.SetDocumentName(QStringLiteral("a]]>b \"<>&'\t\n\r \u00e9\u5199 ]>"));
    const QModelIndex index = AddInput(document, Folder, QStringLiteral("/a"));
    AddInput(document, File, QStringLiteral("/a/b"), AddInput(document, Folder, QStringLiteral("/a/c"), index));
    AddInput(document, File, QStringLiteral("/d"));
    document.GetStyle()->AppendEffect(QStringLiteral("blur"), QByteArrayLiteral("{}"), true);
    document.GetOutputSettings()->SetImageSizeSettings({1, 2, 3, 0.1, 72});

    const QString text = document.Serialize(nullptr);
    QDomDocument dom;
    QVERIFY(dom.setContent(text, false));
    QStringList ours = text.split(QLatin1Char('\n'));
    QStringList doms = dom.toString(4).split(QLatin1Char('\n'));
    QCOMPARE(ours.size(), doms.size());
    for (int i = 0; i < ours.size(); ++i) {
        QCOMPARE(ours[i].indexOf(QLatin1Char('<')), doms[i].indexOf(QLatin1Char('<')));
        std::sort(ours[i].begin(), ours[i].end());
        std::sort(doms[i].begin(), doms[i].end());
        QCOMPARE(ours[i], doms[i]);
    }
}

void tst_DocumentWriting::sameJobSameText()
{
    ZTBatchDocument first;
    ZTBatchDocument second;
    AddInput(first, File, QStringLiteral("/a"));
    AddInput(second, File, QStringLiteral("/a"));
    QCOMPARE(first.Serialize(nullptr), second.Serialize(nullptr));
}

void tst_DocumentWriting::documentName()
{
    ZTBatchDocument document;
    document.SetDocumentName(QStringLiteral("Holidays"));
    QCOMPARE(AttributesOf(document.Serialize(nullptr), QStringLiteral("root")),
             QStringList{QStringLiteral("name=\"Holidays\"")});
}

void tst_DocumentWriting::input()
{
    ZTBatchDocument document;
    const QModelIndex index = AddInput(document, Folder, QStringLiteral("/z"));
    BatchNodeData* const data = document.GetInputModel()->getNodeData(index);
    data->inputText = QStringLiteral("text");
    data->inputInfo = QStringLiteral("info");
    data->lastModification = QStringLiteral("2024-05-01T12:00:00");
    data->toolTip = QStringLiteral("never written");
    data->enabled = false;
    data->bookmark = ZVFileBookmark(QStringLiteral("/z"));
    AddInput(document, 7, QStringLiteral("/z/c"), index);
    AddInput(document, File, QStringLiteral("/z/b"), AddInput(document, Folder, QStringLiteral("/z/a"), index));
    AddInput(document, -1, QStringLiteral("/y"));

    const QString text = document.Serialize(nullptr);
    QCOMPARE(ElementLines(text).mid(1, 6),
             (QStringList{
                 QStringLiteral(" input"),
                 QStringLiteral("  inputElement fileName=\"/z\" inputInfo=\"info\" inputText=\"text\""
                                " lastModification=\"2024-05-01T12:00:00\" type=\"0\""),
                 QStringLiteral("   inputElement fileName=\"/z/a\" inputInfo=\"\" inputText=\"/z/a\""
                                " lastModification=\"\" type=\"0\""),
                 QStringLiteral("    inputElement fileName=\"/z/b\" inputInfo=\"\" inputText=\"/z/b\""
                                " lastModification=\"\" type=\"1\""),
                 QStringLiteral("   inputElement fileName=\"/z/c\" inputInfo=\"\" inputText=\"/z/c\""
                                " lastModification=\"\" type=\"7\""),
                 QStringLiteral("  inputElement fileName=\"/y\" inputInfo=\"\" inputText=\"/y\""
                                " lastModification=\"\" type=\"-1\""),
             }));
    QVERIFY(!text.contains(QLatin1String("never written")));
    // The order of the attributes.
    QVERIFY(
        text.contains(QLatin1String("<inputElement inputText=\"text\" inputInfo=\"info\" fileName=\"/z\" type=\"0\" "
                                    "lastModification=\"2024-05-01T12:00:00\">")));
}

void tst_DocumentWriting::filesHaveNoChildren()
{
    ZTBatchDocument document;
    const QModelIndex file = AddInput(document, File, QStringLiteral("/a"));
    AddInput(document, File, QStringLiteral("/a/b"), file);
    QCOMPARE(WrittenPaths(document.Serialize(nullptr)), QStringList{QStringLiteral("/a")});
}

void tst_DocumentWriting::style()
{
    ZTBatchDocument document;
    QByteArray allBytes;
    for (int byte = 0; byte < 256; ++byte) {
        allBytes.append(static_cast<char>(byte));
    }
    document.GetStyle()->AppendEffect(QStringLiteral("first"), allBytes, true);
    document.GetStyle()->AppendEffect(QStringLiteral("second"), QByteArray(), false);
    document.GetStyle()->AppendEffect(QStringLiteral("first"), QByteArrayLiteral("\xFF\x0A"), false);
    QCOMPARE(ElementLines(document.Serialize(nullptr)).mid(2, 4),
             (QStringList{QStringLiteral(" style"),
                          QStringLiteral("  effect UID=\"first\" data=\"%1\" enabled=\"1\"")
                              .arg(QString::fromLatin1(allBytes.toHex())),
                          QStringLiteral("  effect UID=\"second\" data=\"\" enabled=\"0\""),
                          QStringLiteral("  effect UID=\"first\" data=\"ff0a\" enabled=\"0\"")}));
}

void tst_DocumentWriting::imageSize_data()
{
    QTest::addColumn<int>("restriction");
    QTest::addColumn<QStringList>("attributes");

    QTest::newRow("none") << 0 << QStringList{QStringLiteral("resolution=\"72\""), QStringLiteral("restriction=\"0\"")};
    for (const int restriction : {1, 3, -1, 1000}) {
        QTest::addRow("%d", restriction) << restriction
                                         << QStringList{QStringLiteral("resolution=\"72\""),
                                                        QStringLiteral("restriction=\"%1\"").arg(restriction),
                                                        QStringLiteral("side=\"3\""), QStringLiteral("size=\"1024.5\""),
                                                        QStringLiteral("unit=\"2\"")};
    }
}

void tst_DocumentWriting::imageSize()
{
    QFETCH(int, restriction);
    QFETCH(QStringList, attributes);

    ZTBatchDocument document;
    document.GetOutputSettings()->SetImageSizeSettings({restriction, 2, 3, 1024.5, 72});
    QCOMPARE(AttributesOf(document.Serialize(nullptr), QStringLiteral("imageSize")), attributes);
}

void tst_DocumentWriting::imageFormatFolderAndProfile()
{
    ZTBatchDocument document;
    Settings* const settings = document.GetOutputSettings();
    settings->SetFormat(QStringLiteral("JPEG XL"), QByteArrayLiteral("{\"a\":\xC3\xA4}"));
    settings->SetPath(QStringLiteral("/out put"));
    settings->SetFolderStructure(static_cast<Settings::FolderStructure>(-5));
    settings->SetICCProfile(QByteArray("\0\x7F\x80\xFF", 4));
    const QStringList lines = ElementLines(document.Serialize(nullptr));
    QVERIFY(lines.contains(QStringLiteral("  imageFormat data=\"7b2261223ac3a47d\" format=\"JPEG XL\"")));
    QVERIFY(lines.contains(QStringLiteral("  folder fileName=\"/out put\"")));
    QVERIFY(lines.contains(QStringLiteral("  folderStructure type=\"-5\"")));
    QVERIFY(lines.contains(QStringLiteral("  advancedOutput ICCProfile=\"007f80ff\"")));
}

void tst_DocumentWriting::naming()
{
    ZTBatchDocument document;
    Settings* const settings = document.GetOutputSettings();
    settings->SetPrefixSeparator(QStringLiteral(" - "));
    settings->SetSuffixSeparator(QStringLiteral("_"));
    settings->SetNamingTemplate(Settings::PartPrefix, Settings::TemplateNumber);
    settings->SetStartNumber(Settings::PartPrefix, 100);
    settings->SetDigitsCount(Settings::PartPrefix, 6);
    settings->SetNamingTemplate(Settings::PartMiddle, static_cast<Settings::NamingTemplate>(-7));
    settings->SetNamingTemplate(Settings::PartSuffix, Settings::TemplateCustomText);
    settings->SetCustomTemplate(Settings::PartSuffix, QStringLiteral("end"));
    const QStringList lines = ElementLines(document.Serialize(nullptr));
    const int naming = lines.indexOf(QStringLiteral("  naming prefixSeparator=\" - \" suffixSeparator=\"_\""));
    QVERIFY(naming > 0);
    QCOMPARE(lines.mid(naming + 1, 3), (QStringList{QStringLiteral("   prefix count=\"6\" startAt=\"100\" type=\"1\""),
                                                    QStringLiteral("   middle type=\"-7\""),
                                                    QStringLiteral("   suffix name=\"end\" type=\"4\"")}));
}

void tst_DocumentWriting::transformation()
{
    Settings::Transformation record;
    record.state = true;
    record.angle = -30;
    record.blending = -1;
    record.opacity = 0.1;
    record.margins = QMargins(-1, 2, 300, 0);
    record.shadowEnabled = false;
    record.shadowMode = 4;
    record.shadowOpacity = 1.0 / 3.0;
    record.shadowAngle = 721;
    record.shadowDistance = -6;
    record.shadowSize = 7;
    record.shadowColor = QColor(1, 2, 255, 7);
    record.backgroundType = 3;
    record.backgroundColor = QColor(Qt::white);
    record.backgroundPattern = {7, -8, 0};
    record.backgroundImage = QStringLiteral("/b.png");
    record.backgroundOpacity = 1e-300;
    record.backgroundCustomOutput = true;
    record.backgroundCustomSize = QSize(-1, 4);
    record.backgroundImageData = QImage(1, 1, QImage::Format_RGB32);

    ZTBatchDocument document;
    document.GetOutputSettings()->SetTransformationSettings(record);
    QCOMPARE(AttributesOf(document.Serialize(nullptr), QStringLiteral("transformation")),
             (QStringList{QStringLiteral("transformationAngle=\"-30\""),
                          QStringLiteral("transformationBackgroundColor=\"#ffffff\""),
                          QStringLiteral("transformationBackgroundCustomHeight=\"4\""),
                          QStringLiteral("transformationBackgroundCustomOutput=\"1\""),
                          QStringLiteral("transformationBackgroundCustomWidth=\"-1\""),
                          QStringLiteral("transformationBackgroundImage=\"/b.png\""),
                          QStringLiteral("transformationBackgroundOpacity=\"1e-300\""),
                          QStringLiteral("transformationBackgroundPattern=\"7 -8 0\""),
                          QStringLiteral("transformationBackgroundType=\"3\""),
                          QStringLiteral("transformationBlending=\"4294967295\""),
                          QStringLiteral("transformationMargins=\"-1 2 300 0\""),
                          QStringLiteral("transformationOpacity=\"0.10000000000000001\""),
                          QStringLiteral("transformationShadowAngle=\"721\""),
                          QStringLiteral("transformationShadowColor=\"#0102ff\""),
                          QStringLiteral("transformationShadowDistance=\"-6\""),
                          QStringLiteral("transformationShadowEnabled=\"0\""),
                          QStringLiteral("transformationShadowMode=\"4\""),
                          QStringLiteral("transformationShadowOpacity=\"0.33333333333333331\""),
                          QStringLiteral("transformationShadowSize=\"7\""),
                          QStringLiteral("transformationState=\"1\"")}));
}

void tst_DocumentWriting::crop()
{
    ZTBatchDocument document;
    document.GetOutputSettings()->SetCropSettings({33, QSize(16, -9), 4});
    QCOMPARE(AttributesOf(document.Serialize(nullptr), QStringLiteral("crop")),
             (QStringList{QStringLiteral("cropAlignment=\"33\""), QStringLiteral("cropHeight=\"-9\""),
                          QStringLiteral("cropType=\"4\""), QStringLiteral("cropWidth=\"16\"")}));
}

void tst_DocumentWriting::numbers_data()
{
    QTest::addColumn<double>("size");

    for (const double size :
         {0.0, 1.0, 800.0, 0.1, 1.0 / 3.0, 1234567.5, 1e15, 1e16, 1e17, 1e300, 5e-324, -2.5, 1e-5}) {
        QTest::addRow("%g", size) << size;
    }
}

/// Numbers are written as the DOM's own attribute setters write them.
void tst_DocumentWriting::numbers()
{
    QFETCH(double, size);

    QDomDocument dom;
    QDomElement element = dom.createElement(QStringLiteral("e"));
    element.setAttribute(QStringLiteral("a"), size);
    ZTBatchDocument document;
    document.GetOutputSettings()->SetImageSizeSettings({1, 0, 0, size, 72});
    QCOMPARE(AttributeOf(document.Serialize(nullptr), QStringLiteral("imageSize"), QStringLiteral("size")),
             element.attribute(QStringLiteral("a")));
}

void tst_DocumentWriting::escapes_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("written");

    const QString replacement(QChar::ReplacementCharacter);
    const auto row = [](const char* title, const QString& name, const QString& written) {
        QTest::newRow(title) << name << written;
    };
    row("null", QString(), QString());
    row("plain", QStringLiteral("plain"), QStringLiteral("plain"));
    row("markup", QStringLiteral("<a b='c'>\"&amp;"), QStringLiteral("&lt;a b='c'>&quot;&amp;amp;"));
    row("end of CDATA", QStringLiteral("]]>]]]>]>"), QStringLiteral("]]&gt;]]]&gt;]>"));
    row("white space", QStringLiteral("\t\n\r "), QStringLiteral("&#x9;&#xa;&#xd; "));
    row("beyond the BMP", QStringLiteral("a\U0001F600\U0010FFFDb"), QStringLiteral("a\U0001F600\U0010FFFDb"));
    row("delete and C1", QStringLiteral("\u007F\u0085"), QStringLiteral("\u007F\u0085"));
    row("noncharacters", QString(QChar(0xFFFE)) + QChar(0xFFFF) + QChar(0xFFFD),
        replacement + replacement + replacement);
}

void tst_DocumentWriting::escapes()
{
    QFETCH(QString, name);
    QFETCH(QString, written);

    ZTBatchDocument document;
    document.SetDocumentName(name);
    const QString text = document.Serialize(nullptr);
    QCOMPARE(text.section(QLatin1Char('\n'), 1, 1), QStringLiteral("<root name=\"%1\">").arg(written));

    // A strict XML parser accepts it.
    QXmlStreamReader strict(text);
    while (!strict.atEnd()) {
        strict.readNext();
    }
    QVERIFY2(!strict.hasError(), qPrintable(strict.errorString()));
}

void tst_DocumentWriting::missingFileIsWrittenWithoutSink()
{
    ZTBatchDocument document;
    AddInput(document, File, folder.filePath(QStringLiteral("nowhere.jpg")));
    QCOMPARE(WrittenPaths(document.Serialize(nullptr)), QStringList{folder.filePath(QStringLiteral("nowhere.jpg"))});
}

void tst_DocumentWriting::missingFileIsLeftOutWithSink_data()
{
    QTest::addColumn<bool>("isBrowser");

    QTest::newRow("any object") << false;
    QTest::newRow("browser") << true;
}

/// When a folder is missing, everything below it is skipped too, even files that exist.
void tst_DocumentWriting::missingFileIsLeftOutWithSink()
{
    QFETCH(bool, isBrowser);

    const QString present = Touch(QStringLiteral("present.jpg"));
    const QString below = Touch(QStringLiteral("below.jpg"));
    ZTBatchDocument document;
    AddInput(document, File, present);
    AddInput(document, File, folder.filePath(QStringLiteral("nowhere.jpg")));
    AddInput(document, File, below, AddInput(document, Folder, folder.filePath(QStringLiteral("gone"))));
    AddInput(document, File, QString());

    const std::unique_ptr<QObject> sink(isBrowser ? new QTextBrowser : new QObject);
    QCOMPARE(WrittenPaths(document.Serialize(sink.get())), QStringList{present});
}

void tst_DocumentWriting::duplicatesAreKeptWithoutSink()
{
    ZTBatchDocument document;
    AddInput(document, File, QStringLiteral("/a"));
    AddInput(document, File, QStringLiteral("/a"));
    QCOMPARE(WrittenPaths(document.Serialize(nullptr)), (QStringList{QStringLiteral("/a"), QStringLiteral("/a")}));
}

void tst_DocumentWriting::firstOccurrenceLevelByLevelStays()
{
    const QString once = Touch(QStringLiteral("once.jpg"));
    const QString twice = Touch(QStringLiteral("twice.jpg"));
    const QString directory = folder.path();

    ZTBatchDocument document;
    // In the tree the folder comes first; level by level the loose file does.
    const QModelIndex outer = AddInput(document, Folder, directory);
    AddInput(document, File, twice, outer);
    AddInput(document, File, once, outer);
    AddInput(document, File, twice);
    // When a folder is a duplicate, everything below it is skipped too.
    AddInput(document, File, once, AddInput(document, Folder, directory, outer));

    QTextBrowser browser;
    QCOMPARE(WrittenPaths(document.Serialize(&browser)), (QStringList{directory, QLatin1Char(' ') + once, twice}));
    QCOMPARE(browser.toPlainText(),
             QStringLiteral("Warning! There are duplicate files:\n   %1\n   %2").arg(directory, twice));
}

void tst_DocumentWriting::pathsAreComparedExactly()
{
    const QString path = Touch(QStringLiteral("exact.jpg"));
    const QString other = folder.path() + QStringLiteral("/./exact.jpg");
    ZTBatchDocument document;
    AddInput(document, File, path);
    AddInput(document, File, other);
    QObject sink;
    QCOMPARE(WrittenPaths(document.Serialize(&sink)).size(), 2);
}

void tst_DocumentWriting::warnings()
{
    const QString present = Touch(QStringLiteral("a.jpg"));
    const QString gone = folder.filePath(QStringLiteral("gone.jpg"));
    const QString alsoGone = folder.filePath(QStringLiteral("also gone.jpg"));
    ZTBatchDocument document;
    for (const QString& path : {gone, present, alsoGone, present, gone, present}) {
        // These texts keep the rows in this order.
        TreeNode<BatchNodeData>* const node = NewInputNode(File, path);
        node->data.inputText = QStringLiteral("same");
        document.GetInputModel()->InsertBranch(node, QModelIndex());
    }
    QTextBrowser browser;
    document.Serialize(&browser);
    QCOMPARE(browser.toPlainText(),
             (QStringList{QStringLiteral("Warning! Some files are not found and skipped:"), QLatin1String("   ") + gone,
                          QLatin1String("   ") + alsoGone, QStringLiteral("Warning! There are duplicate files:"),
                          QLatin1String("   ") + present}
                  .join(QLatin1Char('\n'))));
}

void tst_DocumentWriting::warningsAreOneAppendEach()
{
    ZTBatchDocument document;
    AddInput(document, File, QStringLiteral("/nowhere/a"));
    AddInput(document, File, QStringLiteral("/nowhere/b"));
    QTextBrowser browser;
    browser.append(QStringLiteral("before"));
    document.Serialize(&browser);
    QCOMPARE(browser.document()->blockCount(), 4);
    QCOMPARE(browser.document()->lastBlock().text(), QStringLiteral("   /nowhere/b"));
}

void tst_DocumentWriting::pathsInWarningsAreNoMarkup_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("element") << QStringLiteral("/nowhere/<b>bold</b>.jpg");
    QTest::newRow("no end") << QStringLiteral("/nowhere/<i>.jpg");
    QTest::newRow("picture") << QStringLiteral("/nowhere/<img src='a.png'>.jpg");
    QTest::newRow("blanks and references") << QStringLiteral("/nowhere/<u>a  b</u> &amp; \"c\".jpg");
    QTest::newRow("reference alone") << QStringLiteral("/nowhere/&lt;.jpg");
}

void tst_DocumentWriting::pathsInWarningsAreNoMarkup()
{
    QFETCH(QString, path);

    ZTBatchDocument document;
    AddInput(document, File, path);
    AddInput(document, File, QStringLiteral("/nowhere/z"));
    QTextBrowser browser;
    document.Serialize(&browser);
    QCOMPARE(browser.toPlainText(),
             QStringLiteral("Warning! Some files are not found and skipped:\n   %1\n   /nowhere/z").arg(path));
    QCOMPARE(browser.document()->blockCount(), 3);
}

void tst_DocumentWriting::noWarningsNoText()
{
    ZTBatchDocument document;
    AddInput(document, File, Touch(QStringLiteral("fine.jpg")));
    QTextBrowser browser;
    document.Serialize(&browser);
    QVERIFY(browser.document()->isEmpty());
}

void tst_DocumentWriting::warningsAreTranslated()
{
    ContextTranslator translator("ZTBatchDocument");
    QVERIFY(QCoreApplication::installTranslator(&translator));
    const QString present = Touch(QStringLiteral("b.jpg"));
    ZTBatchDocument document;
    AddInput(document, File, QStringLiteral("/nowhere"));
    AddInput(document, File, present);
    AddInput(document, File, present);
    QTextBrowser browser;
    document.Serialize(&browser);
    QCOMPARE(browser.toPlainText(), QStringLiteral("[Warning! Some files are not found and skipped:]\n   /nowhere\n"
                                                   "[Warning! There are duplicate files:]\n   %1")
                                        .arg(present));
}

void tst_DocumentWriting::sinkDeletedInTheMiddle()
{
    ZTBatchDocument document;
    AddInput(document, File, QStringLiteral("/nowhere/a"));
    AddInput(document, File, QStringLiteral("/nowhere/b"));
    const QPointer<QTextBrowser> browser(new QTextBrowser);
    connect(browser, &QTextBrowser::textChanged, &document, [&] { browser->deleteLater(); });
    QVERIFY(ElementLines(document.Serialize(browser)).contains(QStringLiteral(" style")));
}

void tst_DocumentWriting::documentDeletedByItsSink()
{
    const QPointer<ZTBatchDocument> document(new ZTBatchDocument);
    AddInput(*document, File, QStringLiteral("/nowhere"));
    QTextBrowser browser;
    connect(&browser, &QTextBrowser::textChanged, this, [&] { delete document; });
    QCOMPARE(document->Serialize(&browser), QString());
    QVERIFY(document == nullptr);
}

/// The text shows the document as it was when the call began.
void tst_DocumentWriting::modelEditedByTheSink()
{
    const QString present = Touch(QStringLiteral("c.jpg"));
    ZTBatchDocument document;
    AddInput(document, File, present);
    AddInput(document, File, QStringLiteral("/nowhere"));
    QTextBrowser browser;
    connect(&browser, &QTextBrowser::textChanged, &document,
            [&] { document.GetInputModel()->removeRows(0, document.GetInputModel()->rowCount()); });
    QCOMPARE(WrittenPaths(document.Serialize(&browser)), QStringList{present});
    QCOMPARE(document.GetInputModel()->rowCount(), 0);
}

void tst_DocumentWriting::deepTree()
{
    constexpr int levels = 10000;
    ZTBatchDocument document;
    AddChain(document, levels);
    const QString text = document.Serialize(nullptr);
    QCOMPARE(text.count(QLatin1String("<inputElement")), levels);
    QCOMPARE(text.count(QLatin1String("</inputElement>")), levels - 1);
    const QString innermost = QString(4 * (levels + 1), QLatin1Char(' ')) + QLatin1String("<inputElement");
    QVERIFY(text.contains(QLatin1Char('\n') + innermost));
}

void tst_DocumentWriting::deepTreeOnSmallStack()
{
    constexpr int levels = 3000;
    int written = 0;
    RunOnStack(128 * 1024, [&] {
        ZTBatchDocument document;
        AddChain(document, levels);
        written = document.Serialize(nullptr).count(QLatin1String("<inputElement"));
    });
    QCOMPARE(written, levels);
}

QTEST_MAIN(tst_DocumentWriting)
#include "tst_documentwriting.moc"
