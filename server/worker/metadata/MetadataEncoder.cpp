// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MetadataEncoder.h"

#include "job/values/Phrase.h"

#include "RemoveEntries.h"
#include "SourceTraces.h"

#include <exception>

using namespace BatchJob;

namespace BatchWorker {

namespace {

// The library also throws what the standard library throws, such as for arrays that are out of range.
template<typename Data>
bool IsWritable(const Data& data)
{
    try {
        return data.empty() || !Encoded(data).isEmpty();
    } catch (const std::exception&) {
        return false;
    }
}

void Warn(Warnings& warnings, const char* what)
{
    warnings.append(
        {WarningKind::MetadataLost, Phrase::English("%1 cannot be written and are left out").arg(QLatin1String(what))});
}

template<typename Data>
void ClearUnwritable(Data& data, const char* name, Warnings& warnings)
{
    if (!IsWritable(data)) {
        data.clear();
        Warn(warnings, name);
    }
}

} // namespace

QByteArray Encoded(const Exiv2::ExifData& exif)
{
    if (exif.empty()) {
        return {};
    }
    Exiv2::Blob blob;
    Exiv2::ExifParser::encode(blob, Exiv2::littleEndian, exif);
    return {reinterpret_cast<const char*>(blob.data()), int(blob.size())};
}

QByteArray Encoded(const Exiv2::IptcData& iptc)
{
    if (iptc.empty()) {
        return {};
    }
    const Exiv2::DataBuf encoded = Exiv2::IptcParser::encode(iptc);
    return {reinterpret_cast<const char*>(encoded.pData_), int(encoded.size_)};
}

QByteArray Encoded(const Exiv2::XmpData& xmp, bool withWrapper)
{
    if (xmp.empty()) {
        return {};
    }
    const std::uint16_t form =
        Exiv2::XmpParser::useCompactFormat | (withWrapper ? 0 : Exiv2::XmpParser::omitPacketWrapper);
    std::string packet;
    return Exiv2::XmpParser::encode(packet, xmp, form) == 0 ? QByteArray::fromStdString(packet) : QByteArray();
}

void RemoveUnwritable(MetadataBlocks& blocks, Warnings& warnings)
{
    if (!IsWritable(blocks.exif)) {
        Exiv2::ExifData withoutNotes = blocks.exif;
        RemoveIf(withoutNotes, IsMakerNote);
        if (IsWritable(withoutNotes)) {
            blocks.exif = withoutNotes;
            Warn(warnings, Phrase::Marked("the notes of the camera's maker"));
        }
    }
    ClearUnwritable(blocks.exif, Phrase::Marked("EXIF metadata"), warnings);
    ClearUnwritable(blocks.iptc, Phrase::Marked("IPTC metadata"), warnings);
    ClearUnwritable(blocks.xmp, Phrase::Marked("XMP metadata"), warnings);
}

} // namespace BatchWorker
