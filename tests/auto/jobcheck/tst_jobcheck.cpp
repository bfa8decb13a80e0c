// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputNodes.h"

#include "job/settings/JobCheck.h"
#include "job/settings/NamePart.h"
#include "job/values/JobValues.h"

#include "ZTBatchDocument.h"
#include "ZTBatchManager.h"
#include "ZTStyle.h"

#include <QtTest>

#include <functional>
#include <limits>

using namespace BatchJob;
using Settings = ZTBatchOutputSettings;

class tst_JobCheck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void acceptedInTypedForm();
    void values_data();
    void values();
    void unusedValuesAreNotLookedAt_data();
    void unusedValuesAreNotLookedAt();
    void effects_data();
    void effects();
    void metadataChangeNoPixels();
    void emptyJob();
    void policies_data();
    void policies();
};

namespace {

using Change = std::function<void(Settings&)>;

/// A job of one file that is accepted.
void Describe(ZTBatchDocument& job)
{
    job.GetInputModel()->InsertBranch(NewFile(QStringLiteral("a.jpg")), QModelIndex());
    job.GetOutputSettings()->SetPath(QStringLiteral("/out/./x/"));
}

template<typename Record>
Change With(Record (Settings::*get)() const, void (Settings::*set)(const Record&),
            const std::function<void(Record&)>& change)
{
    return [=](Settings& settings) {
        Record record = (settings.*get)();
        change(record);
        (settings.*set)(record);
    };
}

Change Size(const std::function<void(Settings::ImageSize&)>& change)
{
    return With<Settings::ImageSize>(&Settings::GetImageSizeSettings, &Settings::SetImageSizeSettings,
                                     [change](Settings::ImageSize& size) {
                                         size.restriction = 1;
                                         change(size);
                                     });
}

Change Crop(const std::function<void(Settings::Crop&)>& change)
{
    return With<Settings::Crop>(&Settings::GetCropSettings, &Settings::SetCropSettings, [change](Settings::Crop& crop) {
        crop.type = 1;
        change(crop);
    });
}

Change Framing(const std::function<void(Settings::Transformation&)>& change)
{
    return With<Settings::Transformation>(&Settings::GetTransformationSettings, &Settings::SetTransformationSettings,
                                          [change](Settings::Transformation& framing) {
                                              framing.state = true;
                                              change(framing);
                                          });
}

Change Format(const char* format, const QByteArray& options = {})
{
    return [=](Settings& settings) { settings.SetFormat(QLatin1String(format), options); };
}

Change Tokens(Settings::NamingPart part, const char* text)
{
    return [=](Settings& settings) { SetNamePart(settings, part, {TemplateTokens, QString::fromLatin1(text), 1}); };
}

Change Part(Settings::NamingPart part, int kind, int digits = 1)
{
    return [=](Settings& settings) {
        settings.SetNamingTemplate(part, Settings::NamingTemplate(kind));
        settings.SetDigitsCount(part, digits);
    };
}

} // namespace

Q_DECLARE_METATYPE(Change)

void tst_JobCheck::acceptedInTypedForm()
{
    ZTBatchDocument job;
    Describe(job);
    job.GetOutputSettings()->SetFormat(QStringLiteral("JPEG"), "{\"quality\": 70}");
    job.GetStyle()->AppendEffect(QStringLiteral("exposure"), "{\"stops\": 1.5}", true);
    job.GetStyle()->AppendEffect(QStringLiteral("exposure"), {}, true);
    const CheckedSettings checked = CheckJob(job);
    QVERIFY2(checked.IsAccepted(), qPrintable(checked.refusal.message));
    QCOMPARE(checked.settings.outputFolder, QStringLiteral("/out/x"));
    QCOMPARE(checked.settings.format, QStringLiteral("JPEG"));
    QCOMPARE(checked.settings.formatOptions.value(QStringLiteral("quality")).toInt(), 70);
    QCOMPARE(checked.settings.effects.size(), 2);
    QCOMPARE(checked.settings.effects[0].schema->id, QStringLiteral("exposure"));
    QCOMPARE(checked.settings.effects[0].parameters.value(QStringLiteral("stops")).toDouble(), 1.5);
    QCOMPARE(checked.settings.effects[1].parameters.value(QStringLiteral("stops")).toDouble(), 0.0);
}

void tst_JobCheck::values_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QString>("message"); // empty: accepted
    const auto refused = [](const char* title, const Change& change, const char* message) {
        QTest::newRow(title) << change << QString::fromLatin1(message);
    };
    const auto accepted = [](const char* title, const Change& change) { QTest::newRow(title) << change << QString(); };
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double noNumber = std::numeric_limits<double>::quiet_NaN();

    refused(
        "no folder", [](Settings& settings) { settings.SetPath({}); },
        "The output folder is \"\"; it must be an absolute path");
    refused(
        "relative folder", [](Settings& settings) { settings.SetPath(QStringLiteral("out")); },
        "The output folder is \"out\"; it must be an absolute path");
    refused(
        "structure", [](Settings& settings) { settings.SetFolderStructure(Settings::FolderStructure(3)); },
        "The folder structure is 3; it must be one of 0 (flat), 1 (input), 2 (date)");
    refused("prefix", Part(Settings::PartPrefix, 7), "The name's prefix is 7; it must be one of 0 (original)");
    refused("middle", Part(Settings::PartMiddle, -1), "The name's middle is -1; it must be");
    refused("suffix", Part(Settings::PartSuffix, 1000), "The name's suffix is 1000; it must be");
    refused("digits", Part(Settings::PartMiddle, Settings::TemplateNumber, 65),
            "The number of digits in the name's middle is 65; it must be a whole number from 1 to 64");
    refused("unknown token", Tokens(Settings::PartMiddle, "a {nme}"),
            "The name's middle: \"{nme}\" at character 3 is not a token; did you mean \"{name}\"?");
    refused("digits of a token", Tokens(Settings::PartSuffix, "{number:0}"),
            "The name's suffix: \"{number:0}\" at character 1 cannot be used: the number of digits must be");
    refused("date pattern", Tokens(Settings::PartPrefix, "{date:D.M.}"),
            "The name's prefix: \"{date:D.M.}\" at character 1 cannot be used: a date is made of YYYY, YY, MM and DD");
    refused("open brace", Tokens(Settings::PartMiddle, "{name"), "The name's middle: \"{\" at character 1 begins");
    accepted("tokens", Tokens(Settings::PartMiddle, "{{{date:YYYY-MM-DD}_{number:4}}}"));
    accepted("a text without tokens", [](Settings& settings) {
        settings.SetNamingTemplate(Settings::PartMiddle, Settings::TemplateCustomText);
        settings.SetCustomTemplate(Settings::PartMiddle, QStringLiteral("{nme} }{"));
    });
    accepted("most digits", Part(Settings::PartMiddle, Settings::TemplateNumber, 64));

    refused("format", Format("jpeg"), "The format is \"jpeg\"; it must be one of Original, JPEG");
    refused("no format", Format(""), "The format is \"\"; it must be");
    refused("option", Format("JPEG", "{\"qualty\": 1}"),
            "The options of the format JPEG: \"qualty\" is unknown; did you mean \"quality\"?");
    refused("option's value", Format("JPEG", "{\"quality\": 101}"),
            "The options of the format JPEG: \"quality\" is 101");
    refused("another format's option", Format("PNG", "{\"effort\": 1}"), "The options of the format PNG: \"effort\"");
    refused("options no JSON", Format("PNG", "quality"), "The options of the format PNG: not valid JSON");
    accepted("original format", Format("Original", "{\"quality\": 90}"));

    refused("restriction", Size([](auto& size) { size.restriction = 4; }),
            "The image size's restriction is 4; it must");
    refused("side", Size([](auto& size) { size.side = -1; }),
            "The image size's side is -1; it must be one of 0 (width)");
    refused("unit", Size([](auto& size) { size.unit = 5; }), "The image size's unit is 5; it must be one of 0 (px)");
    refused("size 0", Size([](auto& size) { size.size = 0; }), "The image size is 0; it must be a number above 0");
    refused("negative size", Size([](auto& size) { size.size = -2.5; }), "The image size is -2.5; it must be");
    refused("infinite size", Size([infinity](auto& size) { size.size = infinity; }),
            "The image size is inf; it must be");
    refused("size no number", Size([noNumber](auto& size) { size.size = noNumber; }), "The image size is nan; it must");
    refused("resolution", Size([](auto& size) { size.resolution = -1; }), "The image size's resolution is -1; it must");
    refused("inches without resolution", Size([](auto& size) {
                size.unit = 2;
                size.resolution = 0;
            }),
            "The image size's resolution is 0; it must be a whole number from 1");
    accepted("pixels without resolution", Size([](auto& size) { size.resolution = 0; }));

    refused("crop", Crop([](auto& crop) { crop.type = 8; }), "The crop's type is 8; it must be one of 0 (none)");
    refused("crop width", Crop([](auto& crop) { crop.size.setWidth(0); }), "The crop's width is 0; it must be");
    refused("crop height", Crop([](auto& crop) { crop.size.setHeight(-5); }), "The crop's height is -5; it must be");
    refused("alignment", Crop([](auto& crop) { crop.alignment = 0x200; }), "The crop's alignment is 512; it must be");
    accepted("turning ratio", Crop([](auto& crop) { crop.type = 6; }));
    accepted("turning interesting", Crop([](auto& crop) { crop.type = 7; }));
    refused("turning crop width", Crop([](auto& crop) {
                crop.type = 6;
                crop.size.setWidth(0);
            }),
            "The crop's width is 0; it must be");
    accepted("top left", Crop([](auto& crop) { crop.alignment = Qt::AlignTop | Qt::AlignLeft; }));

    refused("margin", Framing([](auto& framing) { framing.margins.setTop(2'000'000); }),
            "The frame's margin is 2000000; it must be");
    refused("blending", Framing([](auto& framing) { framing.blending = 9; }), "The frame's blending is 9; it must be");
    refused("opacity", Framing([](auto& framing) { framing.opacity = 1.5; }),
            "The picture's opacity is 1.5; it must be a number from 0 to 1");
    refused("opacity no number", Framing([noNumber](auto& framing) { framing.opacity = noNumber; }),
            "The picture's opacity is nan");
    refused("shadow mode", Framing([](auto& framing) { framing.shadowMode = 2; }), "The shadow's mode is 2; it must");
    refused("shadow opacity", Framing([](auto& framing) { framing.shadowOpacity = -1; }), "The shadow's opacity is -1");
    refused("shadow distance", Framing([](auto& framing) { framing.shadowDistance = -1; }),
            "The shadow's distance is -1");
    refused("shadow size", Framing([](auto& framing) { framing.shadowSize = 1'000'000; }),
            "The shadow's size is 1000000");
    refused("background", Framing([](auto& framing) { framing.backgroundType = 4; }), "The background's type is 4; it");
    refused("pattern", Framing([](auto& framing) {
                framing.backgroundType = 2;
                framing.backgroundPattern = {8, 0, 0};
            }),
            "The background's pattern is 8; it must be a whole number from 0 to 7");
    refused("pattern's scale", Framing([](auto& framing) {
                framing.backgroundType = 2;
                framing.backgroundPattern = {0, -1, 0};
            }),
            "The scale of the background's pattern is -1");
    refused("background picture", Framing([](auto& framing) {
                framing.backgroundType = 3;
                framing.backgroundImage = QStringLiteral("/nowhere/sea.jpg");
            }),
            "The background's image is \"/nowhere/sea.jpg\"; it must be the absolute path of a file that exists");
    refused("frame", Framing([](auto& framing) {
                framing.backgroundCustomOutput = true;
                framing.backgroundCustomSize = QSize(100, 0);
            }),
            "The frame's height is 0; it must be");
}

void tst_JobCheck::values()
{
    QFETCH(Change, change);
    QFETCH(QString, message);
    ZTBatchDocument job;
    Describe(job);
    change(*job.GetOutputSettings());
    const CheckedSettings checked = CheckJob(job);
    QCOMPARE(checked.IsAccepted(), message.isEmpty());
    QCOMPARE(checked.refusal.code,
             message.isEmpty() ? ZTBatchMessage::NoError : ZTBatchMessage::ReadOutputSettingsError);
    QVERIFY2(checked.refusal.message.startsWith(message), qPrintable(checked.refusal.message));
    QCOMPARE(checked.refusal.message.isEmpty(), message.isEmpty());
}

void tst_JobCheck::unusedValuesAreNotLookedAt_data()
{
    QTest::addColumn<Change>("change");
    QTest::newRow("size") << Size([](auto& size) {
        size.restriction = 0;
        size.side = 99;
        size.size = -1;
    });
    QTest::newRow("crop") << Crop([](auto& crop) {
        crop.type = 0;
        crop.size = QSize(-1, -1);
    });
    QTest::newRow("trim") << Crop([](auto& crop) {
        crop.type = 2;
        crop.size = QSize(-1, -1);
    });
    QTest::newRow("framing") << Framing([](auto& framing) {
        framing.state = false;
        framing.blending = 99;
    });
    QTest::newRow("shadow") << Framing([](auto& framing) {
        framing.shadowEnabled = false;
        framing.shadowMode = 99;
    });
}

void tst_JobCheck::unusedValuesAreNotLookedAt()
{
    QFETCH(Change, change);
    ZTBatchDocument job;
    Describe(job);
    change(*job.GetOutputSettings());
    const CheckedSettings checked = CheckJob(job);
    QVERIFY2(checked.IsAccepted(), qPrintable(checked.refusal.message));
}

void tst_JobCheck::effects_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QByteArray>("data");
    QTest::addColumn<bool>("isEnabled");
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("message");
    QTest::newRow("unknown") << "exposur" << QByteArray() << true << int(ZTBatchMessage::NoAdjustment)
                             << "Effect 2, \"exposur\", does not exist; did you mean \"exposure\"?";
    QTest::newRow("unknown and far") << "\n"
                                     << QByteArray() << true << int(ZTBatchMessage::NoAdjustment)
                                     << "Effect 2, \"\n\", does not exist; there are exposure";
    QTest::newRow("out of range") << "exposure" << QByteArray("{\"stops\": 11}") << true
                                  << int(ZTBatchMessage::ApplyAdjustmentError)
                                  << "Effect 2, \"exposure\": \"stops\" is 11; it must be a number from -10 to 10";
    QTest::newRow("no JSON") << "exposure" << QByteArray("\xFF\xFE") << true
                             << int(ZTBatchMessage::ApplyAdjustmentError) << "Effect 2, \"exposure\": not valid JSON";
    QTest::newRow("percent signs") << "exposure" << QByteArray("{\"%1%2\": 1}") << true
                                   << int(ZTBatchMessage::ApplyAdjustmentError)
                                   << "Effect 2, \"exposure\": \"%1%2\" is unknown";
    QTest::newRow("token")
        << "watermark-text" << QByteArray("{\"text\": \"{x}\", \"tokens\": true}") << true
        << int(ZTBatchMessage::ApplyAdjustmentError)
        << "Effect 2, \"watermark-text\": text: \"{x}\" at character 1 is not a token; the tokens are";
    QTest::newRow("disabled") << "exposur" << QByteArray("{") << false << int(ZTBatchMessage::NoError) << QString();
}

void tst_JobCheck::effects()
{
    QFETCH(QString, id);
    QFETCH(QByteArray, data);
    QFETCH(bool, isEnabled);
    QFETCH(QString, message);
    ZTBatchDocument job;
    Describe(job);
    job.GetStyle()->AppendEffect(QStringLiteral("exposure"), {}, true);
    job.GetStyle()->AppendEffect(id, data, isEnabled);
    const CheckedSettings checked = CheckJob(job);
    QTEST(int(checked.refusal.code), "code");
    QVERIFY2(checked.refusal.message.startsWith(message), qPrintable(checked.refusal.message));
    if (checked.IsAccepted()) {
        QCOMPARE(checked.settings.effects.size(), 1);
    }
}

void tst_JobCheck::metadataChangeNoPixels()
{
    ZTBatchDocument job;
    Describe(job);
    job.GetStyle()->AppendEffect(QStringLiteral("set-metadata"), R"({"title":"{name}"})", true);
    QVERIFY(!ChangePixels(CheckJob(job).settings.effects));
    job.GetStyle()->AppendEffect(QStringLiteral("invert"), {}, true);
    QVERIFY(ChangePixels(CheckJob(job).settings.effects));
}

void tst_JobCheck::emptyJob()
{
    ZTBatchDocument job;
    job.GetOutputSettings()->SetPath(QStringLiteral("/out"));
    job.GetInputModel()->InsertBranch(NewFolder(QStringLiteral("empty")), QModelIndex());
    QCOMPARE(CheckJob(job).refusal.code, ZTBatchMessage::EmptyBatchDocument);
    QVERIFY(CheckSettings(job).IsAccepted());
}

void tst_JobCheck::policies_data()
{
    QTest::addColumn<QVector<int>>("values");
    QTest::addColumn<QString>("message");
    QTest::newRow("defaults") << QVector<int>{2, 2, 2, 3, 2} << QString();
    QTest::newRow("greatest") << QVector<int>{2, 2, 2, 3, 3} << QString();
    QTest::newRow("input") << QVector<int>{3, 0, 0, 0, 0} << "The input policy is 3; it must be one of 0 (skip)";
    QTest::newRow("output") << QVector<int>{0, -1, 0, 0, 0} << "The output policy is -1";
    QTest::newRow("processing") << QVector<int>{0, 0, 3, 0, 0} << "The processing policy is 3";
    QTest::newRow("naming") << QVector<int>{0, 0, 0, 4, 0} << "The naming policy is 4; it must be one of 0 (skip)";
    QTest::newRow("write to format") << QVector<int>{0, 0, 0, 0, 4} << "The write-to-format policy is 4";
}

void tst_JobCheck::policies()
{
    QFETCH(QVector<int>, values);
    QFETCH(QString, message);
    const Refusal refusal =
        CheckPolicies({QStringLiteral("id"), {}, values[0], values[1], values[2], values[3], values[4]});
    QCOMPARE(refusal.code, message.isEmpty() ? ZTBatchMessage::NoError : ZTBatchMessage::ReadOutputSettingsError);
    QVERIFY2(refusal.message.startsWith(message), qPrintable(refusal.message));
}

QTEST_APPLESS_MAIN(tst_JobCheck)
#include "tst_jobcheck.moc"
