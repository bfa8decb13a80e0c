// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MetadataTexts.h"

#include "MetadataText.h"
#include "RemoveEntries.h"

#include "job/values/CutText.h"

#include <QRegularExpression>
#include <QtEndian>

#include <initializer_list>

namespace BatchWorker {

namespace {

/// Without what XML and the metadata cannot hold. Line breaks stay.
QString Writable(const QString& text)
{
    constexpr ushort firstNonCharacter = 0xfffe;
    QString writable;
    for (const QChar character : text) {
        if (character.category() == QChar::Other_Control && character != QLatin1Char('\n')) {
            writable.append(QLatin1Char(' '));
        } else if (character.unicode() < firstNonCharacter) {
            writable.append(character);
        }
    }
    // A lone surrogate becomes a replacement character.
    return QString::fromUtf8(writable.toUtf8()).trimmed();
}

std::string Utf8(const QString& text)
{
    return text.toStdString();
}

void RemoveEntry(Exiv2::ExifData& exif, const char* key)
{
    RemoveIf(exif, [key](const Exiv2::Exifdatum& entry) { return entry.key() == key; });
}

bool Has(const Exiv2::ExifData& exif, const char* key)
{
    return exif.findKey(Exiv2::ExifKey(key)) != exif.end();
}

void SetExif(Exiv2::ExifData& exif, const char* key, const QString& text)
{
    RemoveEntry(exif, key);
    Exiv2::AsciiValue value;
    value.read(Utf8(text));
    exif.add(Exiv2::ExifKey(key), &value);
}

/// The entries of Windows: two bytes for each character, and a zero.
void SetWideExif(Exiv2::ExifData& exif, const char* key, const QString& text)
{
    RemoveEntry(exif, key);
    QVector<quint16> units;
    for (const QChar character : text) {
        units.append(qToLittleEndian(character.unicode()));
    }
    units.append(0);
    Exiv2::DataValue value(Exiv2::unsignedByte);
    value.read(reinterpret_cast<const Exiv2::byte*>(units.constData()), long(units.size()) * 2, Exiv2::littleEndian);
    exif.add(Exiv2::ExifKey(key), &value);
}

/// An entry and its length in bytes, as the standard limits it.
struct IptcEntry
{
    const char* key;
    int longest;
};

void SetIptc(Exiv2::IptcData& iptc, const IptcEntry& entry, const QStringList& texts)
{
    const Exiv2::IptcKey key(entry.key);
    RemoveIf(iptc,
             [&key](const Exiv2::Iptcdatum& old) { return old.record() == key.record() && old.tag() == key.tag(); });
    for (const QString& text : texts) {
        Exiv2::StringValue value;
        value.read(Utf8(BatchJob::CutToBytes(text, entry.longest)));
        iptc.add(key, &value);
    }
}

/// Says that texts are UTF-8, and makes those that were not so.
void UseUtf8(Exiv2::IptcData& iptc)
{
    for (Exiv2::Iptcdatum& entry : iptc) {
        const std::string bytes = entry.typeId() == Exiv2::string ? entry.toString() : std::string();
        if (entry.record() == Exiv2::IptcDataSets::application2 && !IsUtf8(bytes)) {
            Exiv2::StringValue value;
            value.read(QString::fromLatin1(bytes.data(), int(bytes.size())).toStdString());
            entry.setValue(&value);
        }
    }
    iptc["Iptc.Envelope.CharacterSet"] = std::string("\x1b%G");
}

/// With what is below it.
void RemoveEntry(Exiv2::XmpData& xmp, const std::string& key)
{
    RemoveIf(xmp, [&key](const Exiv2::Xmpdatum& entry) {
        const std::string other = entry.key();
        return other == key || other.rfind(key + "[", 0) == 0 || other.rfind(key + "/", 0) == 0;
    });
}

void SetXmp(Exiv2::XmpData& xmp, const char* key, const Exiv2::Value& value)
{
    RemoveEntry(xmp, key);
    xmp.add(Exiv2::XmpKey(key), &value);
}

/// Not by read(), which takes the beginnings of some texts for instructions.
Exiv2::LangAltValue InEveryLanguage(const QString& text)
{
    Exiv2::LangAltValue value;
    value.value_["x-default"] = Utf8(text);
    return value;
}

Exiv2::XmpTextValue Plain(const QString& text)
{
    Exiv2::XmpTextValue value;
    value.value_ = Utf8(text);
    return value;
}

Exiv2::XmpArrayValue Listed(Exiv2::TypeId type, const QStringList& texts)
{
    Exiv2::XmpArrayValue value(type);
    for (const QString& text : texts) {
        value.read(Utf8(text));
    }
    return value;
}

void SetCreator(MetadataBlocks& blocks, const QString& creator)
{
    SetExif(blocks.exif, "Exif.Image.Artist", creator);
    if (Has(blocks.exif, "Exif.Image.XPAuthor")) {
        SetWideExif(blocks.exif, "Exif.Image.XPAuthor", creator);
    }
    SetIptc(blocks.iptc, {"Iptc.Application2.Byline", 32}, {creator});
    SetXmp(blocks.xmp, "Xmp.dc.creator", Listed(Exiv2::xmpSeq, {creator}));
    RemoveEntry(blocks.xmp, "Xmp.tiff.Artist");
}

void SetCopyright(MetadataBlocks& blocks, const QString& copyright)
{
    SetExif(blocks.exif, "Exif.Image.Copyright", copyright);
    SetIptc(blocks.iptc, {"Iptc.Application2.Copyright", 128}, {copyright});
    SetXmp(blocks.xmp, "Xmp.dc.rights", InEveryLanguage(copyright));
    RemoveEntry(blocks.xmp, "Xmp.tiff.Copyright");
}

void SetCredit(MetadataBlocks& blocks, const QString& credit)
{
    SetIptc(blocks.iptc, {"Iptc.Application2.Credit", 32}, {credit});
    SetXmp(blocks.xmp, "Xmp.photoshop.Credit", Plain(credit));
}

void SetTitle(MetadataBlocks& blocks, const QString& title)
{
    SetWideExif(blocks.exif, "Exif.Image.XPTitle", title);
    SetIptc(blocks.iptc, {"Iptc.Application2.ObjectName", 64}, {title});
    SetXmp(blocks.xmp, "Xmp.dc.title", InEveryLanguage(title));
}

void SetKeywords(MetadataBlocks& blocks, const QStringList& keywords)
{
    SetWideExif(blocks.exif, "Exif.Image.XPKeywords", keywords.join(QLatin1Char(';')));
    SetIptc(blocks.iptc, {"Iptc.Application2.Keywords", 64}, keywords);
    SetXmp(blocks.xmp, "Xmp.dc.subject", Listed(Exiv2::xmpBag, keywords));
}

QStringList KeywordsIn(const QString& text)
{
    static const QRegularExpression separators(QStringLiteral("[,;\n]"));
    QStringList keywords;
    const QStringList parts = text.split(separators);
    for (const QString& part : parts) {
        const QString keyword = part.simplified();
        if (!keyword.isEmpty() && !keywords.contains(keyword)) {
            keywords.append(keyword);
        }
    }
    return keywords;
}

} // namespace

MetadataTexts MetadataTexts::Of(const QJsonObject& parameters)
{
    const auto text = [&parameters](const char* name) { return Writable(parameters[QLatin1String(name)].toString()); };
    MetadataTexts texts;
    texts.creator = text("creator").simplified();
    texts.copyright = text("copyright");
    texts.credit = text("credit").simplified();
    texts.title = text("title").simplified();
    texts.keywords = KeywordsIn(text("keywords"));
    texts.usageTerms = text("usageTerms");
    return texts;
}

bool MetadataTexts::IsEmpty() const
{
    return creator.isEmpty() && copyright.isEmpty() && credit.isEmpty() && title.isEmpty() && keywords.isEmpty() &&
           usageTerms.isEmpty();
}

void SetTexts(MetadataBlocks& blocks, const MetadataTexts& texts)
{
    const auto set = [&blocks](const auto& text, const auto& write) {
        if (!text.isEmpty()) {
            write(blocks, text);
        }
    };
    if (texts.IsEmpty()) {
        return;
    }
    UseUtf8(blocks.iptc);
    set(texts.creator, SetCreator);
    set(texts.copyright, SetCopyright);
    set(texts.credit, SetCredit);
    set(texts.title, SetTitle);
    set(texts.keywords, SetKeywords);
    if (!texts.usageTerms.isEmpty()) {
        SetXmp(blocks.xmp, "Xmp.xmpRights.UsageTerms", InEveryLanguage(texts.usageTerms));
    }
}

} // namespace BatchWorker
