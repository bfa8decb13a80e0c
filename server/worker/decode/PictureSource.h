#pragma once

#include "server/protocol/ServerLimits.h"
#include "server/worker/pixels/Picture.h"

#include <QByteArray>
#include <QSize>
#include <QString>

#include <memory>

namespace BatchWorker {

class RawFile;

/// A file that holds a picture. Opening it reads its header only.
///
/// All operations throw PictureFailure, for a file that is missing, unreadable, damaged, of no
/// known format or larger than the limit. Damage further inside shows as vips::VError when the pixels are read.
class PictureSource
{
public:
    /// Opens `file` and reads its header. A picture of more pixels than `limits` allow is refused.
    PictureSource(const QString& file, const BatchProtocol::ServerLimits& limits);
    ~PictureSource();

    /// As FormatOfFile() names it; the bytes of the file decide, not its name.
    QString Format() const { return format; }

    /// The size of the pixels as they are stored, before turning the picture upright.
    QSize StoredSize() const { return storedSize; }

    /// How the stored picture has to be turned to stand upright, 1 to 8.
    int Orientation() const { return orientation; }

    /// Whether a channel has more than 8 bits.
    bool IsDeep() const;

    bool HasAlpha() const;

    /// How many pages the file has, or frames of an animation; Load() gives the first, of HEIF and AVIF the main one.
    /// 1 for camera RAW, and for the formats whose decoders know of no others.
    int Pages() const;

    /// The header as the library reads it, for its metadata; without any for camera RAW.
    const Picture& Header() const { return header; }

    /// How many times smaller than stored, in each direction, the decoder can load the picture at less cost, without
    /// anybody seeing that in a result which is `reduction` times smaller: 1, 2, 4 or 8.
    int PossibleShrink(double reduction) const;

    /// The pixels as they are stored, to be read once from top to bottom, `shrink` times smaller in each direction,
    /// sizes rounded as the decoder rounds them. Each call reads the file again.
    Picture Load(int shrink = 1);

private:
    Q_DISABLE_COPY(PictureSource)

    void Identify();
    void OpenRaw();
    void OpenOther();

    QString file;
    BatchProtocol::ServerLimits limits;
    QString format;
    QSize storedSize;
    int orientation = 1;
    Picture header;
    bool isHeaderRead = false; ///< its pixels have been taken
    std::unique_ptr<RawFile> raw;
};

} // namespace BatchWorker
