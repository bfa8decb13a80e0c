// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SourceTraces.h"

#include "RemoveEntries.h"
#include "XmpPath.h"

#include <algorithm>
#include <initializer_list>

namespace BatchWorker {

namespace {

// Shorter than any preview, longer than what makers note of lenses, focus and exposure.
constexpr long longestOfUnknownPurpose = 512;

bool IsAmong(int tag, std::initializer_list<std::pair<int, int>> ranges)
{
    return std::any_of(ranges.begin(), ranges.end(),
                       [tag](const std::pair<int, int>& range) { return tag >= range.first && tag <= range.second; });
}

bool IsStandardGroup(const std::string& group)
{
    return group == "Image" || group == "Photo" || group == "GPSInfo" || group == "Iop";
}

// Directories of further pictures, and what the metadata library says about the file itself.
bool IsOfAnotherPicture(const std::string& group)
{
    return group.rfind("SubImage", 0) == 0 || group.rfind("SubThumb", 0) == 0 || group == "Thumbnail" ||
           group == "PanasonicRaw" || group == "Image2" || group == "Image3" || group == "MpfInfo";
}

// Entries that say how pixels are stored in TIFF files and files built like them, where on earth each of them lies, or
// that hold blocks, previews or layers.
bool IsOfStorage(int tag)
{
    constexpr int firstOfNegatives = 0xc612;
    constexpr int lastOfNegatives = 0xcfff;
    return IsAmong(tag, {{0x0fe, 0x107},   {0x10a, 0x10a},   {0x111, 0x111},   {0x115, 0x119},
                         {0x11c, 0x11c},   {0x122, 0x125},   {0x13d, 0x13d},   {0x140, 0x145},
                         {0x14a, 0x14a},   {0x152, 0x15b},   {0x200, 0x214},   {0x2bc, 0x2bc},
                         {0x5010, 0x5034}, {0x828d, 0x828f}, {0x830e, 0x830e}, {0x83bb, 0x83bb},
                         {0x8480, 0x8482}, {0x85d8, 0x85d8}, {0x8649, 0x8649}, {0x8773, 0x8773},
                         {0x87af, 0x87b1}, {0x935c, 0x935c}, {0xa480, 0xa481}, {firstOfNegatives, lastOfNegatives}});
}

bool IsNamedPreview(const Exiv2::Exifdatum& entry)
{
    const std::string name = entry.tagName();
    const std::string group = entry.groupName();
    return group.find("Preview") != std::string::npos || name.find("Preview") != std::string::npos ||
           name.find("Thumb") != std::string::npos || name.find("JpgFromRaw") != std::string::npos;
}

// A note that the library cannot take apart is one entry, which may hold anything.
bool IsUnsafeInNotes(const Exiv2::Exifdatum& entry)
{
    return entry.sizeDataArea() > 0 || entry.size() > longestOfUnknownPurpose || IsNamedPreview(entry);
}

// "http://ns.google.com/photos/dd/1.0/..." are several.
bool IsSpaceOfStorage(const std::string& uri)
{
    static const std::initializer_list<const char*> spaces{
        "http://ns.adobe.com/hdr-gain-map/",      "http://ns.apple.com/HDRGainMap/",
        "http://ns.apple.com/pixeldatainfo/",     "http://ns.google.com/photos/1.0/container/",
        "http://ns.google.com/photos/1.0/image/", "http://ns.google.com/photos/1.0/depthmap/",
        "http://ns.google.com/photos/1.0/audio/", "http://ns.google.com/photos/dd/1.0/",
        "http://ns.adobe.com/xap/1.0/g/img/",     "http://ns.adobe.com/xmp/note/",
    };
    return std::any_of(spaces.begin(), spaces.end(), [&uri](const char* space) { return uri.rfind(space, 0) == 0; });
}

bool IsStepOfSource(const XmpStep& step)
{
    static const QByteArrayList ofStorage{"ImageWidth",      "ImageLength",    "PixelXDimension",
                                          "PixelYDimension", "Orientation",    "XResolution",
                                          "YResolution",     "ResolutionUnit", "HasExtendedXMP"};
    const bool isStandard = step.space == "tiff" || step.space == "exif" || step.space == "xmpNote";
    return (isStandard && ofStorage.contains(step.name)) || step.name.startsWith("MicroVideo") ||
           step.name.startsWith("MotionPhoto") || step.name.startsWith("HDRGainMap") ||
           step.name.contains("Thumbnail") || IsSpaceOfStorage(SpaceOf(step.space));
}

bool IsOfSource(const Exiv2::Exifdatum& entry)
{
    const std::string group = entry.groupName();
    if (IsOfAnotherPicture(group)) {
        return true;
    }
    if (IsMakerNote(entry)) {
        return IsUnsafeInNotes(entry);
    }
    const bool isLongAndUnknown = IsUnknown(entry) && entry.size() > longestOfUnknownPurpose;
    return isLongAndUnknown || entry.sizeDataArea() > 0 || (group == "Image" && IsOfStorage(entry.tag()));
}

// Records above 2 describe and hold the picture; three sets of record 2 are its preview.
bool IsOfSource(const Exiv2::Iptcdatum& entry)
{
    return entry.record() > Exiv2::IptcDataSets::application2 ||
           (entry.record() == Exiv2::IptcDataSets::application2 &&
            IsAmong(entry.tag(), {{Exiv2::IptcDataSets::PreviewFormat, Exiv2::IptcDataSets::Preview}}));
}

bool IsOfSource(const Exiv2::Xmpdatum& entry)
{
    const QVector<XmpStep> steps = StepsOf(entry);
    return std::any_of(steps.begin(), steps.end(), IsStepOfSource);
}

// Some programs keep whole pictures as text. These are the beginnings of JPEG, PNG, TIFF and RIFF in base 64.
bool BeginsLikePicture(const std::string& text)
{
    static const std::initializer_list<const char*> beginnings{"/9j/",  "iVBORw0KGgo", "SUkq",
                                                               "TU0AK", "UklGR",       "data:image/"};
    const std::size_t first = text.find_first_not_of(" \t\r\n");
    return first != std::string::npos && std::any_of(beginnings.begin(), beginnings.end(), [&](const char* beginning) {
               return text.compare(first, qstrlen(beginning), beginning) == 0;
           });
}

bool HoldsPicture(const Exiv2::Xmpdatum& entry)
{
    if (entry.typeId() == Exiv2::xmpText) {
        return BeginsLikePicture(entry.toString());
    }
    for (long i = 0; i < entry.count(); ++i) {
        if (BeginsLikePicture(entry.toString(i))) {
            return true;
        }
    }
    return false;
}

} // namespace

bool IsMakerNote(const Exiv2::Exifdatum& entry)
{
    return !IsStandardGroup(entry.groupName()) || entry.key() == "Exif.Photo.MakerNote";
}

bool IsUnknown(const Exiv2::Exifdatum& entry)
{
    return entry.tagName().rfind("0x", 0) == 0;
}

void RemoveSourceTraces(Exiv2::ExifData& exif)
{
    RemoveIf(exif, [](const Exiv2::Exifdatum& entry) { return IsOfSource(entry); });
}

void RemoveSourceTraces(Exiv2::IptcData& iptc)
{
    RemoveIf(iptc, [](const Exiv2::Iptcdatum& entry) { return IsOfSource(entry); });
}

void RemoveSourceTraces(Exiv2::XmpData& xmp)
{
    RemoveIf(xmp, [](const Exiv2::Xmpdatum& entry) { return IsOfSource(entry); });
    // Emptied, not removed: no item of an array may be missing before others.
    for (Exiv2::Xmpdatum& entry : xmp) {
        if (HoldsPicture(entry)) {
            entry = std::string();
        }
    }
}

} // namespace BatchWorker
