// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Inputs.h"

#include "RawPicture.h"
#include "TestPictures.h"
#include "TiffPicture.h"

#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"
#include "server/worker/encode/Encoder.h"

#include <QFile>
#include <QJsonObject>

#include <cmath>
#include <tiff.h>

using namespace BatchWorker;

namespace {

QString Name(const char* name)
{
    return QString::fromLatin1(name);
}

Picture Converted(const Picture& picture, VipsInterpretation interpretation)
{
    return picture.colourspace(interpretation);
}

// Opaque on the left, invisible on the right.
Picture WithRamp(const Picture& picture)
{
    const double most = picture.format() == VIPS_FORMAT_USHORT ? 65535.0 : 255.0;
    const Picture across = Picture::xyz(picture.width(), picture.height()).extract_band(0);
    const Picture alpha = (across * (-most / picture.width()) + most).rint().cast(picture.format());
    return picture.bandjoin(alpha);
}

/// Pictures by the imaging library's own encoders, with their options.
void WriteByLibrary(const Picture& photo, const QString& folder)
{
    const Picture grey = Converted(photo, VIPS_INTERPRETATION_B_W);
    const Picture deep = Converted(photo, VIPS_INTERPRETATION_RGB16);
    const Picture noisy = (deep + Picture::gaussnoise(photo.width(), photo.height(),
                                                      Picture::option()->set("sigma", 700.0)->set("seed", 1)))
                              .cast(VIPS_FORMAT_USHORT)
                              .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_RGB16));
    const Picture inks = photo.icc_export(Picture::option()->set("output_profile", "cmyk"));
    const Picture lab = Converted(photo, VIPS_INTERPRETATION_LABS);
    const Picture light = Converted(photo, VIPS_INTERPRETATION_scRGB);
    const Picture p3 = photo.icc_transform("p3", Picture::option()->set("input_profile", "srgb"));
    const auto write = [&folder](const Picture& picture, const char* name, const char* options = "") {
        WritePicture(picture, folder + QLatin1Char('/') + Name(name), options);
    };
    write(photo, "jpeg-baseline.jpg", "[Q=90]");
    write(photo, "jpeg-progressive.jpg", "[Q=80,interlace]");
    write(photo, "jpeg-444.jpg", "[Q=95,subsample-mode=off]");
    write(grey, "jpeg-grey.jpg");
    write(inks, "jpeg-cmyk.jpg", "[Q=95]");
    write(p3, "jpeg-p3.jpg");
    write(photo, "png-8.png");
    write(noisy, "png-16.png");
    write(photo, "png-palette.png", "[palette]");
    write(photo, "png-interlaced.png", "[interlace]");
    write(WithRamp(photo), "png-alpha.png");
    write(WithRamp(noisy), "png-16-alpha.png");
    write(grey, "png-grey.png");
    write(grey, "png-bits.png", "[bitdepth=1]");
    write(p3, "png-p3.png");
    write(photo, "tiff-plain.tif");
    write(photo, "tiff-lzw.tif", "[compression=lzw,predictor=horizontal]");
    write(photo, "tiff-deflate.tif", "[compression=deflate]");
    write(photo, "tiff-jpeg.tif", "[compression=jpeg,Q=90]");
    write(photo, "tiff-tiles.tif", "[tile,compression=lzw]");
    write(noisy, "tiff-16.tif", "[compression=lzw]");
    write(inks, "tiff-cmyk.tif");
    write(lab, "tiff-lab.tif");
    write(light, "tiff-float.tif");
    write(grey, "tiff-fax.tif", "[bitdepth=1,compression=ccittfax4]");
    write(photo, "webp-lossy.webp", "[Q=85]");
    write(photo, "webp-lossless.webp", "[lossless]");
    write(WithRamp(photo), "webp-alpha.webp");
    write(photo, "gif.gif");
    write(photo, "heif-8.heic", "[Q=80]");
    write(noisy, "heif-10.heic", "[bitdepth=10]");
    write(photo, "avif-8.avif", "[effort=1]");
    write(WithRamp(photo), "avif-alpha.avif", "[effort=1]");
    write(noisy, "avif-12.avif", "[effort=1,bitdepth=12]");
}

void WriteByWorker(const Picture& picture, const QString& path, const QJsonObject& options = {})
{
    const BatchJob::FormatSchema& format = *BatchJob::FindFormatByExtension(path.section(QLatin1Char('.'), -1));
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite | QIODevice::Truncate)) {
        qFatal("%s cannot be written", qUtf8Printable(path));
    }
    Encode(picture, format, BatchJob::OptionsFor(format, options), {}, file.handle());
}

void WriteModernFormats(const Picture& photo, const QString& folder)
{
    const Picture deep = Converted(photo, VIPS_INTERPRETATION_RGB16);
    const QJsonObject lossless{{Name("lossless"), true}};
    const auto write = [&folder](const Picture& picture, const char* name, const QJsonObject& options = {}) {
        WriteByWorker(picture, folder + QLatin1Char('/') + Name(name), options);
    };
    write(photo, "jxl-lossy.jxl");
    write(WithRamp(photo), "jxl-lossless.jxl", lossless);
    write(deep, "jxl-16.jxl", lossless);
    write(photo, "jp2-subsampled.jp2");
    write(photo, "jp2-lossy.jp2", {{Name("quality"), 95}});
    write(WithRamp(photo), "jp2-lossless.jp2", lossless);
    write(deep, "jp2-16.jp2");
}

void WriteTiffLayouts(const QString& folder)
{
    const auto value = [](int x, int y, int sample) { return 0.5 + 0.5 * std::sin(x * 0.2 + y * 0.1 * (sample + 1)); };
    TiffPicture planar;
    planar.isPlanar = true;
    planar.Write(folder + Name("/tiff-planar.tif"), value);
    TiffPicture differences;
    differences.photometric = PHOTOMETRIC_YCBCR;
    differences.compression = COMPRESSION_LZW;
    differences.across = 2;
    differences.down = 2;
    differences.Write(folder + Name("/tiff-ycc.tif"), value);
    TiffPicture odd;
    odd.bits = 12;
    odd.isBigEndian = true;
    odd.Write(folder + Name("/tiff-12.tif"), value);
}

void WriteBytes(const QByteArray& bytes, const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        qFatal("%s cannot be written", qUtf8Printable(path));
    }
}

} // namespace

void WriteInputs(const QString& photo, const QString& folder)
{
    const Picture whole = ReadPicture(photo);
    const Picture small = whole.thumbnail_image(640).copy_memory();
    WriteByLibrary(small, folder);
    WriteModernFormats(small, folder);
    WriteTiffLayouts(folder);
    WriteBytes(RawPicture::Dng(), folder + Name("/raw-plain.dng"));
    WriteBytes(RawPicture::CompressedDng(), folder + Name("/raw-compressed.dng"));
    // Large enough that decoders skip pixels for small results.
    WritePicture(whole, folder + Name("/large.jpg"), "[Q=92]");
}
