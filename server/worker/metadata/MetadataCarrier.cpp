// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MetadataCarrier.h"

#include "job/values/Phrase.h"

#include "BoxFile.h"
#include "PngMetadata.h"
#include "WebpExif.h"

#include <QFileInfo>
#include <QtEndian>

#include <memory>

using namespace BatchJob;

namespace BatchWorker {

namespace {

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

// The Photoshop resource in which JPEG files carry IPTC records.
QByteArray IptcResource(const QByteArray& records)
{
    if (records.isEmpty()) {
        return {};
    }
    const QByteArray padding(records.size() % 2, '\0');
    return QByteArray("Photoshop 3.0\0", 14) + "8BIM" + BigEndian(quint16(0x0404)) + QByteArray(2, '\0') +
           BigEndian(quint32(records.size())) + records + padding;
}

/// Removes EXIF that the encoder has made up or written twice.
void RemoveSurplusExif(const QString& fileName, const MetadataSupport& support, const Metadata& metadata,
                       Warnings& warnings)
{
    const bool hasNone = metadata.GoWithoutExif();
    const bool isCutOut = support.exifRemoval == ExifRemoval::CutOut && hasNone;
    const bool isRemoved = (!isCutOut || RemoveExifFromWebp(fileName)) &&
                           (!support.isExifRepeated || LimitExifOfPng(fileName, hasNone ? 0 : 1));
    if (!isRemoved) {
        warnings.append({WarningKind::MetadataLost, hasNone
                                                        ? Phrase::English("EXIF cannot be removed from the result")
                                                        : Phrase::English("the result may have its EXIF block twice")});
    }
}

} // namespace

Picture WithMetadata(const Picture& picture, const FormatSchema& format, Metadata& metadata, Warnings& warnings)
{
    const MetadataSupport& support = format.metadata;
    if (!support.holdsIptc && support.holdsXmp) {
        metadata.MoveIptcToXmp();
    }
    const Picture carrier = WithoutMetadata(picture);
    if (support.writing == MetadataWriting::None) {
        if (!metadata.IsEmpty()) {
            warnings.append({WarningKind::MetadataLost,
                             Phrase::English("%1 files cannot hold metadata; it is left out").arg(format.name)});
        }
        return carrier;
    }
    metadata.RemoveUnwritable(warnings);
    if (support.writing != MetadataWriting::ByEncoder) {
        return carrier;
    }
    const QByteArray exif = metadata.Exif(support.longestBlock);
    const QByteArray xmp = metadata.Xmp(support.hasXmpWrapper);
    const QByteArray iptc = metadata.Iptc();
    const auto fits = [&](const QByteArray& block, const char* what) {
        if (support.longestBlock == 0 || block.size() <= support.longestBlock) {
            return true;
        }
        warnings.append({WarningKind::MetadataLost,
                         Phrase::English("%1 metadata of %2 bytes does not fit into a %3 file and is left out")
                             .arg(QLatin1String(what))
                             .arg(block.size())
                             .arg(format.name)});
        return false;
    };
    if (!exif.isEmpty() && fits(exif, "EXIF")) {
        SetBlock(carrier, VIPS_META_EXIF_NAME, QByteArray("Exif\0\0", 6) + exif);
    }
    if (fits(xmp, "XMP")) {
        SetBlock(carrier, VIPS_META_XMP_NAME, xmp);
    }
    if (support.holdsIptc && fits(iptc, "IPTC")) {
        SetBlock(carrier, VIPS_META_IPTC_NAME, IptcResource(iptc));
    }
    return carrier;
}

QByteArray BytesBefore(const FormatSchema& format, const Metadata& metadata)
{
    if (format.metadata.writing != MetadataWriting::BeforePixels) {
        return {};
    }
    const QByteArray exif = metadata.Exif();
    const QByteArray xmp = metadata.Xmp();
    if (exif.isEmpty() && xmp.isEmpty()) {
        return {};
    }
    // The boxes of a JPEG XL container. The pixels are the last box, whose size 0 means that it ends with the file.
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
                  const QByteArray& profile, Warnings& warnings)
{
    const MetadataSupport& support = format.metadata;
    RemoveSurplusExif(fileName, support, metadata, warnings);
    const bool needsProfile = !support.isProfileInDecoder && !profile.isEmpty();
    const bool needsBlocks = support.writing == MetadataWriting::AfterEncoding && !metadata.IsEmpty();
    if (!needsProfile && !needsBlocks) {
        return;
    }
    constexpr qint64 largestInMemory = qint64(256) << 20;
    if (QFileInfo(fileName).size() > largestInMemory) {
        warnings.append(
            {WarningKind::MetadataLost,
             Phrase::English("the result is too large for all of its metadata to be added; some is left out")});
        return;
    }
    try {
        metadata.WriteInto(fileName, needsProfile, profile);
    } catch (const std::exception& problem) {
        warnings.append({WarningKind::MetadataLost,
                         Phrase::English("metadata cannot be written: %1").arg(QString::fromUtf8(problem.what()))});
    }
}

} // namespace BatchWorker
