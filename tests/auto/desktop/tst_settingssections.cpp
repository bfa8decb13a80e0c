// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PaneStage.h"

#include "hosts/desktop/settings/parameters/ParameterField.h"
#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"
#include "job/settings/JobCheck.h"
#include "job/values/JobValues.h"

#include <QComboBox>
#include <QJsonDocument>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

using namespace BatchDesktop;
using namespace BatchJob;

using Output = ZTBatchOutputSettings;

/// The sections of the pane: what each shows of a job, and what it says is wrong with it.
class tst_SettingsSections : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void problemsAreSaidBesideTheirField_data();
    void problemsAreSaidBesideTheirField();
    void eachFormatShowsItsOptions_data();
    void eachFormatShowsItsOptions();
    void anotherFormatDropsWhatItDoesNotTake();
    void depthsAreThoseOfTheFormat();
    void namesHaveALiveExample();
    void profilesAreReadAndRefused();
};

namespace {

using Change = std::function<void(Settings&)>;

} // namespace

Q_DECLARE_METATYPE(Change)

void tst_SettingsSections::problemsAreSaidBesideTheirField_data()
{
    QTest::addColumn<Change>("change");
    QTest::addColumn<QByteArray>("section");
    QTest::addColumn<QByteArray>("field");
    const auto row = [](const char* section, const char* field, const Change& change) {
        QTest::newRow(field) << change << QByteArray(section) << QByteArray(field);
    };
    const auto scaled = [](Settings& settings) { settings.imageSize.restriction = int(SizeRestriction::Fit); };
    row("size", "size.length", [scaled](Settings& settings) {
        scaled(settings);
        settings.imageSize.size = 2'000'000;
    });
    row("size", "size.side", [scaled](Settings& settings) {
        scaled(settings);
        settings.imageSize.side = 9;
    });
    row("size", "size.resolution", [scaled](Settings& settings) {
        scaled(settings);
        settings.imageSize.unit = int(SizeUnit::Inches);
        settings.imageSize.resolution = 0;
    });
    row("crop", "crop.height", [](Settings& settings) {
        settings.crop = {Qt::AlignCenter, QSize(10, 0), int(CropType::Exact)};
    });
    row("frame", "frame.image", [](Settings& settings) {
        settings.framing.state = true;
        settings.framing.backgroundType = int(BackgroundType::Image);
        settings.framing.backgroundImage = QStringLiteral("/no/such.png");
    });
    row("frame", "frame.opacity", [](Settings& settings) {
        settings.framing.state = true;
        settings.framing.opacity = 1.5;
    });
    row("names", "names.suffixDigits", [](Settings& settings) {
        settings.nameParts[Output::PartSuffix] = {Output::TemplateNumber, {}, 1, 65};
    });
    row("format", "format.quality", [](Settings& settings) {
        settings.format = QStringLiteral("JPEG");
        settings.formatOptions = R"({"quality":101})";
    });
    row("metadata", "metadata.keep", [](Settings& settings) {
        settings.format = QStringLiteral("JPEG");
        settings.formatOptions = R"({"keep":["all"]})";
    });
    row("folder", "folder.path", [](Settings& settings) { settings.outputFolder = QStringLiteral("results"); });
}

void tst_SettingsSections::problemsAreSaidBesideTheirField()
{
    QFETCH(const Change, change);
    QFETCH(const QByteArray, section);
    QFETCH(const QByteArray, field);
    PaneStage stage;
    stage.Unfold();
    stage.Set(change);
    const QString problem = CheckSettings(stage.job.Document()).refusal.message;
    QVERIFY(!problem.isEmpty());
    auto& label = stage.The<ProblemLabel>((field + ".problem").constData());
    QVERIFY(label.isVisible());
    const QString said = label.text().mid(2); // behind the sign
    QVERIFY2(problem.endsWith(said), qPrintable(said + QLatin1Char('\n') + problem));
    QVERIFY(stage.Section(section.constData()).StateText().endsWith(said));
    const auto labels = stage.pane.findChildren<ProblemLabel*>();
    for (ProblemLabel* const other : labels) {
        QVERIFY(other == &label || other->text().isEmpty());
    }
    stage.job.History().undo();
    QVERIFY(stage.The<ProblemLabel>((field + ".problem").constData()).text().isEmpty());
}

void tst_SettingsSections::eachFormatShowsItsOptions_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("Original") << Output::GetOriginalFormat();
    for (const FormatSchema& format : Formats()) {
        QTest::newRow(qPrintable(format.name)) << format.name;
    }
}

void tst_SettingsSections::eachFormatShowsItsOptions()
{
    QFETCH(const QString, format);
    PaneStage stage;
    stage.Unfold();
    stage.Set([&format](Settings& settings) { settings.format = format; });
    QSet<QString> expected{QStringLiteral("format.format")};
    for (const ParameterSchema& option : OptionsTakenBy(format)) {
        const bool isMetadata = option.name.startsWith(QStringLiteral("keep"));
        expected.insert((isMetadata ? QStringLiteral("metadata.") : QStringLiteral("format.")) + option.name);
    }
    QSet<QString> shown;
    for (const char* const section : {"format", "metadata"}) {
        const auto labels = stage.Section(section).findChildren<ProblemLabel*>();
        for (const ProblemLabel* const label : labels) {
            if (label->parentWidget()->isVisible() && !label->objectName().isEmpty()) {
                shown.insert(label->objectName().chopped(int(qstrlen(".problem"))));
            }
        }
    }
    QCOMPARE(shown, expected);
    QVERIFY(CheckSettings(stage.job.Document()).IsAccepted());
}

void tst_SettingsSections::anotherFormatDropsWhatItDoesNotTake()
{
    PaneStage stage;
    stage.Unfold();
    auto& formats = stage.The<QComboBox>("format.format");
    stage.Set([](Settings& settings) {
        settings.format = QStringLiteral("JPEG");
        settings.formatOptions = R"({"background":"#102030","chromaSubsampling":"4:4:4","keep":["icc"],"quality":70})";
    });
    for (int i = 0; i < formats.count() - 1; ++i) {
        QTest::keyClick(&formats, Qt::Key_Down);
        QVERIFY2(CheckSettings(stage.job.Document()).IsAccepted(), qPrintable(formats.currentText()));
        const QJsonObject options = QJsonDocument::fromJson(stage.job.CurrentSettings().formatOptions).object();
        QCOMPARE(options.value(QStringLiteral("keep")).toArray().size(), 1);
    }
    while (stage.job.History().count() > 0 && stage.job.History().index() > 1) {
        stage.job.History().undo();
    }
    QVERIFY(stage.job.CurrentSettings().formatOptions.contains("4:4:4"));
}

void tst_SettingsSections::depthsAreThoseOfTheFormat()
{
    PaneStage stage;
    stage.Unfold();
    const auto texts = [&stage] {
        QStringList shown;
        const auto& box = stage.The<QComboBox>("format.bitDepth");
        for (int i = 0; i < box.count(); ++i) {
            shown.append(box.itemText(i));
        }
        return shown.join(QLatin1Char('|'));
    };
    stage.Set([](Settings& settings) { settings.format = QStringLiteral("PNG"); });
    QCOMPARE(texts(), QStringLiteral("As the format has it|8|16"));
    QTest::keyClick(&stage.The<QComboBox>("format.bitDepth"), Qt::Key_End);
    QCOMPARE(stage.job.CurrentSettings().formatOptions, QByteArray(R"({"bitDepth":16})"));
    QTest::keyClick(&stage.The<QComboBox>("format.bitDepth"), Qt::Key_Home);
    QCOMPARE(stage.job.CurrentSettings().formatOptions, QByteArray());
    stage.Set([](Settings& settings) {
        settings.format = QStringLiteral("TIFF");
        settings.formatOptions = R"({"compression":"jpeg"})";
    });
    QCOMPARE(texts(), QStringLiteral("As the format has it|8"));
}

void tst_SettingsSections::namesHaveALiveExample()
{
    PaneStage stage;
    stage.Unfold();
    auto& example = stage.The<QLabel>("names.example");
    stage.pane.SetExample(QStringLiteral("/in/DSC 7.JPEG"), 41);
    QCOMPARE(example.text(), QStringLiteral("Example: DSC 7.jpg"));
    stage.Set([](Settings& settings) {
        settings.format = QStringLiteral("PNG");
        settings.nameParts[Output::PartSuffix] = {Output::TemplateNumber, {}, 1, 4};
    });
    QTest::keyClicks(&stage.The<QLineEdit>("names.suffixSeparator"), QStringLiteral("-"));
    QCOMPARE(example.text(), QStringLiteral("Example: DSC 7-0042.png"));
    stage.Set([](Settings& settings) { settings.nameParts[Output::PartPrefix].kind = Output::TemplateCaptureDate; });
    QCOMPARE(example.text(), QStringLiteral("Example, as if it had been taken on 2024-07-31 at 14:05:09: "
                                            "20240731DSC 7-0042.png"));
    stage.pane.SetExample(QStringLiteral("/in/DSC 7.JPEG"), 41, QDateTime(QDate(2021, 2, 3), QTime(4, 5, 6)));
    QCOMPARE(example.text(), QStringLiteral("Example: 20210203DSC 7-0042.png"));
    QCOMPARE(stage.Section("names").StateText(), QStringLiteral("20210203DSC 7-0042.png"));
}

void tst_SettingsSections::profilesAreReadAndRefused()
{
    const QTemporaryDir folder;
    const auto write = [&folder](const char* name, const QByteArray& bytes) {
        QFile file(folder.filePath(QString::fromLatin1(name)));
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() ? file.fileName() : QString();
    };
    QByteArray profile(200, '\0');
    profile.replace(36, 4, "acsp");
    profile.replace(128, 20,
                    QByteArray::fromHex("00000001"
                                        "64657363"
                                        "00000094"
                                        "00000020"
                                        "64657363"));
    profile.replace(148, 4, "desc");
    profile.replace(156, 4, QByteArray::fromHex("0000000A"));
    profile.replace(160, 10, QByteArray("Wide RGB!\0", 10));

    PaneStage stage;
    stage.Unfold();
    auto& problem = stage.The<ProblemLabel>("profile.problem");
    stage.chosenPath = write("no.icc", "no profile");
    QTest::mouseClick(&stage.The<QPushButton>("profile.choose"), Qt::LeftButton);
    QVERIFY(problem.text().contains(QStringLiteral("is not an ICC profile")));
    QCOMPARE(stage.job.History().count(), 0);
    stage.chosenPath = write("wide.icc", profile);
    QTest::mouseClick(&stage.The<QPushButton>("profile.choose"), Qt::LeftButton);
    QVERIFY(problem.text().isEmpty());
    QCOMPARE(stage.job.CurrentSettings().profile, profile);
    QCOMPARE(stage.Section("profile").StateText(), QStringLiteral("Wide RGB!"));
    QTest::mouseClick(&stage.The<QPushButton>("profile.remove"), Qt::LeftButton);
    QVERIFY(stage.job.CurrentSettings().profile.isEmpty());
    stage.job.History().undo();
    QCOMPARE(stage.job.CurrentSettings().profile, profile);
}

QTEST_MAIN(tst_SettingsSections)
#include "tst_settingssections.moc"
