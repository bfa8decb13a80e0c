// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EncoderOptions.h"
#include "FormatEncoder.h"

#include <QtEndian>

#include <zlib.h>

namespace BatchWorker {

namespace {

void SetArguments(vips::VOption* arguments, const QJsonObject& options, const Picture&)
{
    arguments->set("compression", IntegerOption(options, "compressionLevel"))
        ->set("interlace", TruthOption(options, "progressive"));
}

template<typename Number>
QByteArray BigEndian(Number number)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

QByteArray Chunk(const QByteArray& type, const QByteArray& content)
{
    const QByteArray checked = type + content;
    const auto checksum = quint32(crc32(0, reinterpret_cast<const Bytef*>(checked.constData()), uInt(checked.size())));
    return BigEndian(quint32(content.size())) + checked + BigEndian(checksum);
}

// The library behind the encoder drops profiles that it finds slightly out of form. Source of the layout: W3C, Portable
// Network Graphics (3rd edition), chapters 5 and 11.
AddedBytes ProfileBytes(const QByteArray& profile)
{
    constexpr int header = 8 + 25; // the signature and the first chunk
    constexpr int lengthOfQt = 4;  // what qCompress() adds
    return {Chunk("iCCP", QByteArray("ICC profile\0\0", 13) + qCompress(profile).mid(lengthOfQt)), header};
}

} // namespace

FormatEncoder PngEncoder()
{
    return {"pngsave_target", SetArguments, nullptr, ProfileBytes};
}

} // namespace BatchWorker
