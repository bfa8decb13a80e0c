// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MetadataReader.h"

#include "job/values/Phrase.h"

#include "BoxFile.h"
#include "ItemBoxes.h"
#include "JxlBoxes.h"
#include "MetadataFile.h"
#include "PngMetadata.h"

#include "server/worker/decode/PictureSource.h"
#include "server/worker/pixels/EmbeddedBlock.h"
#include "server/worker/pixels/FileCalls.h"

#include <QFile>
#include <QSet>

#include <exception>
#include <memory>

using namespace BatchJob;

namespace BatchWorker {

namespace {

const Exiv2::byte* Data(const QByteArray& bytes)
{
    return reinterpret_cast<const Exiv2::byte*>(bytes.constData());
}

// The imaging library does not recognise XMP with a packet wrapper in HEIF files and hands it over under another name.
QByteArray XmpBlock(const Picture& header)
{
    const QByteArray known = BlockOf(header, VIPS_META_XMP_NAME);
    if (!known.isEmpty()) {
        return known;
    }
    const std::unique_ptr<gchar*, decltype(&g_strfreev)> fields(vips_image_get_fields(header.get_image()), g_strfreev);
    for (gchar** field = fields.get(); *field; ++field) {
        if (QByteArray(*field).startsWith("heif-mime")) {
            const QByteArray block = BlockOf(header, *field);
            if (block.startsWith("<?xpacket")) {
                return block;
            }
        }
    }
    return {};
}

MetadataBlocks BlocksOf(Exiv2::Image& image)
{
    image.readMetadata();
    MetadataBlocks blocks;
    blocks.exif = image.exifData();
    blocks.iptc = image.iptcData();
    blocks.xmp = image.xmpData();
    return blocks;
}

MetadataBlocks BlocksOfFile(const QString& file)
{
    MetadataFile opened(file, MetadataFile::Use::Reading);
    return BlocksOf(opened.Image());
}

enum class Header { Kept, LeftOut };

// The boxes of a JPEG 2000 file without the pixels, of boxes with an id the first of each. The library would read every
// one, and cannot write makers' notes that came twice. The header holds the profile.
QByteArray BoxesOf(const QString& path, Header header)
{
    constexpr qint64 largest = qint64(64) << 20; // far more than metadata are
    constexpr qint64 idSize = 16;
    constexpr int sizeBehindHeader = 16; // the library refuses a header that has less behind it
    QFile file;
    OpenFile(file, path, QIODevice::ReadOnly);
    QByteArray kept;
    QSet<QByteArray> ids;
    while (const std::optional<BoxHeader> box = NextBox(file)) {
        const qint64 end = file.pos() + box->size;
        const QByteArray id = box->type == "uuid" ? file.peek(qMin(idSize, box->size)) : QByteArray();
        const bool isNew = id.isEmpty() || !ids.contains(id);
        const bool isUnwanted = box->type == "jp2h" && header == Header::LeftOut;
        if (box->type == "jp2c") {
            kept += Box(box->type, QByteArray(sizeBehindHeader, '\0'));
        } else if (isNew && !isUnwanted && kept.size() + box->size <= largest) {
            ids.insert(id);
            kept += Box(box->type, file.read(box->size));
        }
        if (!file.seek(end)) {
            break;
        }
    }
    return kept;
}

// Not the file itself: the library would read every block of a kind, and the pixels.
MetadataBlocks BlocksOfChunks(const QString& file)
{
    const QByteArray chunks = PngWithoutPixels(file);
    const auto image = Exiv2::ImageFactory::open(Data(chunks), long(chunks.size()));
    return BlocksOf(*image);
}

MetadataBlocks BlocksOfBoxes(const QByteArray& boxes)
{
    if (boxes.isEmpty()) {
        return {}; // a codestream alone, which has no place for metadata
    }
    const auto image = Exiv2::ImageFactory::open(Data(boxes), long(boxes.size()));
    MetadataBlocks blocks = BlocksOf(*image);
    if (image->iccProfileDefined()) {
        const Exiv2::DataBuf& profile = *image->iccProfile();
        blocks.profile = QByteArray(reinterpret_cast<const char*>(profile.pData_), int(profile.size_));
    }
    return blocks;
}

// The library refuses a whole file over a damaged profile. The warning about it comes from where colours are read.
MetadataBlocks BlocksOfJpeg2000(const QString& file)
{
    try {
        return BlocksOfBoxes(BoxesOf(file, Header::Kept));
    } catch (const Exiv2::AnyError&) {
        return BlocksOfBoxes(BoxesOf(file, Header::LeftOut));
    }
}

// The decoder hands over a block of Photoshop resources, one of which holds the records of IPTC.
void ReadIptc(QByteArray block, Exiv2::IptcData& iptc)
{
    const QByteArray start("Photoshop 3.0\0", 14);
    block = block.startsWith(start) ? block.mid(start.size()) : block;
    const Exiv2::byte* record = nullptr;
    std::uint32_t headerSize = 0;
    std::uint32_t dataSize = 0;
    const long size = block.size();
    if (size > 0 && Exiv2::Photoshop::locateIptcIrb(Data(block), size, &record, &headerSize, &dataSize) == 0) {
        Exiv2::IptcParser::decode(iptc, record + headerSize, dataSize);
    }
}

MetadataBlocks BlocksOfDecoder(const QString& file, const PictureSource& source)
{
    const bool isInBoxes = source.Format().metadata.reading == MetadataReading::FromBoxes;
    const JxlMetadata boxes = isInBoxes ? ReadJxlMetadata(file) : JxlMetadata();
    MetadataBlocks blocks;
    QByteArray exif = isInBoxes ? boxes.exif : BlockOf(source.Header(), VIPS_META_EXIF_NAME);
    const QByteArray start("Exif\0\0", 6);
    exif = exif.startsWith(start) ? exif.mid(start.size()) : exif;
    if (!exif.isEmpty()) {
        Exiv2::ExifParser::decode(blocks.exif, Data(exif), std::uint32_t(exif.size()));
    }
    const QByteArray xmp = isInBoxes ? boxes.xmp : XmpBlock(source.Header());
    if (!xmp.isEmpty()) {
        Exiv2::XmpParser::decode(blocks.xmp, xmp.toStdString());
    }
    ReadIptc(BlockOf(source.Header(), VIPS_META_IPTC_NAME), blocks.iptc);
    return blocks;
}

bool HasTruncatedProfile(const PictureSource& source)
{
    const int shortest = source.Format().metadata.shortestProfile;
    const int size = shortest > 0 ? BlockOf(source.Header(), VIPS_META_ICC_NAME).size() : 0;
    return size > 0 && size < shortest;
}

MetadataBlocks BlocksOfAnyFile(const QString& file, const PictureSource& source)
{
    const MetadataReading reading = source.Format().metadata.reading;
    if (reading == MetadataReading::FromChunks) {
        return BlocksOfChunks(file);
    }
    if (reading == MetadataReading::FromIdentifiedBoxes) {
        return BlocksOfJpeg2000(file);
    }
    if (reading != MetadataReading::FromFile || HasTruncatedProfile(source)) {
        return BlocksOfDecoder(file, source);
    }
    try {
        return BlocksOfFile(file);
    } catch (const Exiv2::AnyError& problem) {
        if (problem.code() != Exiv2::kerInvalidIccProfile) {
            throw;
        }
        // The library refuses a whole file over a damaged profile, see BlocksOfJpeg2000().
        return BlocksOfDecoder(file, source);
    }
}

MetadataBlocks BlocksOrWarning(const QString& file, const PictureSource& source, Warnings& warnings)
{
    try {
        return BlocksOfAnyFile(file, source);
    } catch (const std::exception& problem) { // also those of the standard library, which metadata out of range cause
        warnings.append(
            {WarningKind::MetadataLost,
             Phrase::English("metadata cannot be read and is left out: %1").arg(QString::fromUtf8(problem.what()))});
        return {};
    }
}

} // namespace

MetadataBlocks ReadMetadata(const QString& file, const PictureSource& source, Warnings& warnings)
{
    MetadataBlocks blocks = BlocksOrWarning(file, source, warnings);
    const QDateTime inBoxes = ReadItemBoxes(file).created;
    blocks.created = inBoxes.isValid() ? inBoxes : source.Captured();
    return blocks;
}

} // namespace BatchWorker
