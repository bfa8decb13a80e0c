// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Copyright.h"

#include "MetadataText.h"
#include "RemoveEntries.h"
#include "XmpPath.h"

#include <QByteArrayList>

#include <algorithm>
#include <initializer_list>

namespace BatchWorker {

namespace {

// Properties of one namespace of XMP; all of them if no names are given.
struct XmpNames
{
    const char* space;
    QByteArrayList names;
};

bool IsAmong(const Exiv2::Xmpdatum& entry, const std::initializer_list<XmpNames>& sets)
{
    const XmpStep step = StepsOf(entry).first();
    const std::string space = SpaceOf(step.space);
    return std::any_of(sets.begin(), sets.end(), [&](const XmpNames& set) {
        return space == set.space && (set.names.isEmpty() || set.names.contains(step.name));
    });
}

bool IsOfCopyright(const Exiv2::Xmpdatum& entry)
{
    static const std::initializer_list<XmpNames> sets{
        {"http://purl.org/dc/elements/1.1/", {"creator", "rights"}},
        {"http://ns.adobe.com/xap/1.0/rights/", {}},
        {"http://ns.adobe.com/photoshop/1.0/", {"AuthorsPosition", "Credit", "Source"}},
        {"http://ns.adobe.com/tiff/1.0/", {"Artist", "Copyright"}},
        {"http://iptc.org/std/Iptc4xmpCore/1.0/xmlns/", {"CreatorContactInfo"}},
        {"http://ns.useplus.org/ldf/xmp/1.0/", {"CopyrightOwner", "DataMining", "ImageCreator", "Licensor"}},
        {"http://creativecommons.org/ns#", {}},
    };
    return IsAmong(entry, sets);
}

bool IsNotice(const Exiv2::Xmpdatum& entry)
{
    static const std::initializer_list<XmpNames> sets{
        {"http://purl.org/dc/elements/1.1/", {"rights"}},
        {"http://ns.adobe.com/xap/1.0/rights/", {"Owner", "UsageTerms", "WebStatement"}},
        {"http://ns.adobe.com/tiff/1.0/", {"Copyright"}},
    };
    return IsAmong(entry, sets);
}

bool IsNotice(const Exiv2::Iptcdatum& entry)
{
    return entry.record() == Exiv2::IptcDataSets::application2 && entry.tag() == Exiv2::IptcDataSets::Copyright;
}

bool IsNotice(const Exiv2::Exifdatum& entry)
{
    return entry.key() == "Exif.Image.Copyright";
}

bool IsOfCopyright(const Exiv2::Iptcdatum& entry)
{
    using Exiv2::IptcDataSets;
    static const std::initializer_list<std::uint16_t> tags{IptcDataSets::Byline, IptcDataSets::BylineTitle,
                                                           IptcDataSets::Credit, IptcDataSets::Source,
                                                           IptcDataSets::Copyright};
    return entry.record() == IptcDataSets::application2 &&
           std::find(tags.begin(), tags.end(), entry.tag()) != tags.end();
}

// Without it readers would take the characters of the others for those of another set.
bool IsCharacterSet(const Exiv2::Iptcdatum& entry)
{
    return entry.record() == Exiv2::IptcDataSets::envelope && entry.tag() == Exiv2::IptcDataSets::CharacterSet;
}

template<typename Entry>
std::string TextIn(const Entry& entry)
{
    return entry.toString();
}

template<typename Data>
void AddNotice(CopyrightNotice& notice, const Data& data, const char* group)
{
    for (const auto& entry : data) {
        const QString text = IsNotice(entry) ? LineOf(TextIn(entry)) : QString();
        if (!text.isEmpty()) {
            notice.groups.append(QLatin1String(group));
            notice.text = notice.text.isEmpty() ? text : notice.text;
            return;
        }
    }
}

} // namespace

bool IsOfCopyright(const Exiv2::Exifdatum& entry)
{
    static const std::initializer_list<const char*> keys{"Exif.Image.Artist", "Exif.Image.Copyright",
                                                         "Exif.Image.XPAuthor"};
    const std::string key = entry.key();
    if (std::find(keys.begin(), keys.end(), key) == keys.end()) {
        return false;
    }
    std::vector<Exiv2::byte> bytes(std::size_t(entry.size()));
    entry.copy(bytes.data(), Exiv2::littleEndian);
    return std::any_of(bytes.begin(), bytes.end(), [](Exiv2::byte byte) { return byte != 0 && byte != ' '; });
}

void KeepCopyright(Exiv2::IptcData& iptc)
{
    const bool hasAny =
        std::any_of(iptc.begin(), iptc.end(), [](const Exiv2::Iptcdatum& entry) { return IsOfCopyright(entry); });
    RemoveIf(iptc, [hasAny](const Exiv2::Iptcdatum& entry) {
        return !IsOfCopyright(entry) && !(hasAny && IsCharacterSet(entry));
    });
}

void KeepCopyright(Exiv2::XmpData& xmp)
{
    RemoveIf(xmp, [](const Exiv2::Xmpdatum& entry) { return !IsOfCopyright(entry); });
}

CopyrightNotice NoticeIn(const MetadataBlocks& blocks)
{
    CopyrightNotice notice;
    AddNotice(notice, blocks.exif, "EXIF");
    AddNotice(notice, blocks.iptc, "IPTC");
    AddNotice(notice, blocks.xmp, "XMP");
    return notice;
}

} // namespace BatchWorker
