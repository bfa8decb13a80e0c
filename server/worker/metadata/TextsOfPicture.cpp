// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TextsOfPicture.h"

#include "MetadataText.h"

#include <QStringList>

#include <algorithm>
#include <cmath>
#include <exception>
#include <initializer_list>
#include <optional>

namespace BatchWorker {

namespace {

using Keys = std::initializer_list<const char*>;

/// The first text that is not blank.
QString FirstOf(const QStringList& texts)
{
    const auto found = std::find_if(texts.begin(), texts.end(), [](const QString& text) { return !text.isEmpty(); });
    return found == texts.end() ? QString() : *found;
}

QString ExifText(const Exiv2::ExifData& exif, const char* key)
{
    const auto found = exif.findKey(Exiv2::ExifKey(key));
    return found == exif.end() ? QString() : LineOf(found->toString());
}

/// The entries of Windows, two bytes for each character.
QString WideExifText(const Exiv2::ExifData& exif, const char* key)
{
    constexpr long longest = 8192;
    const auto found = exif.findKey(Exiv2::ExifKey(key));
    if (found == exif.end() || found->size() > longest) {
        return {};
    }
    std::vector<Exiv2::byte> bytes(std::size_t(found->size()));
    found->copy(bytes.data(), Exiv2::littleEndian);
    QString text;
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
        text.append(QChar(ushort(bytes[i] | bytes[i + 1] << 8)));
    }
    return text.replace(QChar(QChar::Null), QLatin1Char(' ')).simplified();
}

/// All by-lines, or all items of a property, joined.
QString IptcText(const Exiv2::IptcData& iptc, const char* key)
{
    const Exiv2::IptcKey wanted(key);
    QStringList texts;
    for (const Exiv2::Iptcdatum& entry : iptc) {
        if (entry.record() == wanted.record() && entry.tag() == wanted.tag()) {
            texts.append(LineOf(entry.toString()));
        }
    }
    texts.removeAll(QString());
    return texts.join(QStringLiteral(", "));
}

QString XmpText(const Exiv2::XmpData& xmp, const char* key)
{
    const auto found = xmp.findKey(Exiv2::XmpKey(key));
    if (found == xmp.end()) {
        return {};
    }
    // The count of a plain text is that of its characters.
    if (!dynamic_cast<const Exiv2::XmpArrayValue*>(&found->value())) {
        return LineOf(TextIn(*found));
    }
    QStringList texts;
    for (long i = 0; i < found->count(); ++i) {
        texts.append(LineOf(found->toString(i)));
    }
    texts.removeAll(QString());
    return texts.join(QStringLiteral(", "));
}

/// Of other types the library gives something else, such as the first character of a text.
bool IsNumber(Exiv2::TypeId type)
{
    static const std::initializer_list<Exiv2::TypeId> numbers{
        Exiv2::unsignedShort, Exiv2::unsignedLong,   Exiv2::unsignedRational, Exiv2::signedShort,
        Exiv2::signedLong,    Exiv2::signedRational, Exiv2::tiffFloat,        Exiv2::tiffDouble};
    return std::find(numbers.begin(), numbers.end(), type) != numbers.end();
}

/// The first of the numbers that is above 0 and says something.
std::optional<double> NumberOf(const MetadataBlocks& blocks, Keys exifKeys, const char* xmpKey)
{
    const auto value = [](const Exiv2::Rational& number) -> std::optional<double> {
        const double quotient = number.second == 0 ? 0.0 : double(number.first) / double(number.second);
        return quotient > 0.0 && std::isfinite(quotient) ? std::optional(quotient) : std::nullopt;
    };
    for (const char* key : exifKeys) {
        const auto found = blocks.exif.findKey(Exiv2::ExifKey(key));
        if (found != blocks.exif.end() && found->count() > 0 && IsNumber(found->typeId())) {
            if (const auto number = value(found->toRational())) {
                return number;
            }
        }
    }
    const auto found = blocks.xmp.findKey(Exiv2::XmpKey(xmpKey));
    return found == blocks.xmp.end() || found->count() == 0 ? std::nullopt : value(found->toRational());
}

/// Without zeros at the end.
QString Rounded(double number, int decimals)
{
    QString text = QString::number(number, 'f', decimals);
    while (text.contains(QLatin1Char('.')) && (text.endsWith(QLatin1Char('0')) || text.endsWith(QLatin1Char('.')))) {
        text.chop(1);
    }
    return text;
}

/// Nothing for a number that would show as 0, or that no camera has.
QString RoundedText(const std::optional<double>& number, int decimals)
{
    constexpr double largest = 1e6;
    const QString text = number && *number < largest ? Rounded(*number, decimals) : QString();
    return text == QLatin1String("0") ? QString() : text;
}

QString ShutterText(const std::optional<double>& seconds)
{
    constexpr double longestFraction = 0.3;
    constexpr double shortest = 1e-9;
    if (seconds && *seconds < longestFraction && *seconds >= shortest) {
        return QStringLiteral("1/%1").arg(std::llround(1.0 / *seconds));
    }
    return RoundedText(seconds, 1);
}

QString IsoText(const MetadataBlocks& blocks)
{
    // What the first entry has if the value does not fit into it.
    constexpr double isElsewhere = 65535.0;
    const char* const inXmp = "Xmp.exif.ISOSpeedRatings";
    const auto rating = NumberOf(blocks, {"Exif.Photo.ISOSpeedRatings", "Exif.Image.ISOSpeedRatings"}, inXmp);
    if (rating && *rating != isElsewhere) {
        return RoundedText(rating, 0);
    }
    return RoundedText(NumberOf(blocks, {"Exif.Photo.ISOSpeed", "Exif.Photo.RecommendedExposureIndex"}, inXmp), 0);
}

/// What the metadata library throws over one entry costs that entry.
template<typename Read>
QString OrNothing(const Read& read)
{
    try {
        return read();
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace

BatchJob::PictureTexts TextsOf(const MetadataBlocks& blocks)
{
    const Exiv2::ExifData& exif = blocks.exif;
    const Exiv2::XmpData& xmp = blocks.xmp;
    BatchJob::PictureTexts texts;
    texts.camera = OrNothing([&] {
        return FirstOf({ExifText(exif, "Exif.Image.Model"), XmpText(xmp, "Xmp.tiff.Model")});
    });
    texts.lens = OrNothing([&] {
        return FirstOf({ExifText(exif, "Exif.Photo.LensModel"), XmpText(xmp, "Xmp.exifEX.LensModel"),
                        XmpText(xmp, "Xmp.aux.Lens")});
    });
    texts.focal = OrNothing([&] {
        return RoundedText(
            NumberOf(blocks, {"Exif.Photo.FocalLength", "Exif.Image.FocalLength"}, "Xmp.exif.FocalLength"), 1);
    });
    texts.aperture = OrNothing([&] {
        return RoundedText(NumberOf(blocks, {"Exif.Photo.FNumber", "Exif.Image.FNumber"}, "Xmp.exif.FNumber"), 2);
    });
    texts.shutter = OrNothing([&] {
        return ShutterText(
            NumberOf(blocks, {"Exif.Photo.ExposureTime", "Exif.Image.ExposureTime"}, "Xmp.exif.ExposureTime"));
    });
    texts.iso = OrNothing([&] { return IsoText(blocks); });
    texts.title = OrNothing([&] {
        return FirstOf({XmpText(xmp, "Xmp.dc.title"), IptcText(blocks.iptc, "Iptc.Application2.ObjectName"),
                        WideExifText(exif, "Exif.Image.XPTitle")});
    });
    texts.creator = OrNothing([&] {
        return FirstOf({XmpText(xmp, "Xmp.dc.creator"), IptcText(blocks.iptc, "Iptc.Application2.Byline"),
                        ExifText(exif, "Exif.Image.Artist"), WideExifText(exif, "Exif.Image.XPAuthor")});
    });
    return BatchJob::CleanTexts(texts);
}

} // namespace BatchWorker
