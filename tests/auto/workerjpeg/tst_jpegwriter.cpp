// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TestPictures.h"

#include "server/worker/encode/JpegWriter.h"
#include "server/worker/pixels/EmbeddedBlock.h"

#include <QTest>

#include <vector>

using namespace BatchWorker;

namespace {

struct Bytes
{
    VipsBlob* blob = nullptr;
    Bytes() = default;
    ~Bytes()
    {
        if (blob) {
            vips_area_unref(reinterpret_cast<VipsArea*>(blob));
        }
    }

    Q_DISABLE_COPY(Bytes)

    Picture Decoded() const { return Picture::jpegload_buffer(blob); }
};

void WriteTo(Bytes& bytes, const Picture& picture, const JpegSettings& settings)
{
    const vips::VTarget target = vips::VTarget::new_to_memory();
    WriteJpeg(picture, settings, target);
    g_object_get(target.get_target(), "blob", &bytes.blob, nullptr);
}

Picture Photo(VipsInterpretation kind, int bands)
{
    std::vector<Picture> channels;
    for (int band = 0; band < bands; ++band) {
        const auto options = Picture::option()->set("mean", 128)->set("sigma", 60)->set("seed", band);
        channels.push_back(Picture::gaussnoise(131, 77, options).gaussblur(1.5).cast(VIPS_FORMAT_UCHAR));
    }
    return (bands > 1 ? Picture::bandjoin(channels) : channels.front())
        .copy(Picture::option()->set("interpretation", kind)->set("xres", 240 / 25.4)->set("yres", 120 / 25.4));
}

} // namespace

class tst_JpegWriter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { StartPictures(); }
    void writesWhatTheLibraryWrites_data();
    void writesWhatTheLibraryWrites();
    void writesBlocksAsTheyAre();
    void makesNoExifUp();
    void failsWithAReason();
};

void tst_JpegWriter::writesWhatTheLibraryWrites_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("bands");
    QTest::addColumn<bool>("isProgressive");
    QTest::addColumn<bool>("keepsFineColour");
    for (const bool isProgressive : {false, true}) {
        for (const bool keepsFineColour : {false, true}) {
            const auto add = [&](const char* name, VipsInterpretation kind, int bands) {
                QTest::addRow("%s%s%s", name, isProgressive ? ", progressive" : "",
                              keepsFineColour ? ", fine colour" : "")
                    << int(kind) << bands << isProgressive << keepsFineColour;
            };
            add("grey", VIPS_INTERPRETATION_B_W, 1);
            add("RGB", VIPS_INTERPRETATION_sRGB, 3);
            add("CMYK", VIPS_INTERPRETATION_CMYK, 4);
        }
    }
}

void tst_JpegWriter::writesWhatTheLibraryWrites()
{
    QFETCH(const int, kind);
    QFETCH(const int, bands);
    QFETCH(const bool, isProgressive);
    QFETCH(const bool, keepsFineColour);
    constexpr int quality = 85;
    const Picture photo = Photo(VipsInterpretation(kind), bands);

    Bytes own;
    WriteTo(own, photo, {quality, isProgressive, keepsFineColour});
    Bytes ofLibrary;
    ofLibrary.blob = photo.jpegsave_buffer(
        Picture::option()
            ->set("Q", quality)
            ->set("interlace", isProgressive)
            ->set("subsample_mode", keepsFineColour ? VIPS_FOREIGN_SUBSAMPLE_OFF : VIPS_FOREIGN_SUBSAMPLE_ON));

    const Picture found = own.Decoded();
    QCOMPARE(int(found.interpretation()), kind);
    QCOMPARE(LargestDifference(found, ofLibrary.Decoded()), 0.0);
    QVERIFY(qAbs(found.xres() * 25.4 - 240) < 0.01);
    QVERIFY(qAbs(found.yres() * 25.4 - 120) < 0.01);
}

void tst_JpegWriter::writesBlocksAsTheyAre()
{
    const QVector<QPair<const char*, QByteArray>> blocks{
        {VIPS_META_XMP_NAME, "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\"/>"},
        {VIPS_META_IPTC_NAME, QByteArray("Photoshop 3.0\0"
                                         "8BIM\x04\x04\0\0\0\0\0\0",
                                         26)},
        {VIPS_META_ICC_NAME, QByteArray(70'000, 'p')}}; // more than a segment holds
    const Picture photo = Photo(VIPS_INTERPRETATION_sRGB, 3).copy();
    for (const auto& [name, bytes] : blocks) {
        vips_image_set_blob_copy(photo.get_image(), name, bytes.constData(), std::size_t(bytes.size()));
    }
    Bytes file;
    WriteTo(file, photo, {85, false, false});
    const Picture found = file.Decoded();
    for (const auto& [name, bytes] : blocks) {
        QByteArray block = BlockOf(found, name);
        const int start = block.indexOf(bytes); // The library may keep the head of a segment.
        QVERIFY2(start >= 0 && block.size() == start + bytes.size(), name);
    }
}

void tst_JpegWriter::makesNoExifUp()
{
    Bytes file;
    WriteTo(file, Photo(VIPS_INTERPRETATION_sRGB, 3), {85, false, false});
    QVERIFY(BlockOf(file.Decoded(), VIPS_META_EXIF_NAME).isEmpty());
}

void tst_JpegWriter::failsWithAReason()
{
    vips_error_clear();
    const Picture large = Picture::black(70'000, 1, Picture::option()->set("bands", 3));
    Bytes file;
    QVERIFY_EXCEPTION_THROWN(WriteTo(file, large, {85, false, false}), vips::VError);
    QVERIFY2(QByteArray(vips_error_buffer()).contains("65500"), vips_error_buffer());
}

QTEST_GUILESS_MAIN(tst_JpegWriter)
#include "tst_jpegwriter.moc"
