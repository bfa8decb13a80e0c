// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InputNodes.h"
#include "PictureFiles.h"

#include "hosts/common/JobRun.h"
#include "hosts/desktop/job/EditedJob.h"
#include "hosts/desktop/preview/PreviewMaker.h"

#include "job/effects/EffectCatalog.h"
#include "job/formats/FormatCatalog.h"

#include "ZTBatchManager.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace BatchDesktop;
using namespace BatchHost;
using namespace BatchJob;

Q_DECLARE_METATYPE(Settings)

/// A preview is, byte for byte, the file that a run of the real server writes.
class tst_PreviewBytes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void formats_data();
    void formats();
    void effects_data();
    void effects();
    void settings_data();
    void settings();

private:
    QByteArray OfRun(const QString& input, const Settings& wanted);
    void Compare(const QString& input, Settings wanted);
    QJsonObject Example(const EffectSchema& effect) const;

    QTemporaryDir folder;
    QString photo;
    std::unique_ptr<PreviewMaker> maker;
};

namespace {

constexpr int patience = 60'000; // ms

const char* const cube = "LUT_3D_SIZE 2\n0 0 0\n1 0 0\n0 1 0\n1 1 0\n0 0 1\n1 0 .5\n0 1 1\n1 .8 1\n";

QByteArray ContentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Settings ToJpeg()
{
    Settings settings = Settings::Of(ZTBatchDocument());
    settings.format = QStringLiteral("JPEG");
    return settings;
}

void AddEffect(Settings& settings, const char* name, const QJsonObject& parameters)
{
    settings.effects.append({QString::fromLatin1(name), QJsonDocument(parameters).toJson(), true});
}

} // namespace

void tst_PreviewBytes::initTestCase()
{
    photo = folder.filePath(QStringLiteral("photo.jpg"));
    PictureFiles::WriteJpeg(photo, 3, 240, 160);
    QFile table(folder.filePath(QStringLiteral("example.cube")));
    QVERIFY(table.open(QIODevice::WriteOnly) && table.write(cube) > 0);
    QImage mark(24, 16, QImage::Format_ARGB32);
    mark.fill(QColor(200, 40, 90, 128));
    QVERIFY(mark.save(folder.filePath(QStringLiteral("example.png"))));
    maker = std::make_unique<PreviewMaker>();
}

/// What the server writes for `input`, by way of the command line's own run.
QByteArray tst_PreviewBytes::OfRun(const QString& input, const Settings& wanted)
{
    EditedJob job;
    job.Change(wanted, QString());
    InputNode* const node = NewFile(QFileInfo(input).fileName());
    node->data.fileName = input;
    job.Document().GetInputModel()->InsertBranch(node, {});
    JobRun run(folder.filePath(QStringLiteral("manager")));
    if (run.WhatPrevents() != JobRun::Obstacle::None) {
        return {};
    }
    JournaledJob journaled = JournaledJob::New(job.Document());
    JobRun::Circumstances circumstances;
    circumstances.policies = wanted.policies;
    const std::unique_ptr<RunController> controller = run.Prepare(job.Document(), journaled, circumstances, {});
    bool isOver = false;
    connect(controller.get(), &RunController::Ended, this, [&](const RunEnd& end) {
        journaled.End(end);
        isOver = true;
    });
    controller->Start();
    if (!QTest::qWaitFor([&] { return isOver; }, patience)) {
        return {};
    }
    const QStringList results = QDir(wanted.outputFolder).entryList(QDir::Files);
    return results.size() == 1 ? ContentOf(QDir(wanted.outputFolder).filePath(results.first())) : QByteArray();
}

void tst_PreviewBytes::Compare(const QString& input, Settings wanted)
{
    const QTemporaryDir output(folder.filePath(QStringLiteral("out-XXXXXX")));
    wanted.outputFolder = output.path();
    wanted.policies = {};
    wanted.policies[std::size_t(PolicyKind::WriteToFormat)] = ZTBatchManager::WriteToFormatNearest;
    QSignalSpy made(maker.get(), &PreviewMaker::Made);
    QSignalSpy failed(maker.get(), &PreviewMaker::Failed);
    maker->Show(input, wanted);
    QTRY_COMPARE_WITH_TIMEOUT(made.count() + failed.count(), 1, patience);
    QVERIFY2(failed.isEmpty(), qUtf8Printable(failed.value(0).value(0).toString()));
    const auto pictures = made.first().first().value<PreviewPictures>();
    const QByteArray preview = ContentOf(pictures.result);
    QCOMPARE(pictures.bytes, qint64(preview.size()));
    QVERIFY(!pictures.after.isNull());
    QCOMPARE(pictures.after.size(), pictures.size);
    const QByteArray ofRun = OfRun(input, wanted);
    QVERIFY(!ofRun.isEmpty());
    QVERIFY2(preview == ofRun, "the preview is another file than that of the run");
}

QJsonObject tst_PreviewBytes::Example(const EffectSchema& effect) const
{
    QJsonObject example = QJsonDocument::fromJson(effect.example).object();
    if (example.contains(QStringLiteral("file"))) {
        example[QStringLiteral("file")] = folder.filePath(example[QStringLiteral("file")].toString());
    }
    return example;
}

void tst_PreviewBytes::formats_data()
{
    QTest::addColumn<QString>("format");
    for (const FormatSchema& format : Formats()) {
        QTest::newRow(qUtf8Printable(format.name)) << format.name;
    }
    QTest::newRow("Original") << ZTBatchOutputSettings::GetOriginalFormat();
}

void tst_PreviewBytes::formats()
{
    QFETCH(QString, format);
    Settings wanted = ToJpeg();
    wanted.format = format;
    Compare(photo, wanted);
}

void tst_PreviewBytes::effects_data()
{
    QTest::addColumn<QString>("effect");
    for (const EffectSchema& effect : Effects()) {
        QTest::newRow(qUtf8Printable(effect.id)) << effect.id;
    }
}

void tst_PreviewBytes::effects()
{
    QFETCH(QString, effect);
    Settings wanted = ToJpeg();
    AddEffect(wanted, qUtf8Printable(effect), Example(*FindEffect(effect)));
    Compare(photo, wanted);
}

void tst_PreviewBytes::settings_data()
{
    QTest::addColumn<Settings>("wanted");
    const auto row = [](const char* name, const std::function<void(Settings&)>& change) {
        Settings wanted = ToJpeg();
        change(wanted);
        QTest::newRow(name) << wanted;
    };
    row("size", [](Settings& wanted) {
        wanted.imageSize.restriction = int(SizeRestriction::ReduceOnly);
        wanted.imageSize.size = 99;
    });
    row("crop", [](Settings& wanted) {
        wanted.crop.type = int(CropType::Interesting);
        wanted.crop.size = {1, 1};
    });
    row("frame with shadow", [](Settings& wanted) {
        wanted.framing.state = true;
        wanted.framing.angle = 7;
        wanted.framing.margins = {20, 20, 20, 20};
        wanted.framing.backgroundType = int(BackgroundType::Colour);
        wanted.framing.backgroundColor = QColor(250, 240, 200);
    });
    row("effects in a row", [](Settings& wanted) {
        AddEffect(wanted, "rotate", {{QStringLiteral("angle"), 4}});
        AddEffect(wanted, "exposure", {{QStringLiteral("stops"), 0.4}});
        AddEffect(wanted, "sharpen", {});
        wanted.effects[1].isEnabled = false;
    });
    row("names with times", [](Settings& wanted) {
        wanted.nameParts[0].kind = ZTBatchOutputSettings::TemplateCaptureDate;
        wanted.structure = ZTBatchOutputSettings::StructureFlat;
    });
    row("options",
        [](Settings& wanted) { wanted.formatOptions = R"({"quality": 35, "progressive": true, "keep": []})"; });
}

void tst_PreviewBytes::settings()
{
    QFETCH(Settings, wanted);
    Compare(photo, wanted);
}

QTEST_MAIN(tst_PreviewBytes)

#include "tst_previewbytes.moc"
