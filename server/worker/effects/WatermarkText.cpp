// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourParameter.h"
#include "EffectFunctions.h"
#include "WatermarkPlacement.h"

#include "job/values/Phrase.h"

#include "server/worker/colour/PictureColours.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelFilter.h"

#include <QStringList>

#include <algorithm>

namespace BatchWorker {

namespace {

// Leaves out what the renderer cannot handle; line breaks stay.
QString Printable(const QString& text)
{
    QString printable;
    for (const QChar character : text) {
        if (character == QLatin1Char('\n') || (character.isPrint() && character != QChar::ReplacementCharacter) ||
            character.isSurrogate() || character.category() == QChar::Other_Format) {
            printable.append(character);
        } else if (character.isSpace()) {
            printable.append(QLatin1Char(' '));
        }
    }
    return printable;
}

// Letters are at most about as wide as high, and lines half as high again.
void RequireReasonableSize(const QString& text, double height)
{
    constexpr double mostPixels = 200e6;
    const QStringList lines = text.split(QLatin1Char('\n'));
    int longest = 1;
    for (const QString& line : lines) {
        longest = std::max(longest, line.size());
    }
    if (height * longest * height * 1.5 * lines.size() > mostPixels) {
        throw ProcessingFailed(
            BatchJob::Phrase::English("the text would be too large at a size of %1 pixels").arg(int(height)));
    }
}

/// The letters as a picture of opacity.
Picture Letters(const QString& text, const QString& font, double height)
{
    const QByteArray escaped = text.toHtmlEscaped().toUtf8();
    const QByteArray description = QStringLiteral("%1 %2").arg(font.simplified()).arg(height, 0, 'f', 2).toUtf8();
    // At 72 dots per inch a point is a pixel.
    return Picture::text(escaped.constData(), Picture::option()->set("font", description.constData())->set("dpi", 72));
}

Overlay Drawn(const Picture& letters, const PaintablePicture& paintable, double opacity)
{
    std::array<std::uint8_t, 3> paint{};
    for (size_t band = 0; band < 3; ++band) {
        const double value = paintable.paint[IsGrey(paintable.picture) ? 0 : band];
        paint[band] = SampleOf<std::uint8_t>(value / LargestValue(paintable.picture), 255.0);
    }
    Overlay mark{letters.width(), letters.height(), {}};
    const std::vector<std::uint8_t> coverage = BytesOf(letters);
    mark.pixels.reserve(4 * coverage.size());
    for (const std::uint8_t covered : coverage) {
        mark.pixels.insert(mark.pixels.end(), paint.begin(), paint.end());
        mark.pixels.push_back(SampleOf<std::uint8_t>(covered / 255.0 * opacity, 255.0));
    }
    return mark;
}

} // namespace

// A grey picture becomes RGB for a colour that is not grey. Throws PictureFailure for a text that cannot be drawn.
Picture ApplyWatermarkText(const Picture& picture, const QJsonObject& parameters)
{
    const QString text = Printable(parameters[QLatin1String("text")].toString());
    if (text.trimmed().isEmpty() && parameters[QLatin1String("tokens")].toBool()) {
        return picture; // The picture does not say what its text would be.
    }
    if (text.trimmed().isEmpty()) {
        throw ProcessingFailed(BatchJob::Phrase::English("the text has no letters that could be drawn"));
    }
    const double height = std::max(1.0, LengthIn(parameters, "size", std::min(picture.width(), picture.height())));
    RequireReasonableSize(text, height);

    const QColor colour = ColourOf(parameters[QLatin1String("colour")].toString());
    const PaintablePicture paintable = PaintableWith(colour.rgb(), picture);
    const Picture letters = Letters(text, parameters[QLatin1String("font")].toString(), height);
    return Watermarked(paintable.picture, Drawn(letters, paintable, colour.alphaF()), parameters);
}

} // namespace BatchWorker
