// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FramingPictures.h"

#include "server/worker/colour/ColourProfile.h"
#include "server/worker/colour/PictureColours.h"
#include "server/worker/pixels/EmbeddedProfile.h"
#include "server/worker/pixels/PictureFailure.h"

#include <QDataStream>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace FramingPictures;
using BatchJob::BackgroundType;
using BatchWorker::PictureFailure;

namespace {

// A picture in one of the profiles that the library brings along.
Picture WithProfile(const Picture& picture, const char* profile)
{
    VipsBlob* blob = nullptr;
    if (vips_profile_load(profile, &blob, nullptr) != 0) {
        throw vips::VError();
    }
    Picture result = picture.copy();
    std::size_t size = 0;
    const void* bytes = vips_blob_get(blob, &size);
    vips_image_set_blob_copy(result.get_image(), VIPS_META_ICC_NAME, bytes, size);
    vips_area_unref(VIPS_AREA(blob));
    return result;
}

// An ICC profile (version 2.1) of grey values that are proportional to light.
QByteArray LinearGreyProfile()
{
    const auto number = [](const char* text) {
        return quint32(text[0]) << 24 | quint32(text[1]) << 16 | quint32(text[2]) << 8 | quint32(text[3]);
    };
    const quint32 whiteX = 0xF6D6; // D50, as ICC.1 writes it
    const quint32 whiteY = 0x10000;
    const quint32 whiteZ = 0xD32D;
    QByteArray profile;
    QDataStream stream(&profile, QIODevice::WriteOnly);
    stream << quint32(192) << quint32(0) << quint32(0x02100000) << number("mntr") << number("GRAY") << number("XYZ ");
    stream << quint32(0) << quint32(0) << quint32(0) << number("acsp");
    stream << quint32(0) << quint32(0) << quint32(0) << quint32(0) << quint64(0) << quint32(0);
    stream << whiteX << whiteY << whiteZ << quint32(0);
    profile.append(QByteArray(128 - profile.size(), '\0'));
    stream.device()->seek(128);
    stream << quint32(2) << number("wtpt") << quint32(156) << quint32(20) << number("kTRC") << quint32(176)
           << quint32(14);
    stream << number("XYZ ") << quint32(0) << whiteX << whiteY << whiteZ;
    stream << number("curv") << quint32(0) << quint32(1) << quint16(0x0100) << quint16(0);
    return profile;
}

ZTBatchOutputSettings::Transformation OnFile(const QString& file)
{
    ZTBatchOutputSettings::Transformation framing = PlainFraming();
    framing.backgroundType = int(BackgroundType::Image);
    framing.backgroundImage = file;
    framing.opacity = 0;
    return framing;
}

} // namespace

class TestFramedColours : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(VIPS_INIT("tst_framedcolours") == 0);
        vips_cache_set_max(0); // as in the worker: profiles in memory get the same name again
        QVERIFY(folder.isValid());
    }

    void neutralColoursKeepAPictureGrey()
    {
        ZTBatchOutputSettings::Transformation framing = PlainFraming();
        framing.margins = QMargins(5, 5, 5, 5);
        framing.backgroundType = int(BackgroundType::Colour);
        framing.backgroundColor = QColor(90, 90, 90);
        QCOMPARE(PixelText(FramePicture(Uniform(20, 20, {7}), framing), 0, 0), QStringLiteral("90"));
        framing.backgroundColor = QColor(90, 91, 90);
        const Picture coloured = FramePicture(Uniform(20, 20, {7}), framing);
        QCOMPARE(PixelText(coloured, 0, 0), QStringLiteral("90 91 90"));
        QCOMPARE(PixelText(coloured, 10, 10), QStringLiteral("7 7 7"));
        QCOMPARE(coloured.interpretation(), VIPS_INTERPRETATION_sRGB);
        const Picture deep = FramePicture(Uniform(20, 20, {7 * 257.0, 65535}, VIPS_FORMAT_USHORT), framing);
        QCOMPARE(PixelText(deep, 10, 10), QStringLiteral("1799 1799 1799"));
    }

    // Colours of a job are sRGB; in a picture with another profile they must look the same, not have the same values.
    void coloursAreConvertedToThePicturesProfile()
    {
        ZTBatchOutputSettings::Transformation framing = PlainFraming();
        framing.margins = QMargins(5, 5, 5, 5);
        framing.backgroundType = int(BackgroundType::Colour);
        framing.backgroundColor = QColor(200, 40, 60);
        const Picture framed = FramePicture(WithProfile(Uniform(20, 20, {1, 2, 3}), "p3"), framing);
        QCOMPARE(PixelText(framed, 10, 10), QStringLiteral("1 2 3"));
        QVERIFY(PixelText(framed, 0, 0) != QStringLiteral("200 40 60"));

        const std::vector<double> seen =
            framed.icc_transform("srgb", Picture::option()->set("embedded", true)).getpoint(0, 0);
        QVERIFY(qAbs(seen[0] - 200) <= 1);
        QVERIFY(qAbs(seen[1] - 40) <= 1);
        QVERIFY(qAbs(seen[2] - 60) <= 1);

        const Picture same = FramePicture(WithProfile(Uniform(20, 20, {1, 2, 3}), "srgb"), framing);
        QVERIFY(qAbs(same.getpoint(0, 0)[0] - 200) <= 1);
        QVERIFY(qAbs(same.getpoint(0, 0)[1] - 40) <= 1);
    }

    // A light of 55 / 255 is the value 128 in sRGB.
    void greyOfAProfileBecomesNeutralSrgb()
    {
        const Picture grey = BatchWorker::WithProfile(Uniform(20, 20, {55}), LinearGreyProfile());
        ZTBatchOutputSettings::Transformation framing = PlainFraming();
        framing.margins = QMargins(5, 5, 5, 5);
        framing.backgroundType = int(BackgroundType::Colour);
        framing.backgroundColor = QColor(200, 40, 60);
        const Picture framed = FramePicture(grey, framing);
        const std::vector<double> inside = framed.getpoint(10, 10);
        QCOMPARE(inside.size(), std::size_t(3));
        QVERIFY2(qAbs(inside[0] - 128) <= 1, qPrintable(PixelText(framed, 10, 10)));
        QVERIFY2(inside[0] == inside[1] && inside[0] == inside[2], qPrintable(PixelText(framed, 10, 10)));
        QCOMPARE(PixelText(framed, 0, 0), QStringLiteral("200 40 60"));
        QVERIFY(BatchWorker::IsSrgb(BatchWorker::ProfileOf(framed)));
    }

    void paintForAGreyPictureIsOfItsProfile()
    {
        const Picture grey = BatchWorker::WithProfile(Uniform(20, 20, {55}), LinearGreyProfile());
        const BatchWorker::PaintablePicture paintable = BatchWorker::PaintableWith(QColor(128, 128, 128), grey);
        QCOMPARE(paintable.paint.size(), std::size_t(1));
        QVERIFY2(qAbs(paintable.paint[0] - 55) <= 1, qPrintable(QString::number(paintable.paint[0])));
        // Without a profile a grey is taken as it is written.
        QCOMPARE(BatchWorker::PaintableWith(QColor(128, 128, 128), Uniform(20, 20, {55})).paint,
                 std::vector<double>{128});
    }

    void backgroundFilesCoverTheFrame()
    {
        // Left half red, right half blue: in a square frame the outer quarters are cut off.
        QImage file(80, 40, QImage::Format_RGB888);
        file.fill(Qt::red);
        for (int y = 0; y < 40; ++y) {
            for (int x = 40; x < 80; ++x) {
                file.setPixelColor(x, y, Qt::blue);
            }
        }
        const QString path = folder.filePath(QStringLiteral("halves.png"));
        QVERIFY(file.save(path));
        const Picture framed = FramePicture(Uniform(20, 20, {0, 0, 0}), OnFile(path));
        QCOMPARE(framed.bands(), 3);
        QCOMPARE(framed.width(), 20);
        QCOMPARE(PixelText(framed, 0, 0), QStringLiteral("255 0 0"));
        QCOMPARE(PixelText(framed, 4, 19), QStringLiteral("255 0 0"));
        QCOMPARE(PixelText(framed, 15, 0), QStringLiteral("0 0 255"));
        QCOMPARE(PixelText(framed, 19, 19), QStringLiteral("0 0 255"));
        // Enlarged as well, and for grey and deep pictures.
        const Picture large = FramePicture(Uniform(200, 100, {0}, VIPS_FORMAT_USHORT), OnFile(path));
        QCOMPARE(large.format(), VIPS_FORMAT_USHORT);
        QCOMPARE(PixelText(large, 10, 50), QStringLiteral("65535 0 0"));
        QCOMPARE(PixelText(large, 190, 50), QStringLiteral("0 0 65535"));
    }

    void backgroundFilesAreUpright()
    {
        QImage file(40, 40, QImage::Format_RGB888);
        file.fill(Qt::red);
        for (int x = 0; x < 40; ++x) {
            for (int y = 0; y < 20; ++y) {
                file.setPixelColor(x, y, Qt::blue);
            }
        }
        Picture turned = FromImage(file).copy();
        turned.set("orientation", 3); // upside down
        const QString path = folder.filePath(QStringLiteral("turned.jpg"));
        turned.jpegsave(path.toUtf8().constData(), Picture::option()->set("Q", 100));
        const Picture framed = FramePicture(Uniform(40, 40, {0, 0, 0}), OnFile(path));
        QVERIFY(framed.getpoint(20, 5)[0] > 240);
        QVERIFY(framed.getpoint(20, 35)[2] > 240);
    }

    void seeThroughBackgroundFilesLetThrough()
    {
        QImage file(20, 20, QImage::Format_RGBA8888);
        file.fill(QColor(10, 200, 30, 102));
        const QString path = folder.filePath(QStringLiteral("seethrough.png"));
        QVERIFY(file.save(path));
        QCOMPARE(PixelText(FramePicture(Uniform(20, 20, {0, 0, 0}), OnFile(path)), 3, 3),
                 QStringLiteral("10 200 30 102"));
        ZTBatchOutputSettings::Transformation half = OnFile(path);
        half.backgroundOpacity = 0.5;
        QCOMPARE(PixelText(FramePicture(Uniform(20, 20, {0, 0, 0}), half), 3, 3), QStringLiteral("10 200 30 51"));
    }

    void greyFilesLeaveAPictureGrey()
    {
        const QString path = folder.filePath(QStringLiteral("grey.png"));
        Uniform(30, 30, {123}).pngsave(path.toUtf8().constData());
        QCOMPARE(PixelText(FramePicture(Uniform(20, 20, {0}), OnFile(path)), 3, 3), QStringLiteral("123"));
    }

    void metadataOfABackgroundFileStaysThere()
    {
        Picture file = Uniform(30, 30, {1, 2, 3}).copy();
        file.set("exif-ifd0-Artist", "Someone else");
        const QString path = folder.filePath(QStringLiteral("artist.jpg"));
        file.jpegsave(path.toUtf8().constData());
        const Picture framed = FramePicture(Uniform(20, 20, {0, 0, 0}), OnFile(path));
        QCOMPARE(framed.get_typeof("exif-ifd0-Artist"), GType(0));
        QCOMPARE(framed.get_typeof(VIPS_META_ICC_NAME), GType(0));
    }

    void limitsHoldForFramesAndTheirFiles()
    {
        const QString path = folder.filePath(QStringLiteral("large.png"));
        Uniform(40, 30, {123}).pngsave(path.toUtf8().constData());
        const Picture picture = Uniform(20, 20, {0});
        QVERIFY_EXCEPTION_THROWN(FramePicture(picture, OnFile(path), 1199), PictureFailure);
        QCOMPARE(FramePicture(picture, OnFile(path), 1200).width(), 20);
        ZTBatchOutputSettings::Transformation framing = PlainFraming();
        framing.backgroundCustomOutput = true;
        framing.backgroundCustomSize = QSize(1'000'000, 1'000'000);
        QVERIFY_EXCEPTION_THROWN(FramePicture(picture, framing), PictureFailure);
    }

    void filesThatCannotBeReadAreNamed_data()
    {
        QTest::addColumn<QByteArray>("content");
        const QImage picture = Landscape(QSize(300, 300));
        const QString whole = folder.filePath(QStringLiteral("whole.png"));
        QVERIFY(picture.save(whole));
        QFile file(whole);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        QTest::newRow("missing") << QByteArray();
        QTest::newRow("no picture") << QByteArray("plain text");
        QTest::newRow("truncated") << bytes.left(bytes.size() / 2);
    }

    void filesThatCannotBeReadAreNamed()
    {
        QFETCH(QByteArray, content);
        QTemporaryDir own;
        const QString path = own.filePath(QStringLiteral("back ground.png"));
        if (!content.isEmpty()) {
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(content);
        }
        try {
            FramePicture(Uniform(20, 20, {0, 0, 0}), OnFile(path));
            QFAIL("A background was read that is none.");
        } catch (const PictureFailure& failure) {
            QCOMPARE(failure.kind, PictureFailure::Kind::ProcessingFailed);
            QVERIFY2(failure.reason.contains(path), failure.what());
        }
    }

private:
    QTemporaryDir folder;
};

QTEST_GUILESS_MAIN(TestFramedColours)

#include "tst_framedcolours.moc"
