// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TestPictures.h"

#include "TiffPicture.h"

#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"
#include "server/worker/decode/PictureSource.h"
#include "server/worker/encode/Encoder.h"

#include <QFile>
#include <QFileInfo>

#include <cstdint>
#include <iterator>
#include <limits>
#include <memory>
#include <random>

using namespace BatchWorker;

namespace {

void WriteAsWorker(const Picture& picture, const QString& file)
{
    const BatchJob::FormatSchema& format = *BatchJob::FindFormatByExtension(QFileInfo(file).suffix());
    QFile result(file);
    if (!result.open(QIODevice::ReadWrite | QIODevice::Truncate)) {
        qFatal("%s cannot be written", qUtf8Printable(file));
    }
    Encode(picture, format, BatchJob::OptionsFor(format, {}), {}, result.handle());
}

bool HaveSameForm(const Picture& left, const Picture& right)
{
    return left.width() == right.width() && left.height() == right.height() && left.bands() == right.bands();
}

} // namespace

void StartPictures()
{
    qputenv("ORC_CODE", QByteArrayLiteral("emulate")); // as in the worker
    if (VIPS_INIT("test") != 0) {
        qFatal("The imaging library does not start: %s", vips_error_buffer());
    }
    vips_cache_set_max(0);
    vips_concurrency_set(1);
}

Picture Chart(int width, int height, int square)
{
    const Picture places = Picture::xyz(width, height);
    const Picture across = places.extract_band(0);
    const Picture down = places.extract_band(1);
    const Picture red = across * (255.0 / std::max(1, width - 1));
    const Picture green = down * (255.0 / std::max(1, height - 1));
    const Picture blue = (((across / square).floor() + (down / square).floor()) % 2) * 255;
    return red.bandjoin(green)
        .bandjoin(blue)
        .rint()
        .cast(VIPS_FORMAT_UCHAR)
        .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB))
        .copy_memory();
}

#ifdef Q_OS_WIN
const char* MissingEncoder(const QString& format)
{
    const QStringList missing{QStringLiteral("HEIF"), QStringLiteral("heic")};
    return missing.contains(format) ? "This installation has no encoder for it." : nullptr;
}

const char* MissingInTests(const QString& format)
{
    const QStringList missing{QStringLiteral("JPEG XL"), QStringLiteral("jxl"), QStringLiteral("JPEG 2000"),
                              QStringLiteral("jp2")};
    return missing.contains(format) ? "The imaging library of the test does not know it." : MissingEncoder(format);
}
#else
const char* MissingEncoder(const QString&)
{
    return nullptr;
}

const char* MissingInTests(const QString&)
{
    return nullptr;
}
#endif

Picture ReadPicture(const QString& file)
{
    const QByteArray name = QFile::encodeName(file);
    if (!vips_foreign_find_load(name.constData())) {
        vips_error_clear();
        return PictureSource(file, {}).Load().copy_memory();
    }
    return Picture::new_from_file(name.constData()).copy_memory();
}

void WritePicture(const Picture& picture, const QString& file, const char* options)
{
    const QByteArray name = QFile::encodeName(file);
    if (!vips_foreign_find_save(name.constData())) {
        vips_error_clear();
        WriteAsWorker(picture, file);
        return;
    }
    picture.write_to_file((name + options).constData());
}

void WriteTiff(const Picture& picture, const QByteArray& profile, const QString& file)
{
    constexpr int blackIsZero = 1;
    constexpr int rgb = 2;
    const PictureForm form = FormOf(picture);
    const QVector<int> values = ValuesOf(picture);
    TiffPicture tiff;
    tiff.width = picture.width();
    tiff.height = picture.height();
    tiff.samples = form.colours;
    tiff.bits = form.bits;
    tiff.photometric = form.colours == 1 ? blackIsZero : rgb;
    tiff.profile = profile;
    tiff.Write(file, [&](int x, int y, int s) {
        return double(values[(y * tiff.width + x) * form.colours + s]) / form.Largest();
    });
}

double LargestDifference(const Picture& left, const Picture& right)
{
    return HaveSameForm(left, right) ? (left - right).abs().max() : std::numeric_limits<double>::infinity();
}

double MeanDifference(const Picture& left, const Picture& right)
{
    return HaveSameForm(left, right) ? (left - right).abs().avg() : std::numeric_limits<double>::infinity();
}

QVector<PictureForm> AllForms()
{
    QVector<PictureForm> forms;
    for (const int colours : {1, 3}) {
        for (const int bits : {8, 16}) {
            forms.append({colours, bits, false});
            forms.append({colours, bits, true});
        }
    }
    return forms;
}

PictureForm FormOf(const Picture& picture)
{
    PictureForm form;
    form.bits = picture.format() == VIPS_FORMAT_UCHAR ? 8 : picture.format() == VIPS_FORMAT_USHORT ? 16 : 0;
    form.colours = picture.bands() < 3 ? 1 : 3;
    form.hasAlpha = picture.bands() == 2 || picture.bands() == 4;
    const VipsInterpretation expected = form.colours == 1
                                            ? (form.bits == 8 ? VIPS_INTERPRETATION_B_W : VIPS_INTERPRETATION_GREY16)
                                            : (form.bits == 8 ? VIPS_INTERPRETATION_sRGB : VIPS_INTERPRETATION_RGB16);
    return picture.interpretation() == expected ? form : PictureForm{0, 0, false};
}

bool operator==(const PictureForm& a, const PictureForm& b)
{
    return a.colours == b.colours && a.bits == b.bits && a.hasAlpha == b.hasAlpha;
}

Picture FromValues(const PictureForm& form, int width, int height, const QVector<int>& values)
{
    Q_ASSERT(values.size() == width * height * form.Bands());
    QVector<std::uint8_t> bytes;
    QVector<std::uint16_t> words;
    for (const int value : values) {
        bytes.append(static_cast<std::uint8_t>(value));
        words.append(static_cast<std::uint16_t>(value));
    }
    const bool isDeep = form.bits == 16;
    void* data = isDeep ? static_cast<void*>(words.data()) : static_cast<void*>(bytes.data());
    const size_t size = static_cast<size_t>(values.size()) * (isDeep ? 2 : 1);
    VipsImage* const image = vips_image_new_from_memory_copy(data, size, width, height, form.Bands(),
                                                             isDeep ? VIPS_FORMAT_USHORT : VIPS_FORMAT_UCHAR);
    const VipsInterpretation grey = isDeep ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
    const VipsInterpretation rgb = isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
    return Picture(image).copy(Picture::option()->set("interpretation", form.colours == 1 ? grey : rgb));
}

QVector<int> ValuesOf(const Picture& picture)
{
    size_t size = 0;
    const std::unique_ptr<void, decltype(&g_free)> memory(picture.write_to_memory(&size), g_free);
    QVector<int> values;
    if (picture.format() == VIPS_FORMAT_USHORT) {
        const auto* const first = static_cast<const std::uint16_t*>(memory.get());
        std::copy(first, first + size / 2, std::back_inserter(values));
    } else {
        const auto* const first = static_cast<const std::uint8_t*>(memory.get());
        std::copy(first, first + size, std::back_inserter(values));
    }
    return values;
}

QVector<int> ChannelOf(const Picture& picture, int band)
{
    return ValuesOf(picture.extract_band(band));
}

Picture Noise(const PictureForm& form, int width, int height, unsigned seed)
{
    std::mt19937 random(seed);
    QVector<int> values(width * height * form.Bands());
    for (int& value : values) {
        value = static_cast<int>(random() % static_cast<unsigned>(form.Largest() + 1));
    }
    return FromValues(form, width, height, values);
}

Picture EveryValue(const PictureForm& form)
{
    QVector<int> values;
    for (int i = 0; i < 256; ++i) {
        for (int band = 0; band < form.Bands(); ++band) {
            // Odd factors reach every value.
            values.append((i * (2 * band + 1) + 40 * band) % 256 * (form.bits == 16 ? 257 : 1));
        }
    }
    return FromValues(form, 16, 16, values);
}
