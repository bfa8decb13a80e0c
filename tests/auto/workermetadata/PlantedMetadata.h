// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <exiv2/exiv2.hpp>

/// Metadata that tests write into sources, and what of them is found in results.
namespace PlantedMetadata {

struct Blocks
{
    Exiv2::ExifData exif;
    Exiv2::IptcData iptc;
    Exiv2::XmpData xmp;
};

/// Quiets the metadata library of this process. To be called first.
void Start();

/// Adds `blocks` to the picture `file`.
void Write(const QString& file, const Blocks& blocks);

/// An entry of raw bytes.
void AddBytes(Exiv2::ExifData& exif, const char* key, const QByteArray& bytes);

/// Gives an entry of raw bytes in `file` another number: there are some that the metadata library does not write.
void RenameTag(const QString& file, quint16 tag, quint16 newTag);

/// The properties of `packet`, the inside of an rdf:RDF element.
Exiv2::XmpData Xmp(const QByteArray& packet);

/// A whole packet around `inside`.
QByteArray XmpPacket(const QByteArray& inside);

/// `file` as it is, followed by what is in its packed parts: texts of PNG, boxes of JPEG XL.
QByteArray Unpacked(const QByteArray& file);

/// What exiftool finds in `file`, in every group, unknown ones, too. Empty if there is no exiftool.
QByteArray SeenByExiftool(const QString& file);

/// `content` as a chunk of PNG.
QByteArray PngChunk(const QByteArray& type, const QByteArray& content);

} // namespace PlantedMetadata
