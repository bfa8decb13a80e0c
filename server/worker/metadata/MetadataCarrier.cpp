#include "MetadataCarrier.h"

#include "BoxFile.h"
#include "WebpExif.h"

#include <QFileInfo>
#include <QtEndian>

#include <memory>

using namespace BatchJob;

namespace BatchWorker {

namespace {

// What one segment of a JPEG file holds, less its headers.
constexpr int longestJpegBlock = 65'000;

struct Places
{
    bool exif = false;
    bool iptc = false;
    bool xmp = false;
    bool profile = false;
};

// Where a format has a place, whoever writes it.
Places PlacesIn(const FormatSchema& format)
{
    if (format.name == QLatin1String("GIF")) {
        return {};
    }
    const bool hasIptc = format.name == QLatin1String("JPEG") || format.name == QLatin1String("TIFF") ||
                         format.name == QLatin1String("JPEG 2000");
    return {true, hasIptc, true, true};
}

bool IsJpeg(const FormatSchema& format)
{
    return format.name == QLatin1String("JPEG");
}

bool IsWebp(const FormatSchema& format)
{
    return format.name == QLatin1String("WebP");
}

bool IsTiff(const FormatSchema& format)
{
    return format.name == QLatin1String("TIFF");
}

bool IsJpeg2000(const FormatSchema& format)
{
    return format.name == QLatin1String("JPEG 2000");
}

bool IsJpegXl(const FormatSchema& format)
{
    return format.name == QLatin1String("JPEG XL");
}

// The encoder writes either no block at all, or one of EXIF whatever it is given.
bool IsStripped(const FormatSchema& format, const Metadata& metadata)
{
    return IsJpeg(format) && metadata.GoWithoutExif();
}

Picture WithoutMetadata(const Picture& picture)
{
    Picture bare = picture.copy();
    const std::unique_ptr<gchar*, decltype(&g_strfreev)> fields(vips_image_get_fields(bare.get_image()), g_strfreev);
    for (gchar** field = fields.get(); *field; ++field) {
        if (qstrcmp(*field, VIPS_META_ICC_NAME) != 0) {
            bare.remove(*field);
        }
    }
    bare.set(VIPS_META_ORIENTATION, 1);
    return bare;
}

void SetBlock(const Picture& picture, const char* name, const QByteArray& bytes)
{
    if (!bytes.isEmpty()) {
        vips_image_set_blob_copy(picture.get_image(), name, bytes.constData(), std::size_t(bytes.size()));
    }
}

template<typename Number>
QByteArray BigEndian(Number number)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

// The resource of Photoshop files in which JPEG files carry IPTC records.
QByteArray IptcResource(const QByteArray& records)
{
    if (records.isEmpty()) {
        return {};
    }
    const QByteArray padding(records.size() % 2, '\0');
    return QByteArray("Photoshop 3.0\0", 14) + "8BIM" + BigEndian(quint16(0x0404)) + QByteArray(2, '\0') +
           BigEndian(quint32(records.size())) + records + padding;
}

} // namespace

bool HoldsProfile(const FormatSchema& format)
{
    return PlacesIn(format).profile;
}

Picture WithMetadata(const Picture& picture, const FormatSchema& format, Metadata& metadata, QStringList& warnings)
{
    const Places places = PlacesIn(format);
    if (!places.iptc && places.xmp) {
        metadata.MoveIptcToXmp();
    }
    const Picture carrier = WithoutMetadata(picture);
    const QByteArray exif = metadata.Exif(IsJpeg(format) ? longestJpegBlock : 0);
    const bool isHeif = format.name == QLatin1String("HEIF") || format.name == QLatin1String("AVIF");
    const QByteArray xmp = metadata.Xmp(!isHeif); // readers do not expect the wrapper there
    const QByteArray iptc = metadata.Iptc();
    const bool hasAny = !exif.isEmpty() || !xmp.isEmpty() || !iptc.isEmpty();
    if (hasAny && !places.exif) {
        warnings.append(QStringLiteral("%1 files hold no metadata; they are left out").arg(format.name));
    }
    if (!places.exif || IsJpegXl(format) || IsJpeg2000(format) || IsTiff(format)) {
        return carrier; // what these hold comes before or after encoding
    }
    const auto fits = [&](const QByteArray& block, const char* what) {
        if (!IsJpeg(format) || block.size() <= longestJpegBlock) {
            return true;
        }
        warnings.append(QStringLiteral("%1 metadata of %2 bytes do not fit into a JPEG file and are left out")
                            .arg(QLatin1String(what))
                            .arg(block.size()));
        return false;
    };
    if (!exif.isEmpty() && fits(exif, "EXIF")) {
        SetBlock(carrier, VIPS_META_EXIF_NAME, QByteArray("Exif\0\0", 6) + exif);
    }
    const bool isXmpHeld = fits(xmp, "XMP");
    if (IsStripped(format, metadata)) {
        if (!isXmpHeld) {
            metadata.RemoveXmp();
        }
        return carrier; // the rest comes after encoding
    }
    if (isXmpHeld) {
        SetBlock(carrier, VIPS_META_XMP_NAME, xmp);
    }
    if (places.iptc && fits(iptc, "IPTC")) {
        SetBlock(carrier, VIPS_META_IPTC_NAME, IptcResource(iptc));
    }
    return carrier;
}

QByteArray BytesBefore(const FormatSchema& format, const Metadata& metadata)
{
    if (!IsJpegXl(format)) {
        return {};
    }
    const QByteArray exif = metadata.Exif();
    const QByteArray xmp = metadata.Xmp();
    if (exif.isEmpty() && xmp.isEmpty()) {
        return {};
    }
    // A container of boxes around the bare pixels, which are the last box: its size 0 means that it goes on to the end.
    QByteArray boxes = Box("JXL ", "\r\n\x87\n") + Box("ftyp", QByteArray("jxl \0\0\0\0jxl ", 12));
    if (!exif.isEmpty()) {
        boxes += Box("Exif", QByteArray(4, '\0') + exif);
    }
    if (!xmp.isEmpty()) {
        boxes += Box("xml ", xmp);
    }
    return boxes + BigEndian(quint32(0)) + "jxlc";
}

void CompleteFile(const QString& fileName, const FormatSchema& format, const Metadata& metadata,
                  const QByteArray& profile, QStringList& warnings)
{
    if (IsWebp(format) && metadata.GoWithoutExif() && !RemoveExifFromWebp(fileName)) {
        warnings.append(QStringLiteral("EXIF cannot be taken out of the result"));
    }
    const bool needsProfile = (IsJpeg2000(format) || IsStripped(format, metadata)) && !profile.isEmpty();
    const bool isCompleted = IsTiff(format) || IsJpeg2000(format) || IsStripped(format, metadata);
    const bool needsBlocks = isCompleted && !metadata.IsEmpty();
    if (!needsProfile && !needsBlocks) {
        return;
    }
    constexpr qint64 largestInMemory = qint64(256) << 20;
    if (QFileInfo(fileName).size() > largestInMemory) {
        warnings.append(QStringLiteral("the result is too large for metadata of this format; some are left out"));
        return;
    }
    try {
        metadata.WriteInto(fileName, needsProfile, profile);
    } catch (const std::exception& problem) {
        warnings.append(QStringLiteral("metadata cannot be written: %1").arg(QString::fromUtf8(problem.what())));
    }
}

} // namespace BatchWorker
