// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ContextTranslator.h"
#include "ZTBatchOutputSettings.h"

#include "MetaMethods.h"

#include <QtTest>

#include <functional>
#include <limits>
#include <type_traits>
#include <utility>

using Settings = ZTBatchOutputSettings;

Q_DECLARE_METATYPE(std::function<void(Settings&)>)
Q_DECLARE_METATYPE(Settings::ImageSize)
Q_DECLARE_METATYPE(Settings::Crop)
Q_DECLARE_METATYPE(Settings::Transformation)

namespace {

using Edit = std::function<void(Settings&)>;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Records the names of the change signals in the order of their emission.
class SignalLog : public QObject
{
    Q_OBJECT

public:
    explicit SignalLog(Settings& settings)
    {
        const QMetaObject& metaObject = Settings::staticMetaObject;
        const QMetaMethod note = staticMetaObject.method(staticMetaObject.indexOfSlot("note()"));
        for (int i = metaObject.methodOffset(); i < metaObject.methodCount(); ++i) {
            if (metaObject.method(i).methodType() == QMetaMethod::Signal) {
                connect(&settings, metaObject.method(i), this, note);
            }
        }
    }

    QStringList TakeNames() { return std::exchange(names, QStringList()); }

private Q_SLOTS:
    void note() { names.append(QString::fromLatin1(sender()->metaObject()->method(senderSignalIndex()).name())); }

private:
    QStringList names;
};

/// The values of all getters, as texts.
QStringList Values(const Settings& settings)
{
    QString format;
    QByteArray options;
    settings.GetFormat(format, options);
    QStringList values{format,
                       QString::fromLatin1(options.toHex()),
                       settings.GetPath(),
                       QString::fromLatin1(settings.GetICCProfile().toHex()),
                       QString::number(settings.GetFolderStructure()),
                       settings.GetPrefixSeparator(),
                       settings.GetSuffixSeparator()};
    for (const auto part : {Settings::PartPrefix, Settings::PartMiddle, Settings::PartSuffix}) {
        values.append(QString::number(settings.GetNamingTemplate(part)));
        values.append(settings.GetCustomTemplate(part));
        values.append(QString::number(settings.GetStartNumber(part)));
        values.append(QString::number(settings.GetDigitsCount(part)));
    }
    return values;
}

void SetEverything(Settings& settings)
{
    settings.SetFormat(QStringLiteral("PNG"), QByteArrayLiteral("{}"));
    settings.SetPath(QStringLiteral("/out"));
    settings.SetICCProfile(QByteArrayLiteral("profile"));
    settings.SetFolderStructure(Settings::StructureByCaptureDate);
    settings.SetPrefixSeparator(QStringLiteral("-"));
    settings.SetSuffixSeparator(QStringLiteral("_"));
    for (const auto part : {Settings::PartPrefix, Settings::PartMiddle, Settings::PartSuffix}) {
        settings.SetNamingTemplate(part, Settings::TemplateCaptureDate);
        settings.SetCustomTemplate(part, QStringLiteral("text"));
        settings.SetStartNumber(part, 77);
        settings.SetDigitsCount(part, 9);
    }
    settings.SetImageSizeSettings({1, 1, 1, 1.5, 72});
    settings.SetCropSettings({Qt::AlignLeft, QSize(3, 4), 2});
    Settings::Transformation transformation;
    transformation.angle = 12;
    settings.SetTransformationSettings(transformation);
}

} // namespace

class tst_ZTBatchOutputSettings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void metaObjectOrder();
    void records();
    void enumerators();
    void defaults();
    void originalFormat();
    void textsAreTranslated();
    void imageSizeEquality_data();
    void imageSizeEquality();
    void cropEquality_data();
    void cropEquality();
    void transformationEquality_data();
    void transformationEquality();
    void transformationEqualityIgnoresTheLoadedImage();
    void setters_data();
    void setters();
    void settersStoreTheValue();
    void valuesAreStoredBeforeTheSignal();
    void silentNamingValuesAreStored();
    void ignoredNamingValues_data();
    void ignoredNamingValues();
    void namingPartsAreIndependent();
    void unknownEnumeratorsComeBackUnchanged();
    void equalRecordIsNotStored();
    void refreshPath();
    void restoreDefault();
    void restoreDefaultOrderOfPartlyChangedSettings();
    void restoreDefaultAfterSeparator();
    void deletedInRestoreDefault();
};

void tst_ZTBatchOutputSettings::metaObjectOrder()
{
    QCOMPARE(
        OwnMetaMethods(Settings::staticMetaObject),
        (QStringList{
            QStringLiteral("public signal FormatChanged()"), QStringLiteral("public signal RestrictionChanged()"),
            QStringLiteral("public signal PathChanged()"), QStringLiteral("public signal FolderStructureChanged()"),
            QStringLiteral("public signal NamingChanged()"), QStringLiteral("public signal PrefixSeparatorChanged()"),
            QStringLiteral("public signal SuffixSeparatorChanged()"),
            QStringLiteral("public signal TransformationChanged()"), QStringLiteral("public signal CropChanged()"),
            QStringLiteral("public signal AdvancedSettingsChanged()")}));
    QCOMPARE(QByteArray(Settings::staticMetaObject.className()), QByteArrayLiteral("ZTBatchOutputSettings"));
    QCOMPARE(Settings::staticMetaObject.superClass(), &QObject::staticMetaObject);
    QCOMPARE(Settings::staticMetaObject.enumeratorCount(), 0);
    QCOMPARE(Settings::staticMetaObject.propertyCount(), QObject::staticMetaObject.propertyCount());
}

void tst_ZTBatchOutputSettings::records()
{
    const Settings::ImageSize imageSize;
    QCOMPARE(imageSize.restriction, 0);
    QCOMPARE(imageSize.unit, 0);
    QCOMPARE(imageSize.side, 2);
    QCOMPARE(imageSize.size, 800.0);
    QCOMPARE(imageSize.resolution, 300);

    const Settings::Crop crop;
    QCOMPARE(crop.alignment, 132);
    QCOMPARE(crop.size, QSize(800, 600));
    QCOMPARE(crop.type, 0);

    const Settings::Transformation transformation;
    QCOMPARE(transformation.angle, 0);
    QCOMPARE(transformation.margins, QMargins(5, 5, 5, 5));
    QCOMPARE(transformation.blending, 0);
    QCOMPARE(transformation.opacity, 1.0);
    QCOMPARE(transformation.shadowEnabled, true);
    QCOMPARE(transformation.shadowColor, QColor(Qt::black));
    QCOMPARE(transformation.shadowMode, 0);
    QCOMPARE(transformation.shadowOpacity, 0.75);
    QCOMPARE(transformation.shadowAngle, 0);
    QCOMPARE(transformation.shadowDistance, 5);
    QCOMPARE(transformation.shadowSize, 5);
    QCOMPARE(transformation.backgroundType, 0);
    QCOMPARE(transformation.backgroundOpacity, 1.0);
    QVERIFY((transformation.backgroundPattern == std::array<int, 3>{0, 0, 0}));
    QVERIFY(transformation.backgroundImage.isEmpty());
    QCOMPARE(transformation.backgroundColor, QColor(Qt::black));
    QVERIFY(transformation.backgroundImageData.isNull());
    QCOMPARE(transformation.backgroundCustomOutput, false);
    QCOMPARE(transformation.backgroundCustomSize, QSize(800, 600));
    QCOMPARE(transformation.state, false);
}

void tst_ZTBatchOutputSettings::enumerators()
{
    QCOMPARE(int(Settings::PartPrefix), 0);
    QCOMPARE(int(Settings::PartMiddle), 1);
    QCOMPARE(int(Settings::PartSuffix), 2);
    QCOMPARE(int(Settings::TemplateOriginalName), 0);
    QCOMPARE(int(Settings::TemplateNumber), 1);
    QCOMPARE(int(Settings::TemplateCaptureDate), 2);
    QCOMPARE(int(Settings::TemplateCaptureTime), 3);
    QCOMPARE(int(Settings::TemplateCustomText), 4);
    QCOMPARE(int(Settings::TemplateNothing), 5);
    QCOMPARE(int(Settings::StructureFlat), 0);
    QCOMPARE(int(Settings::StructureAsInput), 1);
    QCOMPARE(int(Settings::StructureByCaptureDate), 2);
    QVERIFY((std::is_same<std::underlying_type<Settings::NamingPart>::type, int>::value));
    QVERIFY((std::is_same<std::underlying_type<Settings::NamingTemplate>::type, int>::value));
    QVERIFY((std::is_same<std::underlying_type<Settings::FolderStructure>::type, int>::value));
}

void tst_ZTBatchOutputSettings::defaults()
{
    QObject parent;
    const auto* const settings = new Settings(&parent);
    QCOMPARE(settings->parent(), &parent);

    QCOMPARE(Values(*settings),
             (QStringList{QStringLiteral("Original"), QString(), QString(), QString(), QStringLiteral("0"), QString(),
                          QString(), QStringLiteral("5"), QString(), QStringLiteral("0"), QStringLiteral("1"),
                          QStringLiteral("4"), QStringLiteral("Image"), QStringLiteral("0"), QStringLiteral("1"),
                          QStringLiteral("1"), QString(), QStringLiteral("1"), QStringLiteral("3")}));
    QVERIFY(settings->GetImageSizeSettings() == Settings::ImageSize());
    QVERIFY(settings->GetCropSettings() == Settings::Crop());
    QVERIFY(settings->GetTransformationSettings() == Settings::Transformation());
    QVERIFY(settings->GetTransformationSettings().backgroundImageData.isNull());
}

void tst_ZTBatchOutputSettings::originalFormat()
{
    QCOMPARE(Settings::GetOriginalFormat(), QStringLiteral("Original"));
    QCOMPARE(Settings::GetOriginalFormatName(), QStringLiteral("Original"));
}

void tst_ZTBatchOutputSettings::textsAreTranslated()
{
    Settings older(nullptr);
    ContextTranslator translator("ZTBatchOutputSettings");
    QVERIFY(QCoreApplication::installTranslator(&translator));

    QCOMPARE(Settings::GetOriginalFormatName(), QStringLiteral("[Original]"));
    QCOMPARE(Settings::GetOriginalFormat(), QStringLiteral("Original"));
    const Settings settings(nullptr);
    QCOMPARE(settings.GetCustomTemplate(Settings::PartMiddle), QStringLiteral("[Image]"));
    QString format;
    QByteArray options;
    settings.GetFormat(format, options);
    QCOMPARE(format, QStringLiteral("Original"));

    QCOMPARE(older.GetCustomTemplate(Settings::PartMiddle), QStringLiteral("Image"));
    older.RestoreDefault();
    QCOMPARE(older.GetCustomTemplate(Settings::PartMiddle), QStringLiteral("[Image]"));
}

void tst_ZTBatchOutputSettings::imageSizeEquality_data()
{
    QTest::addColumn<Settings::ImageSize>("other");
    QTest::addColumn<bool>("equal");

    using ImageSize = Settings::ImageSize;
    QTest::newRow("same") << ImageSize{1, 2, 3, 4.5, 6} << true;
    QTest::newRow("NaN") << ImageSize{1, 2, 3, notANumber, 6} << true;
    QTest::newRow("restriction") << ImageSize{0, 2, 3, 4.5, 6} << false;
    QTest::newRow("unit") << ImageSize{1, 0, 3, 4.5, 6} << false;
    QTest::newRow("side") << ImageSize{1, 2, 0, 4.5, 6} << false;
    QTest::newRow("greater size") << ImageSize{1, 2, 3, 4.500000001, 6} << false;
    QTest::newRow("less size") << ImageSize{1, 2, 3, 4.499999999, 6} << false;
    QTest::newRow("resolution") << ImageSize{1, 2, 3, 4.5, 0} << false;
    QTest::newRow("NaN and resolution") << ImageSize{1, 2, 3, notANumber, 0} << false;
}

void tst_ZTBatchOutputSettings::imageSizeEquality()
{
    QFETCH(Settings::ImageSize, other);
    QFETCH(bool, equal);

    const Settings::ImageSize record{1, 2, 3, 4.5, 6};
    QCOMPARE(record == other, equal);
    QCOMPARE(other == record, equal);
    QCOMPARE(record != other, !equal);
    QVERIFY(other == other);
}

void tst_ZTBatchOutputSettings::cropEquality_data()
{
    QTest::addColumn<Settings::Crop>("other");
    QTest::addColumn<bool>("equal");

    using Crop = Settings::Crop;
    QTest::newRow("same") << Crop{1, QSize(2, 3), 4} << true;
    QTest::newRow("alignment") << Crop{0, QSize(2, 3), 4} << false;
    QTest::newRow("width") << Crop{1, QSize(0, 3), 4} << false;
    QTest::newRow("height") << Crop{1, QSize(2, 0), 4} << false;
    QTest::newRow("type") << Crop{1, QSize(2, 3), 0} << false;
}

void tst_ZTBatchOutputSettings::cropEquality()
{
    QFETCH(Settings::Crop, other);
    QFETCH(bool, equal);

    const Settings::Crop record{1, QSize(2, 3), 4};
    QCOMPARE(record == other, equal);
    QCOMPARE(record != other, !equal);
}

void tst_ZTBatchOutputSettings::transformationEquality_data()
{
    QTest::addColumn<Settings::Transformation>("other");
    QTest::addColumn<bool>("equal");

    const auto row = [](const char* name, bool equal, void (*change)(Settings::Transformation&)) {
        Settings::Transformation other;
        change(other);
        QTest::newRow(name) << other << equal;
    };
    using Record = Settings::Transformation;
    row("same", true, [](Record&) {});
    row("angle", false, [](Record& r) { r.angle = 1; });
    row("left", false, [](Record& r) { r.margins.setLeft(4); });
    row("top", false, [](Record& r) { r.margins.setTop(4); });
    row("right", false, [](Record& r) { r.margins.setRight(4); });
    row("bottom", false, [](Record& r) { r.margins.setBottom(4); });
    row("blending", false, [](Record& r) { r.blending = 1; });
    row("opacity", false, [](Record& r) { r.opacity = 0.999999999999; });
    row("opacity NaN", true, [](Record& r) { r.opacity = notANumber; });
    row("shadowEnabled", false, [](Record& r) { r.shadowEnabled = false; });
    row("shadowColor", false, [](Record& r) { r.shadowColor = QColor(0, 0, 1); });
    row("shadowMode", false, [](Record& r) { r.shadowMode = 1; });
    row("shadowOpacity", false, [](Record& r) { r.shadowOpacity = 0.5; });
    row("shadowOpacity NaN", true, [](Record& r) { r.shadowOpacity = notANumber; });
    row("shadowAngle", false, [](Record& r) { r.shadowAngle = 1; });
    row("shadowDistance", false, [](Record& r) { r.shadowDistance = 1; });
    row("shadowSize", false, [](Record& r) { r.shadowSize = 1; });
    row("backgroundType", false, [](Record& r) { r.backgroundType = 1; });
    row("backgroundOpacity", false, [](Record& r) { r.backgroundOpacity = 0.5; });
    row("backgroundOpacity NaN", true, [](Record& r) { r.backgroundOpacity = notANumber; });
    row("backgroundPattern first", false, [](Record& r) { r.backgroundPattern[0] = 1; });
    row("backgroundPattern second", false, [](Record& r) { r.backgroundPattern[1] = 1; });
    row("backgroundPattern third", false, [](Record& r) { r.backgroundPattern[2] = 1; });
    row("backgroundImage", false, [](Record& r) { r.backgroundImage = QStringLiteral("a"); });
    row("backgroundColor", false, [](Record& r) { r.backgroundColor = QColor(0, 0, 1); });
    row("backgroundColor alpha", false, [](Record& r) { r.backgroundColor = QColor(0, 0, 0, 254); });
    row("backgroundImageData", true, [](Record& r) { r.backgroundImageData = QImage(1, 1, QImage::Format_RGB32); });
    row("backgroundCustomOutput", false, [](Record& r) { r.backgroundCustomOutput = true; });
    row("backgroundCustomSize width", false, [](Record& r) { r.backgroundCustomSize.setWidth(1); });
    row("backgroundCustomSize height", false, [](Record& r) { r.backgroundCustomSize.setHeight(1); });
    row("state", false, [](Record& r) { r.state = true; });
}

void tst_ZTBatchOutputSettings::transformationEquality()
{
    QFETCH(Settings::Transformation, other);
    QFETCH(bool, equal);

    const Settings::Transformation record;
    QCOMPARE(record == other, equal);
    QCOMPARE(other == record, equal);
    QCOMPARE(record != other, !equal);
    const Settings::Transformation copy(other);
    QVERIFY(copy == other);

    // The setter stores a record and emits exactly when the records are not equal.
    Settings settings(nullptr);
    SignalLog log(settings);
    settings.SetTransformationSettings(other);
    QCOMPARE(log.TakeNames(), equal ? QStringList() : QStringList{QStringLiteral("TransformationChanged")});
    QVERIFY(settings.GetTransformationSettings() == other);
}

void tst_ZTBatchOutputSettings::transformationEqualityIgnoresTheLoadedImage()
{
    Settings::Transformation record;
    record.backgroundImageData = QImage(2, 2, QImage::Format_RGB32);
    Settings::Transformation copy(record);
    QCOMPARE(copy.backgroundImageData.size(), QSize(2, 2));
    copy = Settings::Transformation();
    QVERIFY(copy.backgroundImageData.isNull());
    QVERIFY(copy == record);

    // It is stored with the record when another field differs.
    record.angle = 1;
    Settings settings(nullptr);
    settings.SetTransformationSettings(record);
    QCOMPARE(settings.GetTransformationSettings().backgroundImageData.size(), QSize(2, 2));
}

/// Each row sets a value twice. The first call emits `first`; the second call, with the same value, emits `second`.
void tst_ZTBatchOutputSettings::setters_data()
{
    QTest::addColumn<Edit>("edit");
    QTest::addColumn<QStringList>("first");
    QTest::addColumn<QStringList>("second");

    const auto onChange = [](const char* name, const char* signal, const Edit& edit) {
        QTest::newRow(name) << edit << QStringList{QLatin1String(signal)} << QStringList();
    };
    const auto never = [](const char* name, const Edit& edit) {
        QTest::newRow(name) << edit << QStringList() << QStringList();
    };
    onChange("path", "PathChanged", [](Settings& s) { s.SetPath(QStringLiteral("/a")); });
    onChange("format", "FormatChanged", [](Settings& s) { s.SetFormat(QStringLiteral("PNG"), QByteArray()); });
    onChange("options", "FormatChanged",
             [](Settings& s) { s.SetFormat(QStringLiteral("Original"), QByteArrayLiteral("\0")); });
    onChange("folder structure", "FolderStructureChanged",
             [](Settings& s) { s.SetFolderStructure(Settings::StructureAsInput); });
    onChange("prefix separator", "SuffixSeparatorChanged",
             [](Settings& s) { s.SetPrefixSeparator(QStringLiteral("-")); });
    onChange("suffix separator", "PrefixSeparatorChanged",
             [](Settings& s) { s.SetSuffixSeparator(QStringLiteral("-")); });
    onChange("prefix template", "NamingChanged",
             [](Settings& s) { s.SetNamingTemplate(Settings::PartPrefix, Settings::TemplateNumber); });
    onChange("middle text", "NamingChanged",
             [](Settings& s) { s.SetCustomTemplate(Settings::PartMiddle, QStringLiteral("a")); });
    onChange("suffix start", "NamingChanged", [](Settings& s) { s.SetStartNumber(Settings::PartSuffix, 0); });
    onChange("suffix digits", "NamingChanged", [](Settings& s) { s.SetDigitsCount(Settings::PartSuffix, 1); });
    onChange("size", "RestrictionChanged", [](Settings& s) { s.SetImageSizeSettings({1, 0, 2, 800.0, 300}); });
    onChange("crop", "CropChanged", [](Settings& s) { s.SetCropSettings({132, QSize(800, 601), 0}); });
    onChange("transformation", "TransformationChanged", [](Settings& s) {
        Settings::Transformation record;
        record.state = true;
        s.SetTransformationSettings(record);
    });
    QTest::newRow("profile") << Edit([](Settings& s) { s.SetICCProfile(QByteArrayLiteral("x")); })
                             << QStringList{QStringLiteral("AdvancedSettingsChanged")}
                             << QStringList{QStringLiteral("AdvancedSettingsChanged")};
    QTest::newRow("empty profile") << Edit([](Settings& s) { s.SetICCProfile(QByteArray()); })
                                   << QStringList{QStringLiteral("AdvancedSettingsChanged")}
                                   << QStringList{QStringLiteral("AdvancedSettingsChanged")};

    never("current path", [](Settings& s) { s.SetPath(QString()); });
    never("empty path for a null one", [](Settings& s) { s.SetPath(QStringLiteral("")); });
    never("current format", [](Settings& s) { s.SetFormat(QStringLiteral("Original"), QByteArray("")); });
    never("current size", [](Settings& s) { s.SetImageSizeSettings({}); });
    never("size of NaN", [](Settings& s) { s.SetImageSizeSettings({0, 0, 2, notANumber, 300}); });
    never("current crop", [](Settings& s) { s.SetCropSettings({}); });
    never("loaded image only", [](Settings& s) {
        Settings::Transformation record;
        record.backgroundImageData = QImage(1, 1, QImage::Format_RGB32);
        s.SetTransformationSettings(record);
    });
    never("prefix text", [](Settings& s) { s.SetCustomTemplate(Settings::PartPrefix, QStringLiteral("a")); });
    never("suffix text", [](Settings& s) { s.SetCustomTemplate(Settings::PartSuffix, QStringLiteral("a")); });
    never("prefix start", [](Settings& s) { s.SetStartNumber(Settings::PartPrefix, 4); });
    never("middle start", [](Settings& s) { s.SetStartNumber(Settings::PartMiddle, 4); });
    never("prefix digits", [](Settings& s) { s.SetDigitsCount(Settings::PartPrefix, 4); });
    never("middle digits", [](Settings& s) { s.SetDigitsCount(Settings::PartMiddle, 4); });
}

void tst_ZTBatchOutputSettings::setters()
{
    QFETCH(Edit, edit);
    QFETCH(QStringList, first);
    QFETCH(QStringList, second);

    Settings settings(nullptr);
    SignalLog log(settings);
    edit(settings);
    QCOMPARE(log.TakeNames(), first);
    edit(settings);
    QCOMPARE(log.TakeNames(), second);
}

void tst_ZTBatchOutputSettings::settersStoreTheValue()
{
    Settings settings(nullptr);
    SetEverything(settings);
    const QStringList part{QStringLiteral("2"), QStringLiteral("text"), QStringLiteral("77"), QStringLiteral("9")};
    QCOMPARE(Values(settings), (QStringList{QStringLiteral("PNG"), QStringLiteral("7b7d"), QStringLiteral("/out"),
                                            QStringLiteral("70726f66696c65"), QStringLiteral("2"), QStringLiteral("-"),
                                            QStringLiteral("_")} +
                                part + part + part));
    QVERIFY((settings.GetImageSizeSettings() == Settings::ImageSize{1, 1, 1, 1.5, 72}));
    QVERIFY((settings.GetCropSettings() == Settings::Crop{Qt::AlignLeft, QSize(3, 4), 2}));
    QCOMPARE(settings.GetTransformationSettings().angle, 12);

    SignalLog log(settings);
    settings.SetPath(QStringLiteral("/OUT"));
    settings.SetFormat(QStringLiteral("png"), QByteArrayLiteral("{}"));
    settings.SetFormat(QStringLiteral("png"), QByteArrayLiteral("{]"));
    settings.SetFormat(QStringLiteral("png"), QByteArray("{]\0", 3));
    QCOMPARE(settings.GetPath(), QStringLiteral("/OUT"));
    QCOMPARE(log.TakeNames(), (QStringList{QStringLiteral("PathChanged"), QStringLiteral("FormatChanged"),
                                           QStringLiteral("FormatChanged"), QStringLiteral("FormatChanged")}));
}

void tst_ZTBatchOutputSettings::valuesAreStoredBeforeTheSignal()
{
    Settings settings(nullptr);
    QString seen;
    connect(&settings, &Settings::SuffixSeparatorChanged, &settings, [&] { seen = settings.GetPrefixSeparator(); });
    settings.SetPrefixSeparator(QStringLiteral("+"));
    QCOMPARE(seen, QStringLiteral("+"));
}

void tst_ZTBatchOutputSettings::silentNamingValuesAreStored()
{
    Settings settings(nullptr);
    settings.SetDigitsCount(Settings::PartPrefix, 4);
    settings.SetStartNumber(Settings::PartPrefix, 5);
    settings.SetCustomTemplate(Settings::PartSuffix, QStringLiteral("later"));
    QCOMPARE(settings.GetDigitsCount(Settings::PartPrefix), 4);
    QCOMPARE(settings.GetStartNumber(Settings::PartPrefix), 5);
    QCOMPARE(settings.GetCustomTemplate(Settings::PartSuffix), QStringLiteral("later"));
}

void tst_ZTBatchOutputSettings::ignoredNamingValues_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("digits");

    QTest::newRow("just below") << -1 << 0;
    QTest::newRow("negative") << -1000 << -1;
    QTest::newRow("least") << std::numeric_limits<int>::min() << std::numeric_limits<int>::min();
}

void tst_ZTBatchOutputSettings::ignoredNamingValues()
{
    QFETCH(int, start);
    QFETCH(int, digits);

    Settings settings(nullptr);
    const QStringList before = Values(settings);
    SignalLog log(settings);
    for (const auto part : {Settings::PartPrefix, Settings::PartMiddle, Settings::PartSuffix}) {
        settings.SetStartNumber(part, start);
        settings.SetDigitsCount(part, digits);
    }
    QCOMPARE(Values(settings), before);
    QCOMPARE(log.TakeNames(), QStringList());
}

void tst_ZTBatchOutputSettings::namingPartsAreIndependent()
{
    Settings first(nullptr);
    const Settings second(nullptr);
    const QStringList before = Values(second);
    first.SetCustomTemplate(Settings::PartMiddle, QStringLiteral("mine"));
    first.SetStartNumber(Settings::PartMiddle, 8);
    QCOMPARE(Values(second), before);
    QCOMPARE(first.GetCustomTemplate(Settings::PartPrefix), QString());
    QCOMPARE(first.GetStartNumber(Settings::PartSuffix), 1);
}

void tst_ZTBatchOutputSettings::unknownEnumeratorsComeBackUnchanged()
{
    Settings settings(nullptr);
    for (const int value : {-1, 6, 1000, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        settings.SetNamingTemplate(Settings::PartPrefix, static_cast<Settings::NamingTemplate>(value));
        QCOMPARE(int(settings.GetNamingTemplate(Settings::PartPrefix)), value);
        settings.SetFolderStructure(static_cast<Settings::FolderStructure>(value));
        QCOMPARE(int(settings.GetFolderStructure()), value);
        settings.SetImageSizeSettings({value, value, value, -1.0, value});
        QCOMPARE(settings.GetImageSizeSettings().restriction, value);
        QCOMPARE(settings.GetImageSizeSettings().unit, value);
        QCOMPARE(settings.GetImageSizeSettings().side, value);
        settings.SetCropSettings({value, QSize(value, value), value});
        QCOMPARE(settings.GetCropSettings().alignment, value);
        QCOMPARE(settings.GetCropSettings().type, value);
    }
}

void tst_ZTBatchOutputSettings::equalRecordIsNotStored()
{
    Settings settings(nullptr);
    Settings::Transformation record;
    record.backgroundImageData = QImage(1, 1, QImage::Format_RGB32);
    settings.SetTransformationSettings(record);
    QVERIFY(settings.GetTransformationSettings().backgroundImageData.isNull());
}

void tst_ZTBatchOutputSettings::refreshPath()
{
    Settings settings(nullptr);
    settings.SetPath(QStringLiteral("/out"));
    SignalLog log(settings);
    settings.RefreshPath();
    QCOMPARE(settings.GetPath(), QStringLiteral("/out"));
    QCOMPARE(log.TakeNames(), QStringList());
}

void tst_ZTBatchOutputSettings::restoreDefault()
{
    Settings settings(nullptr);
    SetEverything(settings);
    SignalLog log(settings);
    settings.RestoreDefault();

    QStringList expected = Values(Settings(nullptr));
    expected[3] = QStringLiteral("70726f66696c65");
    expected[5] = QStringLiteral("-");
    expected[6] = QStringLiteral("_");
    QCOMPARE(Values(settings), expected);
    QVERIFY((settings.GetImageSizeSettings() == Settings::ImageSize{1, 1, 1, 1.5, 72}));
    QVERIFY((settings.GetCropSettings() == Settings::Crop{Qt::AlignLeft, QSize(3, 4), 2}));
    QCOMPARE(settings.GetTransformationSettings().angle, 12);
    // Prefix: its template. Middle: template, then text. Suffix: template, digits, start.
    QCOMPARE(log.TakeNames(), (QStringList{QStringLiteral("FormatChanged"), QStringLiteral("FolderStructureChanged"),
                                           QStringLiteral("NamingChanged"), QStringLiteral("NamingChanged"),
                                           QStringLiteral("NamingChanged"), QStringLiteral("NamingChanged"),
                                           QStringLiteral("NamingChanged"), QStringLiteral("NamingChanged"),
                                           QStringLiteral("PathChanged")}));

    settings.RestoreDefault();
    QCOMPARE(log.TakeNames(), QStringList());
}

/// The values at each NamingChanged() show the order within the parts.
void tst_ZTBatchOutputSettings::restoreDefaultOrderOfPartlyChangedSettings()
{
    Settings settings(nullptr);
    SetEverything(settings);
    QStringList states;
    connect(&settings, &Settings::NamingChanged, &settings,
            [&] { states.append(Values(settings).mid(7).join(QLatin1Char(' '))); });
    settings.RestoreDefault();
    QCOMPARE(states,
             (QStringList{QStringLiteral("5 text 77 9 2 text 77 9 2 text 77 9"),
                          QStringLiteral("5  0 1 4 text 77 9 2 text 77 9"),
                          QStringLiteral("5  0 1 4 Image 77 9 2 text 77 9"),
                          QStringLiteral("5  0 1 4 Image 0 1 1 text 77 9"),
                          QStringLiteral("5  0 1 4 Image 0 1 1  77 3"), QStringLiteral("5  0 1 4 Image 0 1 1  1 3")}));
}

void tst_ZTBatchOutputSettings::restoreDefaultAfterSeparator()
{
    Settings settings(nullptr);
    settings.SetPrefixSeparator(QStringLiteral("-"));
    SignalLog log(settings);
    settings.RestoreDefault();
    QCOMPARE(log.TakeNames(), QStringList());
    QCOMPARE(settings.GetPrefixSeparator(), QStringLiteral("-"));
}

void tst_ZTBatchOutputSettings::deletedInRestoreDefault()
{
    QPointer<Settings> settings(new Settings(nullptr));
    SetEverything(*settings);
    int changes = 0;
    connect(settings, &Settings::NamingChanged, this, [&] {
        ++changes;
        delete settings;
    });
    settings->RestoreDefault();
    QVERIFY(settings == nullptr);
    QCOMPARE(changes, 1);
}

QTEST_GUILESS_MAIN(tst_ZTBatchOutputSettings)
#include "tst_ztbatchoutputsettings.moc"
