// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CaptureTime.h"

#include <QRegularExpression>
#include <QString>

namespace BatchWorker {

namespace {

// No photograph is older.
constexpr int firstYear = 1826;

// "2024:05:31 17:08:09" (EXIF), "2024-05-31T17:08:09.25+02:00" (XMP, where the time may be absent) and the forms
// between them that programs write. A time zone is left out: names show the time at the place of the picture.
QDateTime TimeOf(const std::string& text)
{
    static const QRegularExpression form(QStringLiteral(
        R"(^\s*(\d{4})[-:/.](\d{1,2})[-:/.](\d{1,2})(?:[T\s]+(\d{1,2}):(\d{1,2})(?::(\d{1,2}))?.*)?\s*$)"));
    const QRegularExpressionMatch match = form.match(QString::fromStdString(text).remove(QChar(QChar::Null)));
    const auto number = [&match](int group) { return match.captured(group).toInt(); };
    const QDate date(number(1), number(2), number(3));
    const QTime time(number(4), number(5), number(6));
    return date.year() >= firstYear && time.isValid() ? QDateTime(date, time) : QDateTime();
}

template<typename Data, typename Key>
std::string TextOf(const Data& data, const Key& key)
{
    const auto found = data.findKey(key);
    return found == data.end() ? std::string() : found->toString();
}

QDateTime TimeOfIptc(const Exiv2::IptcData& iptc, const char* date, const char* time)
{
    const std::string day = TextOf(iptc, Exiv2::IptcKey(date));
    const QDateTime both = TimeOf(day + "T" + TextOf(iptc, Exiv2::IptcKey(time)));
    return both.isValid() ? both : TimeOf(day);
}

} // namespace

QDateTime CaptureTime(const MetadataBlocks& blocks)
{
    // Files that are built like TIFF files may have the first two in their first directory.
    for (const char* key : {"Exif.Photo.DateTimeOriginal", "Exif.Image.DateTimeOriginal",
                            "Exif.Photo.DateTimeDigitized", "Exif.Image.DateTime"}) {
        const QDateTime time = TimeOf(TextOf(blocks.exif, Exiv2::ExifKey(key)));
        if (time.isValid()) {
            return time;
        }
    }
    for (const char* key : {"Xmp.exif.DateTimeOriginal", "Xmp.photoshop.DateCreated", "Xmp.xmp.CreateDate"}) {
        const QDateTime time = TimeOf(TextOf(blocks.xmp, Exiv2::XmpKey(key)));
        if (time.isValid()) {
            return time;
        }
    }
    const QDateTime created = TimeOfIptc(blocks.iptc, "Iptc.Application2.DateCreated", "Iptc.Application2.TimeCreated");
    return created.isValid() ? created : blocks.created;
}

} // namespace BatchWorker
