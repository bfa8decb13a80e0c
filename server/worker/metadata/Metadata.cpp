#include "Metadata.h"

#include "CaptureTime.h"
#include "MetadataReader.h"
#include "Places.h"
#include "RemoveEntries.h"
#include "SourceTraces.h"

#include <QFile>

#include <exiv2/exiv2.hpp>

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
        Exiv2::enableBMFF(); // for camera RAW that is built of boxes
        return Exiv2::XmpParser::initialize();
    }();
    Q_UNUSED(isStarted)
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

template<typename Encode>
bool IsWritable(const Encode& encode)
{
    try {
        encode();
        return true;
    } catch (const Exiv2::AnyError&) {
        return false;
    }
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
    return CaptureTime(*d);
}

void Metadata::KeepOnly(const QStringList& kinds)
{
    const bool keepsExif = kinds.contains(QLatin1String("exif"));
    const bool keepsPlaces = kinds.contains(QLatin1String("gps"));
    d->keepsExif = keepsExif;
    if (!keepsExif) {
        RemoveIf(d->exif, [](const Exiv2::Exifdatum& entry) { return !IsPosition(entry); });
    }
    if (!kinds.contains(QLatin1String("iptc"))) {
        d->iptc.clear();
    }
    if (!kinds.contains(QLatin1String("xmp"))) {
        d->xmp.clear();
    }
    if (!keepsPlaces) {
        RemovePlaces(d->exif);
        RemovePlaces(d->iptc);
        RemovePlaces(d->xmp);
    }
}

bool Metadata::GoWithoutExif() const
{
    return !d->keepsExif && d->exif.empty();
}

void Metadata::DescribeResult(const QSize& size, int dotsPerInch, bool isSrgb)
{
    RemoveSourceTraces(d->exif);
    RemoveSourceTraces(d->iptc);
    RemoveSourceTraces(d->xmp);
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

void Metadata::RemoveUnwritable(BatchJob::Warnings& warnings)
{
    const auto warn = [&warnings](const char* what) {
        warnings.append({BatchJob::WarningKind::MetadataLost,
                         QStringLiteral("%1 cannot be written and are left out").arg(QLatin1String(what))});
    };
    const auto encodeExif = [this] { Encoded(d->exif); };
    if (!IsWritable(encodeExif)) {
        RemoveIf(d->exif, IsMakerNote);
        const bool isRestWritable = IsWritable(encodeExif);
        if (!isRestWritable) {
            d->exif.clear();
        }
        warn(isRestWritable ? "the notes of the camera's maker" : "EXIF metadata");
    }
    if (!IsWritable([this] { Iptc(); })) {
        d->iptc.clear();
        warn("IPTC metadata");
    }
    if (!IsWritable([this] { Xmp(); }) || (!d->xmp.empty() && Xmp().isEmpty())) {
        d->xmp.clear();
        warn("XMP metadata");
    }
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
    RemoveIf(shorter, IsMakerNote);
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
