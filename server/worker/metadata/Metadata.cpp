#include "Metadata.h"

#include "MetadataReader.h"

#include <QFile>

#include <exiv2/exiv2.hpp>

#include <algorithm>

namespace BatchWorker {

struct Metadata::Private : MetadataBlocks
{
    bool keepsExif = true;
};

namespace {

void StartExiv2()
{
    static const bool isStarted = [] {
        Exiv2::LogMsg::setLevel(Exiv2::LogMsg::mute);
        return Exiv2::XmpParser::initialize();
    }();
    Q_UNUSED(isStarted)
}

bool IsAmong(int tag, std::initializer_list<std::pair<int, int>> ranges)
{
    return std::any_of(ranges.begin(), ranges.end(),
                       [tag](const std::pair<int, int>& range) { return tag >= range.first && tag <= range.second; });
}

// Entries that say how pixels are stored in TIFF files and files built like them, or where other blocks begin.
bool DescribesStorage(const Exiv2::Exifdatum& entry)
{
    const std::string group = entry.groupName();
    if (group.rfind("SubImage", 0) == 0 || group.rfind("SubThumb", 0) == 0 || group == "Thumbnail" ||
        group == "PanasonicRaw" || group == "Image2" || group == "Image3") {
        return true;
    }
    constexpr int firstOfNegatives = 0xc612;
    constexpr int lastOfNegatives = 0xc7ff;
    return group == "Image" && IsAmong(entry.tag(), {{0x0fe, 0x107},
                                                     {0x10a, 0x10a},
                                                     {0x111, 0x111},
                                                     {0x115, 0x119},
                                                     {0x11c, 0x11c},
                                                     {0x122, 0x125},
                                                     {0x13d, 0x13d},
                                                     {0x140, 0x145},
                                                     {0x14a, 0x14a},
                                                     {0x152, 0x15b},
                                                     {0x200, 0x214},
                                                     {0x2bc, 0x2bc},
                                                     {0x828d, 0x828f},
                                                     {0x83bb, 0x83bb},
                                                     {0x8649, 0x8649},
                                                     {0x8773, 0x8773},
                                                     {firstOfNegatives, lastOfNegatives}});
}

template<typename Data, typename Predicate>
void RemoveIf(Data& data, const Predicate& isUnwanted)
{
    for (auto entry = data.begin(); entry != data.end();) {
        entry = isUnwanted(*entry) ? data.erase(entry) : std::next(entry);
    }
}

bool IsPosition(const Exiv2::Exifdatum& entry)
{
    return entry.groupName() == "GPSInfo" || entry.key() == "Exif.Image.GPSTag";
}

bool IsPositionInXmp(const Exiv2::Xmpdatum& entry)
{
    return entry.groupName() == "exif" && entry.tagName().rfind("GPS", 0) == 0;
}

QByteArray Bytes(const Exiv2::Blob& blob)
{
    return {reinterpret_cast<const char*>(blob.data()), int(blob.size())};
}

QByteArray Encoded(const Exiv2::ExifData& exif)
{
    Exiv2::Blob blob;
    Exiv2::ExifParser::encode(blob, Exiv2::littleEndian, exif);
    return Bytes(blob);
}

const Exiv2::byte* Data(const QByteArray& bytes)
{
    return reinterpret_cast<const Exiv2::byte*>(bytes.constData());
}

} // namespace

Metadata::Metadata()
    : d(std::make_unique<Private>())
{
    StartExiv2();
}

Metadata::~Metadata() = default;
Metadata::Metadata(Metadata&& other) noexcept = default;
Metadata& Metadata::operator=(Metadata&& other) noexcept = default;

Metadata Metadata::Of(const QString& file, const PictureSource& source, BatchJob::Warnings& warnings)
{
    Metadata metadata;
    static_cast<MetadataBlocks&>(*metadata.d) = ReadMetadata(file, source, warnings);
    return metadata;
}

QByteArray Metadata::Profile() const
{
    return d->profile;
}

std::optional<int> Metadata::Orientation() const
{
    const auto found = d->exif.findKey(Exiv2::ExifKey("Exif.Image.Orientation"));
    const long orientation = found == d->exif.end() || found->count() == 0 ? 0 : found->toLong();
    return orientation >= 1 && orientation <= 8 ? std::optional<int>(int(orientation)) : std::nullopt;
}

QDateTime Metadata::Captured() const
{
    // "2024:05:31 17:08:09", without a time zone: the clock of the camera.
    const auto found = d->exif.findKey(Exiv2::ExifKey("Exif.Photo.DateTimeOriginal"));
    if (found == d->exif.end()) {
        return {};
    }
    constexpr int length = 19;
    return QDateTime::fromString(QString::fromStdString(found->toString()).left(length),
                                 QStringLiteral("yyyy:MM:dd HH:mm:ss"));
}

void Metadata::KeepOnly(const QStringList& kinds)
{
    const bool keepsExif = kinds.contains(QLatin1String("exif"));
    const bool keepsPositions = kinds.contains(QLatin1String("gps"));
    d->keepsExif = keepsExif;
    RemoveIf(d->exif, [&](const Exiv2::Exifdatum& entry) { return IsPosition(entry) ? !keepsPositions : !keepsExif; });
    if (!kinds.contains(QLatin1String("iptc"))) {
        d->iptc.clear();
    }
    if (!kinds.contains(QLatin1String("xmp"))) {
        d->xmp.clear();
    }
    if (!keepsPositions) {
        RemoveIf(d->xmp, IsPositionInXmp);
    }
}

bool Metadata::GoWithoutExif() const
{
    return !d->keepsExif && d->exif.empty();
}

void Metadata::DescribeResult(const QSize& size, int dotsPerInch, bool isSrgb)
{
    RemoveIf(d->exif, DescribesStorage);
    RemoveIf(d->xmp, [](const Exiv2::Xmpdatum& entry) {
        const std::string key = entry.key();
        return key == "Xmp.tiff.ImageWidth" || key == "Xmp.tiff.ImageLength" || key == "Xmp.exif.PixelXDimension" ||
               key == "Xmp.exif.PixelYDimension" || key == "Xmp.tiff.Orientation" || key == "Xmp.tiff.XResolution" ||
               key == "Xmp.tiff.YResolution" || key == "Xmp.tiff.ResolutionUnit" ||
               key.rfind("Xmp.xmp.Thumbnails", 0) == 0;
    });
    if (d->exif.empty()) {
        return;
    }
    constexpr std::uint16_t inches = 2;
    constexpr std::uint16_t srgb = 1;
    constexpr std::uint16_t otherColours = 0xffff;
    d->exif["Exif.Image.Orientation"] = std::uint16_t(1);
    d->exif["Exif.Image.XResolution"] = Exiv2::URational(std::uint32_t(dotsPerInch), 1);
    d->exif["Exif.Image.YResolution"] = Exiv2::URational(std::uint32_t(dotsPerInch), 1);
    d->exif["Exif.Image.ResolutionUnit"] = inches;
    d->exif["Exif.Photo.PixelXDimension"] = std::uint32_t(size.width());
    d->exif["Exif.Photo.PixelYDimension"] = std::uint32_t(size.height());
    d->exif["Exif.Photo.ColorSpace"] = isSrgb ? srgb : otherColours;
}

void Metadata::MoveIptcToXmp()
{
    Exiv2::XmpData fromIptc;
    Exiv2::copyIptcToXmp(d->iptc, fromIptc);
    for (const Exiv2::Xmpdatum& entry : fromIptc) {
        if (d->xmp.findKey(Exiv2::XmpKey(entry.key())) == d->xmp.end()) {
            d->xmp.add(entry);
        }
    }
    d->iptc.clear();
}

void Metadata::RemoveXmp()
{
    d->xmp.clear();
}

QByteArray Metadata::Exif(int longest) const
{
    if (d->exif.empty()) {
        return {};
    }
    const QByteArray all = Encoded(d->exif);
    if (longest <= 0 || all.size() <= longest) {
        return all;
    }
    Exiv2::ExifData shorter = d->exif;
    RemoveIf(shorter, [](const Exiv2::Exifdatum& entry) {
        const std::string group = entry.groupName();
        const bool isStandard = group == "Image" || group == "Photo" || group == "GPSInfo" || group == "Iop";
        return !isStandard || entry.key() == "Exif.Photo.MakerNote";
    });
    return Encoded(shorter);
}

QByteArray Metadata::Iptc() const
{
    if (d->iptc.empty()) {
        return {};
    }
    const Exiv2::DataBuf encoded = Exiv2::IptcParser::encode(d->iptc);
    return {reinterpret_cast<const char*>(encoded.pData_), int(encoded.size_)};
}

QByteArray Metadata::Xmp(bool withWrapper) const
{
    if (d->xmp.empty()) {
        return {};
    }
    const std::uint16_t form =
        Exiv2::XmpParser::useCompactFormat | (withWrapper ? 0 : Exiv2::XmpParser::omitPacketWrapper);
    std::string packet;
    return Exiv2::XmpParser::encode(packet, d->xmp, form) == 0 ? QByteArray::fromStdString(packet) : QByteArray();
}

void Metadata::WriteInto(const QString& file, bool withProfile, const QByteArray& profile) const
{
    const auto image = Exiv2::ImageFactory::open(QFile::encodeName(file).toStdString());
    image->readMetadata();
    for (const Exiv2::Exifdatum& entry : d->exif) {
        image->exifData()[entry.key()] = entry.value();
    }
    image->setIptcData(d->iptc);
    image->setXmpData(d->xmp);
    if (withProfile) {
        Exiv2::DataBuf bytes(Data(profile), long(profile.size()));
        image->setIccProfile(bytes);
    }
    image->writeMetadata();
}

bool Metadata::IsEmpty() const
{
    return d->exif.empty() && d->iptc.empty() && d->xmp.empty();
}

} // namespace BatchWorker
