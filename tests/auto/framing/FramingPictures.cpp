// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FramingPictures.h"

#include "server/worker/framing/Framing.h"

#include <QPainter>
#include <QStringList>

#include <cmath>

namespace FramingPictures {

ZTBatchOutputSettings::Transformation PlainFraming()
{
    ZTBatchOutputSettings::Transformation framing;
    framing.state = true;
    framing.margins = QMargins();
    framing.shadowEnabled = false;
    return framing;
}

Picture FramePicture(const Picture& picture, const ZTBatchOutputSettings::Transformation& framing, qint64 pixelLimit)
{
    BatchProtocol::ServerLimits limits;
    limits.pixels = pixelLimit;
    BatchJob::Warnings warnings;
    return BatchWorker::FramePicture(picture, framing, limits, warnings).copy_memory();
}

Picture Uniform(int width, int height, const std::vector<double>& values, VipsBandFormat format)
{
    const bool isDeep = format == VIPS_FORMAT_USHORT;
    const VipsInterpretation grey = isDeep ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_B_W;
    const VipsInterpretation rgb = isDeep ? VIPS_INTERPRETATION_RGB16 : VIPS_INTERPRETATION_sRGB;
    return (Picture::black(width, height) + values)
        .cast(format)
        .copy(Picture::option()->set("interpretation", values.size() < 3 ? grey : rgb));
}

QImage Landscape(const QSize& size)
{
    QImage image(size, QImage::Format_RGB888);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const double wave = 50 * std::sin(0.3 * x) * std::cos(0.25 * y);
            image.setPixelColor(x, y,
                                QColor(int(128 + wave), int(60 + 140.0 * y / size.height()),
                                       int(200 - 140.0 * x / size.width() - wave)));
        }
    }
    return image;
}

Picture FromImage(const QImage& image)
{
    const bool hasAlpha = image.hasAlphaChannel();
    const QImage plain = image.convertToFormat(hasAlpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    const int bands = hasAlpha ? 4 : 3;
    QByteArray pixels;
    for (int y = 0; y < plain.height(); ++y) {
        pixels.append(QByteArray::fromRawData(
            static_cast<const char*>(static_cast<const void*>(plain.constScanLine(y))), plain.width() * bands));
    }
    VipsImage* copy = vips_image_new_from_memory_copy(pixels.constData(), std::size_t(pixels.size()), plain.width(),
                                                      plain.height(), bands, VIPS_FORMAT_UCHAR);
    return Picture(copy).copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
}

QImage ToImage(const Picture& picture)
{
    Picture rgba = picture.colourspace(VIPS_INTERPRETATION_sRGB);
    rgba = rgba.has_alpha() ? rgba : rgba.bandjoin(255);
    std::size_t size = 0;
    void* pixels = rgba.write_to_memory(&size);
    const QImage image(static_cast<const uchar*>(pixels), rgba.width(), rgba.height(), rgba.width() * 4,
                       QImage::Format_RGBA8888);
    const QImage owned = image.copy();
    g_free(pixels);
    return owned;
}

QString PixelText(const Picture& picture, int x, int y)
{
    QStringList values;
    for (const double value : picture.getpoint(x, y)) {
        values.append(QString::number(value));
    }
    return values.join(QLatin1Char(' '));
}

} // namespace FramingPictures
