// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/tokens/TokenValues.h"
#include "job/values/Warning.h"

#include <QByteArray>
#include <QDateTime>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

namespace BatchWorker {

class PictureSource;
struct MetadataTexts;

/// The metadata of a picture: EXIF with GPS, IPTC, XMP. The colour profile comes from the decoder, with one exception,
/// see Profile().
class Metadata
{
public:
    /// No metadata.
    Metadata();
    ~Metadata();
    Metadata(Metadata&& other) noexcept;
    Metadata& operator=(Metadata&& other) noexcept;

    /// The metadata of `file`, whose header `source` has read. What cannot be read is left out, with a warning.
    static Metadata Of(const QString& file, const PictureSource& source, BatchJob::Warnings& warnings);

    /// The ICC profile of a file whose decoder does not hand it over (MetadataSupport::isProfileInDecoder); else empty.
    QByteArray Profile() const;

    /// The EXIF orientation, 1 to 8. Nothing if the file does not give one.
    std::optional<int> Orientation() const;

    /// When the picture was taken, by the camera's clock as far as the file says; invalid if it does not.
    QDateTime Captured() const;

    /// What the metadata say for tokens.
    BatchJob::PictureTexts Texts() const;

    /// Removes what is not among `kinds`: "exif", "gps", "iptc", "xmp", and "copyright", which is a part of the others,
    /// see Copyright.h. Without "gps" all places are removed from the others, too, see Places.h. Warns of a copyright
    /// notice that is lost, unless nothing at all is to be kept.
    void KeepOnly(const QStringList& kinds, BatchJob::Warnings& warnings);

    /// Writes `texts` over what is there, in all three; see SetTexts().
    void Set(const MetadataTexts& texts);

    /// Whether the result must have no EXIF block: EXIF is not kept, and neither GPS positions nor a
    /// copyright are left in it.
    bool GoWithoutExif() const;

    /// Makes the entries that describe the pixels fit the result: upright, `size` pixels, `dotsPerInch`. Removes the
    /// previews of the source and the entries that describe how it is stored, see SourceTraces.h.
    void DescribeResult(const QSize& size, int dotsPerInch, bool isSrgb);

    /// Moves the captions and keywords of IPTC to XMP, for formats that cannot hold IPTC.
    void MoveIptcToXmp();

    /// Removes what the metadata library has read but cannot write, with a warning. Warns also if it failed while the
    /// metadata were changed, after which there are none.
    void RemoveUnwritable(BatchJob::Warnings& warnings);

    /// A whole EXIF block, beginning with its TIFF header; empty if there is no EXIF. A block of more than `longest`
    /// bytes is written without the maker's notes; 0 means no limit.
    QByteArray Exif(int longest = 0) const;

    /// The records of IPTC; empty when there are none.
    QByteArray Iptc() const;

    /// An XMP packet; empty if there is no XMP. Without its wrapper it is shorter and can no longer be changed in
    /// place.
    QByteArray Xmp(bool withWrapper = true) const;

    /// Writes the metadata into the finished file `file`, for formats whose encoder does not write it. Reads the whole
    /// file into memory. Throws std::exception.
    void WriteInto(const QString& file, bool withProfile, const QByteArray& profile) const;

    bool IsEmpty() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

/// When the picture in `file` was taken, or when the file was changed if its metadata do not say that.
QDateTime CapturedOrChanged(const Metadata& metadata, const QString& file);

/// Gives `source` the orientation that `metadata` state, where its decoder does not see it.
void OrientBy(const Metadata& metadata, PictureSource& source);

} // namespace BatchWorker
