// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobTexts.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <clocale>
#include <cmath>
#include <cstring>
#include <limits>

using Settings = ZTBatchOutputSettings;

/// Writing a document and reading it again: everything comes back.
class tst_DocumentRoundTrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void texts_data();
    void texts();
    void textsThatTheDomCannotRead_data();
    void textsThatTheDomCannotRead();
    void allBytes();
    void doubles_data();
    void doubles();
    void integers_data();
    void integers();
    void colors();
    void restrictionZeroForgetsTheSize();
    void germanLocale();
    void randomDocuments_data();
    void randomDocuments();

private:
    static QString RandomText(QRandomGenerator& random);
    static QByteArray RandomBytes(QRandomGenerator& random);
    static int RandomInteger(QRandomGenerator& random);
    static double RandomDouble(QRandomGenerator& random);
    static void AddRandomInput(QRandomGenerator& random, int types, ZTBatchDocument& document);
    static void SetRandomOutput(QRandomGenerator& random, Settings& settings);
};

namespace {

/// Sets every text of `document` to `text`.
void SetAllTexts(ZTBatchDocument& document, const QString& text)
{
    const QModelIndex index = AddInput(document, Folder, text);
    BatchNodeData* const data = document.GetInputModel()->getNodeData(index);
    data->inputInfo = text;
    data->lastModification = text;
    AddInput(document, File, text, index);
    document.GetStyle()->AppendEffect(text, QByteArray(), true);
    Settings* const settings = document.GetOutputSettings();
    settings->SetFormat(text, QByteArray());
    settings->SetPath(text);
    settings->SetPrefixSeparator(text);
    settings->SetSuffixSeparator(text);
    settings->SetCustomTemplate(Settings::PartMiddle, text);
    Settings::Transformation record;
    record.backgroundImage = text;
    settings->SetTransformationSettings(record);
}

/// The texts that SetAllTexts() sets.
QStringList AllTexts(const ZTBatchDocument& document)
{
    const ZTBatchInputModel* const model = document.GetInputModel();
    const QModelIndex index = model->index(0, 0);
    const BatchNodeData* const folder = model->getNodeData(index);
    const BatchNodeData* const file = model->getNodeData(model->index(0, 0, index));
    const Settings* const settings = document.GetOutputSettings();
    QString format;
    QByteArray options;
    settings->GetFormat(format, options);
    return {folder->inputText,
            folder->inputInfo,
            folder->fileName,
            folder->lastModification,
            file->inputText,
            file->fileName,
            document.GetStyle()->EffectAt(0),
            format,
            settings->GetPath(),
            settings->GetPrefixSeparator(),
            settings->GetSuffixSeparator(),
            settings->GetCustomTemplate(Settings::PartMiddle),
            settings->GetTransformationSettings().backgroundImage};
}

QStringList Copies(const QString& text)
{
    QStringList copies;
    for (int i = 0; i < 13; ++i) {
        copies.append(text);
    }
    return copies;
}

bool SameBits(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

} // namespace

void tst_DocumentRoundTrip::texts_data()
{
    QTest::addColumn<QString>("text");

    const auto row = [](const char* name, const QString& text) { QTest::newRow(name) << text; };
    row("markup", QStringLiteral("<a b=\"c\" d='e'>&amp;&#65;&lt;</a>]]><!--x--><?p?>"));
    row("line breaks", QStringLiteral("a\nb\rc\r\nd\n\n"));
    row("tabs", QStringLiteral("\ta\t\tb\t"));
    row("blanks around", QStringLiteral("  a  b  "));
    row("one blank", QStringLiteral(" "));
    row("beyond the BMP", QStringLiteral("\U0001F4F7 \U00020000\U0010FFFD"));
    row("combining marks", QStringLiteral("e\u0301 \u0301\u0302 \u1100\u1161\u11A8"));
    row("not normalised", QStringLiteral("\u00E9\u212B\uFB01"));
    row("right to left", QStringLiteral("\u202E\u05D0\u0627\u200F"));
    row("separators and marks", QStringLiteral("\u0085\u2028\u2029\uFEFF\u200B\u00A0\u007F\u009F"));
    row("private use and noncharacters of the middle", QStringLiteral("\uE000\uF8FF\uFDD0\uFFFD"));
    row("percent and backslash", QStringLiteral("%1 %p; \\\\server\\share\\%20"));
    row("long", QString(100000, QLatin1Char('&')));
    QString everything;
    for (int unit = 0; unit < 0xFFFE; ++unit) {
        everything += QChar(unit);
    }
    row("every code unit", everything);
    row("control characters", QStringLiteral("/a\u0001\u001F\u000B\u001Bb.jpg"));
    row("lone surrogates", QLatin1Char('a') + QString(QChar(0xD800)) + QLatin1Char('b') + QChar(0xDFFF));
}

void tst_DocumentRoundTrip::texts()
{
    QFETCH(QString, text);

    ZTBatchDocument document;
    SetAllTexts(document, text);
    ZTBatchDocument copy;
    QVERIFY(copy.Deserialize(document.Serialize(nullptr)));
    QCOMPARE(AllTexts(copy), Copies(text));
}

void tst_DocumentRoundTrip::textsThatTheDomCannotRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("read");

    const QString replacement(QChar::ReplacementCharacter);
    QTest::newRow("U+FFFE") << QString(QChar(0xFFFE)) << replacement;
    QTest::newRow("U+FFFF") << QString(QChar(0xFFFF)) << replacement;
}

void tst_DocumentRoundTrip::textsThatTheDomCannotRead()
{
    QFETCH(QString, text);
    QFETCH(QString, read);

    ZTBatchDocument document;
    SetAllTexts(document, text);
    document.SetDocumentName(text);
    ZTBatchDocument copy;
    QVERIFY(copy.Deserialize(document.Serialize(nullptr)));
    QCOMPARE(AllTexts(copy), Copies(read));
}

void tst_DocumentRoundTrip::allBytes()
{
    QByteArray bytes;
    for (int byte = 0; byte < 256; ++byte) {
        bytes.append(static_cast<char>(byte));
    }
    ZTBatchDocument document;
    document.GetStyle()->AppendEffect(QStringLiteral("e"), bytes, true);
    document.GetOutputSettings()->SetFormat(QStringLiteral("f"), bytes);
    document.GetOutputSettings()->SetICCProfile(bytes);
    ZTBatchDocument copy;
    QVERIFY(copy.Deserialize(document.Serialize(nullptr)));
    QString format;
    QByteArray options;
    copy.GetOutputSettings()->GetFormat(format, options);
    QCOMPARE(copy.GetStyle()->DataAt(0), bytes);
    QCOMPARE(options, bytes);
    QCOMPARE(copy.GetOutputSettings()->GetICCProfile(), bytes);
}

void tst_DocumentRoundTrip::doubles_data()
{
    QTest::addColumn<double>("value");

    using Limits = std::numeric_limits<double>;
    for (const double value : {0.0,
                               1.0,
                               0.1,
                               0.2 + 0.1,
                               1.0 / 3.0,
                               -2.0 / 3.0,
                               0.75,
                               800.0,
                               1e15,
                               123456789.123456789,
                               1e17,
                               1e22,
                               1e23,
                               -1e300,
                               Limits::max(),
                               Limits::lowest(),
                               Limits::min(),
                               Limits::denorm_min(),
                               Limits::epsilon(),
                               std::nextafter(1.0, 2.0),
                               std::nextafter(0.1, 0.0),
                               Limits::infinity(),
                               -Limits::infinity()}) {
        QTest::addRow("%.17g", value) << value;
    }
    QRandomGenerator random(20240501);
    for (int i = 0; i < 200; ++i) {
        const double value = RandomDouble(random);
        QTest::addRow("random %d: %.17g", i, value) << value;
    }
}

void tst_DocumentRoundTrip::doubles()
{
    QFETCH(double, value);

    ZTBatchDocument document;
    document.GetOutputSettings()->SetImageSizeSettings({1, 0, 0, value, 0});
    Settings::Transformation record;
    // 0 and -0 are equal, and the setter ignores an equal record: `state` makes this one different.
    record.state = true;
    record.opacity = value;
    record.shadowOpacity = value;
    record.backgroundOpacity = value;
    document.GetOutputSettings()->SetTransformationSettings(record);
    ZTBatchDocument copy;
    QVERIFY(copy.Deserialize(document.Serialize(nullptr)));
    QVERIFY(SameBits(copy.GetOutputSettings()->GetImageSizeSettings().size, value));
    record = copy.GetOutputSettings()->GetTransformationSettings();
    QVERIFY(SameBits(record.opacity, value));
    QVERIFY(SameBits(record.shadowOpacity, value));
    QVERIFY(SameBits(record.backgroundOpacity, value));
}

void tst_DocumentRoundTrip::integers_data()
{
    QTest::addColumn<int>("value");

    for (const int value : {1, -1, 2, 7, 132, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        QTest::addRow("%d", value) << value;
    }
}

void tst_DocumentRoundTrip::integers()
{
    QFETCH(int, value);

    ZTBatchDocument document;
    AddInput(document, value, QStringLiteral("/a"));
    Settings* const settings = document.GetOutputSettings();
    settings->SetImageSizeSettings({value, value, value, 1.0, value});
    settings->SetCropSettings({value, QSize(value, value), value});
    settings->SetFolderStructure(static_cast<Settings::FolderStructure>(value));
    settings->SetNamingTemplate(Settings::PartPrefix, static_cast<Settings::NamingTemplate>(value));
    Settings::Transformation record;
    record.angle = value;
    record.margins = QMargins(value, value, value, value);
    record.blending = value;
    record.shadowMode = value;
    record.shadowAngle = value;
    record.shadowDistance = value;
    record.shadowSize = value;
    record.backgroundType = value;
    record.backgroundPattern = {value, value, value};
    record.backgroundCustomSize = QSize(value, value);
    settings->SetTransformationSettings(record);

    ZTBatchDocument copy;
    QVERIFY(copy.Deserialize(document.Serialize(nullptr)));
    const Settings* const read = copy.GetOutputSettings();
    QCOMPARE(copy.GetInputModel()->getNodeData(copy.GetInputModel()->index(0, 0))->type, value);
    QVERIFY(read->GetImageSizeSettings() == settings->GetImageSizeSettings());
    QVERIFY(read->GetCropSettings() == settings->GetCropSettings());
    QCOMPARE(int(read->GetFolderStructure()), value);
    QCOMPARE(int(read->GetNamingTemplate(Settings::PartPrefix)), value);
    QVERIFY(read->GetTransformationSettings() == record);
}

void tst_DocumentRoundTrip::colors()
{
    ZTBatchDocument document;
    Settings::Transformation record;
    record.shadowColor = QColor(1, 2, 3, 4);
    record.backgroundColor = QColor::fromHsv(120, 255, 255);
    document.GetOutputSettings()->SetTransformationSettings(record);
    ZTBatchDocument copy;
    QVERIFY(copy.Deserialize(document.Serialize(nullptr)));
    const Settings::Transformation read = copy.GetOutputSettings()->GetTransformationSettings();
    // The alpha value is not written.
    QCOMPARE(read.shadowColor, QColor(1, 2, 3));
    QCOMPARE(read.backgroundColor, QColor(0, 255, 0));
}

void tst_DocumentRoundTrip::restrictionZeroForgetsTheSize()
{
    ZTBatchDocument document;
    document.GetOutputSettings()->SetImageSizeSettings({0, 3, 1, 12.5, 72});
    ZTBatchDocument copy;
    QVERIFY(copy.Deserialize(document.Serialize(nullptr)));
    QVERIFY((copy.GetOutputSettings()->GetImageSizeSettings() == Settings::ImageSize{0, 0, 2, 800.0, 72}));
}

void tst_DocumentRoundTrip::germanLocale()
{
    ZTBatchDocument document;
    SetAllTexts(document, QStringLiteral("Gr\u00FC\u00DFe \U0001F600"));
    document.GetOutputSettings()->SetImageSizeSettings({1000000, 0, 0, 1234567.5, -1234567});
    const QString expected = document.Serialize(nullptr);

    const QLocale previous;
    const QByteArray previousOfC = std::setlocale(LC_ALL, nullptr);
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    for (const char* const name : {"C", "de_DE.UTF-8", "POSIX"}) {
        std::setlocale(LC_ALL, name);
        QCOMPARE(document.Serialize(nullptr), expected);
        ZTBatchDocument copy;
        QVERIFY(copy.Deserialize(expected));
        QCOMPARE(copy.Serialize(nullptr), expected);
    }
    std::setlocale(LC_ALL, previousOfC);
    QLocale::setDefault(previous);
}

QString tst_DocumentRoundTrip::RandomText(QRandomGenerator& random)
{
    static const QStringList pieces{QStringLiteral("a"),      QStringLiteral("B"),       QStringLiteral("/"),
                                    QStringLiteral(" "),      QStringLiteral("<"),       QStringLiteral(">"),
                                    QStringLiteral("&"),      QStringLiteral("\""),      QStringLiteral("'"),
                                    QStringLiteral("]]>"),    QStringLiteral("\n"),      QStringLiteral("\r"),
                                    QStringLiteral("\t"),     QStringLiteral("&#65;"),   QStringLiteral("\u00E4"),
                                    QStringLiteral("\u5199"), QStringLiteral("e\u0301"), QStringLiteral("\U0001F600"),
                                    QStringLiteral("%"),      QStringLiteral("\uFFFD"),  QStringLiteral("0")};
    QString text;
    for (int i = random.bounded(8); i > 0; --i) {
        text += pieces[random.bounded(pieces.size())];
    }
    return text;
}

QByteArray tst_DocumentRoundTrip::RandomBytes(QRandomGenerator& random)
{
    QByteArray bytes;
    for (int i = random.bounded(20); i > 0; --i) {
        bytes.append(static_cast<char>(random.bounded(256)));
    }
    return bytes;
}

int tst_DocumentRoundTrip::RandomInteger(QRandomGenerator& random)
{
    return random.bounded(2) == 0 ? random.bounded(10) : static_cast<int>(random.generate());
}

double tst_DocumentRoundTrip::RandomDouble(QRandomGenerator& random)
{
    while (true) {
        const quint64 bits = random.generate64();
        double value = 0;
        std::memcpy(&value, &bits, sizeof value);
        if (std::isfinite(value)) {
            return value;
        }
    }
}

/// Adds a tree of any shape with random texts, some of them empty or equal. The nodes' types are less than `types`.
void tst_DocumentRoundTrip::AddRandomInput(QRandomGenerator& random, int types, ZTBatchDocument& document)
{
    QVector<QPersistentModelIndex> folders{QPersistentModelIndex()};
    for (int i = random.bounded(40); i > 0; --i) {
        auto* const node = NewInputNode(random.bounded(types), RandomText(random));
        node->data.inputText = RandomText(random);
        node->data.inputInfo = RandomText(random);
        node->data.lastModification = RandomText(random);
        const QModelIndex parent = folders[random.bounded(folders.size())];
        const QModelIndex index = document.GetInputModel()->InsertBranch(node, parent);
        if (node->data.type == Folder) {
            folders.append(index);
        }
    }
}

void tst_DocumentRoundTrip::SetRandomOutput(QRandomGenerator& random, Settings& settings)
{
    settings.SetFormat(RandomText(random), RandomBytes(random));
    settings.SetPath(RandomText(random));
    settings.SetICCProfile(RandomBytes(random));
    settings.SetFolderStructure(static_cast<Settings::FolderStructure>(RandomInteger(random)));
    settings.SetPrefixSeparator(RandomText(random));
    settings.SetSuffixSeparator(RandomText(random));
    for (const auto part : {Settings::PartPrefix, Settings::PartMiddle, Settings::PartSuffix}) {
        settings.SetNamingTemplate(part, static_cast<Settings::NamingTemplate>(RandomInteger(random)));
        settings.SetCustomTemplate(part, RandomText(random));
        settings.SetStartNumber(part, RandomInteger(random));
        settings.SetDigitsCount(part, RandomInteger(random));
    }
    settings.SetImageSizeSettings({RandomInteger(random), RandomInteger(random), RandomInteger(random),
                                   RandomDouble(random), RandomInteger(random)});
    settings.SetCropSettings(
        {RandomInteger(random), QSize(RandomInteger(random), RandomInteger(random)), RandomInteger(random)});
    Settings::Transformation record;
    record.state = random.bounded(2) == 0;
    record.angle = RandomInteger(random);
    record.margins =
        QMargins(RandomInteger(random), RandomInteger(random), RandomInteger(random), RandomInteger(random));
    record.blending = RandomInteger(random);
    record.opacity = RandomDouble(random);
    record.shadowEnabled = random.bounded(2) == 0;
    record.shadowColor = QColor::fromRgb(random.generate());
    record.shadowMode = RandomInteger(random);
    record.shadowOpacity = RandomDouble(random);
    record.shadowAngle = RandomInteger(random);
    record.shadowDistance = RandomInteger(random);
    record.shadowSize = RandomInteger(random);
    record.backgroundType = RandomInteger(random);
    record.backgroundOpacity = RandomDouble(random);
    record.backgroundPattern = {RandomInteger(random), RandomInteger(random), RandomInteger(random)};
    record.backgroundImage = RandomText(random);
    record.backgroundColor = QColor::fromRgb(random.generate());
    record.backgroundCustomOutput = random.bounded(2) == 0;
    record.backgroundCustomSize = QSize(RandomInteger(random), RandomInteger(random));
    settings.SetTransformationSettings(record);
}

void tst_DocumentRoundTrip::randomDocuments_data()
{
    QTest::addColumn<uint>("seed");

    for (uint seed = 1; seed <= 300; ++seed) {
        QTest::addRow("seed %u", seed) << seed;
    }
}

/// What is read is written again unchanged. Every second document has nodes of unknown types, whose order may change
/// each time they are sorted: there, all nodes have to come back, in any order.
void tst_DocumentRoundTrip::randomDocuments()
{
    QFETCH(uint, seed);

    QRandomGenerator random(seed);
    ZTBatchDocument document;
    document.SetDocumentName(RandomText(random));
    const bool isSorted = seed % 2 == 0;
    AddRandomInput(random, isSorted ? 2 : 4, document);
    for (int i = random.bounded(5); i > 0; --i) {
        document.GetStyle()->AppendEffect(QLatin1Char('e') + RandomText(random), RandomBytes(random),
                                          random.bounded(2) == 0);
    }
    SetRandomOutput(random, *document.GetOutputSettings());
    const QString first = document.Serialize(nullptr);

    ZTBatchDocument copy;
    copy.SetDocumentName(document.GetDocumentName());
    QVERIFY(copy.Deserialize(first));
    QCOMPARE(copy.ModificationState(), 0);
    QCOMPARE(copy.GetInputModel()->GetFileNodesCount(), document.GetInputModel()->GetFileNodesCount());
    const QString second = copy.Serialize(nullptr);
    if (isSorted) {
        QCOMPARE(second, first);
        return;
    }
    QStringList firstLines = ElementLines(first);
    QStringList secondLines = ElementLines(second);
    firstLines.sort();
    secondLines.sort();
    QCOMPARE(secondLines, firstLines);
}

QTEST_GUILESS_MAIN(tst_DocumentRoundTrip)
#include "tst_documentroundtrip.moc"
