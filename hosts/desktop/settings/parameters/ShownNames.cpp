// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ShownNames.h"

#include "hosts/common/Language.h"

#include <QHash>
#include <QSet>

#include <array>

using BatchHost::Messages;

namespace BatchDesktop {

namespace {

struct ShownText
{
    const char* name;
    const char* text;
};

constexpr std::array shownTexts{
    ShownText{"all", Messages::Marked("All")},
    ShownText{"amount", Messages::Marked("Amount")},
    ShownText{"angle", Messages::Marked("Angle")},
    ShownText{"auto", Messages::Marked("Automatic")},
    ShownText{"auto-levels", Messages::Marked("Automatic levels")},
    ShownText{"average", Messages::Marked("Average")},
    ShownText{"background", Messages::Marked("Background")},
    ShownText{"bitDepth", Messages::Marked("Bit depth")},
    ShownText{"black", Messages::Marked("Black")},
    ShownText{"blue", Messages::Marked("Blue")},
    ShownText{"blur", Messages::Marked("Blur")},
    ShownText{"border", Messages::Marked("Border")},
    ShownText{"both", Messages::Marked("Both")},
    ShownText{"bottom", Messages::Marked("Bottom")},
    ShownText{"bottom-left", Messages::Marked("Bottom left")},
    ShownText{"bottom-right", Messages::Marked("Bottom right")},
    ShownText{"brightness", Messages::Marked("Brightness")},
    ShownText{"brightness-contrast", Messages::Marked("Brightness and contrast")},
    ShownText{"centre", Messages::Marked("Centre")},
    ShownText{"channel", Messages::Marked("Channel")},
    ShownText{"channels", Messages::Marked("Channels")},
    ShownText{"chromaSubsampling", Messages::Marked("Chroma subsampling")},
    ShownText{"clarity", Messages::Marked("Clarity")},
    ShownText{"clip", Messages::Marked("Clipped share")},
    ShownText{"colour", Messages::Marked("Colour")},
    ShownText{"compression", Messages::Marked("Compression")},
    ShownText{"compressionLevel", Messages::Marked("Compression level")},
    ShownText{"contrast", Messages::Marked("Contrast")},
    ShownText{"copyright", Messages::Marked("Creator and rights")},
    ShownText{"creator", Messages::Marked("Creator")},
    ShownText{"credit", Messages::Marked("Credit")},
    ShownText{"curve", Messages::Marked("Curve")},
    ShownText{"deflate", Messages::Marked("Deflate")},
    ShownText{"denoise", Messages::Marked("Denoise")},
    ShownText{"direction", Messages::Marked("Direction")},
    ShownText{"each", Messages::Marked("Each on its own")},
    ShownText{"effort", Messages::Marked("Effort")},
    ShownText{"exposure", Messages::Marked("Exposure")},
    ShownText{"file", Messages::Marked("File")},
    ShownText{"flip", Messages::Marked("Flip")},
    ShownText{"font", Messages::Marked("Font")},
    ShownText{"gamma", Messages::Marked("Gamma")},
    ShownText{"grayscale", Messages::Marked("Grayscale")},
    ShownText{"green", Messages::Marked("Green")},
    ShownText{"horizontal", Messages::Marked("Horizontal")},
    ShownText{"hue", Messages::Marked("Hue")},
    ShownText{"interpolation", Messages::Marked("Interpolation")},
    ShownText{"invert", Messages::Marked("Invert")},
    ShownText{"jpeg", Messages::Marked("JPEG")},
    ShownText{"keep", Messages::Marked("Kept metadata")},
    ShownText{"keepFileTime", Messages::Marked("Keep the time of the file")},
    ShownText{"keywords", Messages::Marked("Keywords")},
    ShownText{"left", Messages::Marked("Left")},
    ShownText{"levels", Messages::Marked("Levels")},
    ShownText{"lossless", Messages::Marked("Lossless")},
    ShownText{"luma", Messages::Marked("Luma")},
    ShownText{"luminance", Messages::Marked("Luminance")},
    ShownText{"lut", Messages::Marked("Colour table")},
    ShownText{"margin", Messages::Marked("Margin")},
    ShownText{"maxBytes", Messages::Marked("Largest file")},
    ShownText{"mayShrink", Messages::Marked("May get smaller")},
    ShownText{"method", Messages::Marked("Method")},
    ShownText{"minQuality", Messages::Marked("Least quality")},
    ShownText{"none", Messages::Marked("None")},
    ShownText{"opacity", Messages::Marked("Opacity")},
    ShownText{"percent", Messages::Marked("Percent")},
    ShownText{"pixels", Messages::Marked("Pixels")},
    ShownText{"points", Messages::Marked("Points")},
    ShownText{"position", Messages::Marked("Position")},
    ShownText{"posterize", Messages::Marked("Posterize")},
    ShownText{"progressive", Messages::Marked("Progressive")},
    ShownText{"quality", Messages::Marked("Quality")},
    ShownText{"red", Messages::Marked("Red")},
    ShownText{"right", Messages::Marked("Right")},
    ShownText{"rotate", Messages::Marked("Rotate")},
    ShownText{"saturation", Messages::Marked("Saturation")},
    ShownText{"sepia", Messages::Marked("Sepia")},
    ShownText{"set-metadata", Messages::Marked("Write metadata")},
    ShownText{"sharpen", Messages::Marked("Sharpen")},
    ShownText{"sigma", Messages::Marked("Radius (sigma)")},
    ShownText{"size", Messages::Marked("Size")},
    ShownText{"softness", Messages::Marked("Softness")},
    ShownText{"start", Messages::Marked("Begins at")},
    ShownText{"stops", Messages::Marked("Stops")},
    ShownText{"strength", Messages::Marked("Strength")},
    ShownText{"temperature", Messages::Marked("Temperature")},
    ShownText{"tetrahedral", Messages::Marked("Tetrahedral")},
    ShownText{"text", Messages::Marked("Text")},
    ShownText{"threshold", Messages::Marked("Threshold")},
    ShownText{"tile", Messages::Marked("Tiles")},
    ShownText{"tint", Messages::Marked("Tint")},
    ShownText{"title", Messages::Marked("Title")},
    ShownText{"together", Messages::Marked("Together")},
    ShownText{"tokens", Messages::Marked("Text has tokens")},
    ShownText{"top", Messages::Marked("Top")},
    ShownText{"top-left", Messages::Marked("Top left")},
    ShownText{"top-right", Messages::Marked("Top right")},
    ShownText{"trilinear", Messages::Marked("Trilinear")},
    ShownText{"unit", Messages::Marked("Unit")},
    ShownText{"usageTerms", Messages::Marked("Usage terms")},
    ShownText{"vertical", Messages::Marked("Vertical")},
    ShownText{"vibrance", Messages::Marked("Vibrance")},
    ShownText{"vignette", Messages::Marked("Vignette")},
    ShownText{"watermark-image", Messages::Marked("Watermark with a picture")},
    ShownText{"watermark-text", Messages::Marked("Watermark with a text")},
    ShownText{"white", Messages::Marked("White")},
    ShownText{"white-balance", Messages::Marked("White balance")},
    ShownText{"zstd", Messages::Marked("Zstandard")},
};

const QHash<QString, const char*>& Texts()
{
    static const QHash<QString, const char*> texts = [] {
        QHash<QString, const char*> byName;
        for (const ShownText& shown : shownTexts) {
            byName.insert(QString::fromLatin1(shown.name), shown.text);
        }
        return byName;
    }();
    return texts;
}

bool IsAbbreviation(const QString& name)
{
    static const QSet<QString> abbreviations{QStringLiteral("exif"), QStringLiteral("gps"), QStringLiteral("icc"),
                                             QStringLiteral("iptc"), QStringLiteral("lzw"), QStringLiteral("xmp")};
    return abbreviations.contains(name);
}

/// "keepFileTime" is "Keep file time".
QString InItsWords(const QString& name)
{
    QString words;
    for (const QChar character : name) {
        if (character.isUpper() && !words.isEmpty()) {
            words += QLatin1Char(' ');
        }
        words += character == QLatin1Char('-') ? QLatin1Char(' ') : character.toLower();
    }
    if (!words.isEmpty()) {
        words[0] = words.at(0).toUpper();
    }
    return words;
}

} // namespace

QString ShownName(const QString& name)
{
    if (IsAbbreviation(name)) {
        return name.toUpper();
    }
    const char* const text = Texts().value(name);
    return text != nullptr ? Messages::tr(text) : InItsWords(name);
}

QString ShownParameter(const QString& name)
{
    return name == QLatin1String("copyright") ? Messages::tr("Copyright notice") : ShownName(name);
}

bool HasShownName(const QString& name)
{
    return IsAbbreviation(name) || Texts().contains(name);
}

QString ShownUnit(const QString& unit)
{
    static const QHash<QString, QString> signs{{QStringLiteral("percent"), QStringLiteral("%")},
                                               {QStringLiteral("pixels"), QStringLiteral("px")},
                                               {QStringLiteral("degrees"), QStringLiteral("\u00B0")}};
    return signs.value(unit, BatchHost::Translated(unit));
}

} // namespace BatchDesktop
