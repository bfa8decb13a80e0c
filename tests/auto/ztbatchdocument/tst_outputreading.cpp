// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobTexts.h"
#include "ReadingTexts.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"
#include "ZVApplication.h"

#include <QtTest>

#include <functional>

using Settings = ZTBatchOutputSettings;
using Change = std::function<void(Settings::Transformation&)>;
Q_DECLARE_METATYPE(Change)
Q_DECLARE_METATYPE(Settings::ImageSize)
Q_DECLARE_METATYPE(Settings::Crop)

/// Reading the output settings of a job, valid and invalid.
class tst_OutputReading : public QObject
{
    Q_OBJECT

private Q_SLOTS:
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
};

void tst_OutputReading::imageSize_data()
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

void tst_OutputReading::imageSize()
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

void tst_OutputReading::formatAndFolders()
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

    // A section without attributes sets empty values; a missing section sets nothing.
    QVERIFY(document.Deserialize(OutputJob(QStringLiteral("<imageFormat/><folder/><folderStructure/>"))));
    settings->GetFormat(format, options);
    QCOMPARE(format, QString());
    QCOMPARE(options, QByteArray());
    QCOMPARE(settings->GetPath(), QString());
    QCOMPARE(settings->GetFolderStructure(), Settings::StructureFlat);
}

void tst_OutputReading::naming()
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

    // A part that occurs twice is read twice, in order.
    QVERIFY(document.Deserialize(OutputJob(QStringLiteral(
        "<naming><prefix type='1' startAt='3' count='2'/><prefix type='7' startAt='8'/><middle/></naming>"))));
    QCOMPARE(settings->GetPrefixSeparator(), QString());
    QCOMPARE(settings->GetSuffixSeparator(), QString());
    QCOMPARE(int(settings->GetNamingTemplate(Settings::PartPrefix)), 7);
    QCOMPARE(settings->GetStartNumber(Settings::PartPrefix), 3);
    QCOMPARE(settings->GetDigitsCount(Settings::PartPrefix), 2);
    QCOMPARE(settings->GetNamingTemplate(Settings::PartMiddle), Settings::TemplateOriginalName);
}

void tst_OutputReading::namingIgnoresBadNumbers()
{
    ZTBatchDocument document;
    const Settings* const settings = document.GetOutputSettings();
    QVERIFY(document.Deserialize(
        OutputJob(QStringLiteral("<naming><prefix type='1' startAt='-1' count='0'/><suffix type='1'/></naming>"))));
    QCOMPARE(settings->GetStartNumber(Settings::PartPrefix), 0);
    QCOMPARE(settings->GetDigitsCount(Settings::PartPrefix), 1);
    // A missing number is read as 0, which is valid as a start but not as a count.
    QCOMPARE(settings->GetStartNumber(Settings::PartSuffix), 0);
    QCOMPARE(settings->GetDigitsCount(Settings::PartSuffix), 3);
}

void tst_OutputReading::transformationDefaults()
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

void tst_OutputReading::transformationAttributes_data()
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

/// Each row is one attribute, without the prefix of its name, "transformation".
void tst_OutputReading::transformationAttributes()
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

/// The result differs from that of a section without attributes in the shadow's opacity and the pattern.
void tst_OutputReading::missingTransformation()
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

void tst_OutputReading::crop_data()
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

void tst_OutputReading::crop()
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

void tst_OutputReading::profile()
{
    ZTBatchDocument document;
    QVERIFY(document.Deserialize(OutputJob(QStringLiteral("<advancedOutput ICCProfile='00ff7f'/>"))));
    QCOMPARE(document.GetOutputSettings()->GetICCProfile(), QByteArray("\0\xFF\x7F", 3));
    QVERIFY(document.Deserialize(OutputJob(QStringLiteral("<advancedOutput/>"))));
    QCOMPARE(document.GetOutputSettings()->GetICCProfile(), QByteArray());
}

void tst_OutputReading::outputSignals()
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

QTEST_GUILESS_MAIN(tst_OutputReading)
#include "tst_outputreading.moc"
