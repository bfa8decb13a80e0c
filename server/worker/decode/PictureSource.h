// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FileColours.h"

#include "job/formats/FormatSchema.h"
#include "job/formats/NearestFormat.h"
#include "job/values/Warning.h"
#include "server/protocol/ServerLimits.h"
#include "server/worker/pixels/EmbeddedProfile.h"
#include "server/worker/pixels/Picture.h"
#include "server/worker/pixels/PictureFailure.h"

#include <QByteArray>
#include <QDateTime>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>

namespace BatchWorker {

class KeptPixels;
class RawFile;

/// A file that holds a picture. Opening it reads its header only.
///
/// All operations throw PictureFailure for a file that is missing, unreadable, damaged, of no known format or larger
/// than the limit. Damage of the pixels throws vips::VError when they are read.
class PictureSource
{
public:
    /// Opens `file` and reads its header. A picture of more pixels than `limits` allow is refused.
    /// Pixels that are slow to decode come from `kept` and go there, if it is not null; it must outlive this object.
    PictureSource(const QString& file, const BatchProtocol::ServerLimits& limits, KeptPixels* kept = nullptr);
    ~PictureSource();

    /// The bytes of the file decide, not its name.
    const BatchJob::FormatSchema& Format() const { return *format; }

    /// The size of the pixels as they are stored, before turning the picture upright.
    QSize StoredSize() const { return storedSize; }

    /// The EXIF orientation, 1 to 8: how the stored picture has to be turned to be upright.
    int Orientation() const { return orientation; }

    /// For an orientation that the decoder does not see.
    void SetOrientation(int known) { orientation = known; }

    /// When the picture was taken, as the decoder of camera RAW says; invalid for others.
    QDateTime Captured() const;

    /// Whether a channel has more than 8 bits.
    bool IsDeep() const;

    bool HasAlpha() const;

    /// How many pages or frames the file has, as far as the decoder says. Load() gives the one that FormatPages says.
    int Pages() const;

    /// The header as the imaging library reads it, with its metadata; empty for camera RAW.
    const Picture& Header() const { return header; }

    /// The ICC profile that the file carries or describes; empty if neither, or if only the metadata library finds it.
    QByteArray Profile() const { return colours.profile.isEmpty() ? ProfileOf(header) : colours.profile; }

    /// How many times smaller than stored, in each direction, the decoder can load the picture at less cost without
    /// visible difference in a result that is `reduction` times smaller: 1, 2, 4 or 8.
    int PossibleShrink(double reduction) const;

    /// What decoders say of the file. Complete when the pixels have been read.
    const BatchJob::Warnings& DecoderWarnings() const { return warnings; }

    /// The pixels as they are stored, to be read once from top to bottom, `shrink` times smaller in each direction,
    /// sizes rounded as the decoder rounds them, with the profile that the file gives them; HDR is mapped to common
    /// screens. Each call reads the file again.
    Picture Load(int shrink = 1);

    /// What `libraryText` says of the file, in words, as a failure. `percent` of the pixels could be read; nothing when
    /// the header could not.
    PictureFailure Damage(const QString& libraryText, std::optional<int> percent) const;

private:
    Q_DISABLE_COPY(PictureSource)

    Picture Decoded(int shrink);
    void OpenRaw();
    void OpenWithLoader();

    QString file;
    BatchProtocol::ServerLimits limits;
    KeptPixels* kept;
    const BatchJob::FormatSchema* format = nullptr;
    QSize storedSize;
    int orientation = 1;
    FileColours colours;
    BatchJob::Warnings warnings;
    Picture header;
    bool isHeaderRead = false; ///< its pixels are read already
    std::unique_ptr<RawFile> raw;
};

/// What the picture as it is stored asks of the format that it is written in.
BatchJob::FormatNeeds NeedsOf(const PictureSource& source);

} // namespace BatchWorker
