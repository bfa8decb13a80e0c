#pragma once

#include "Picture.h"

#include <QByteArray>
#include <QSize>
#include <QString>

namespace BatchServer {

/// A file that holds a picture. Opening it reads its header only.
///
/// All operations throw PictureFailure, with a case of Input, for a file that is missing, unreadable, damaged, of no
/// known format or larger than the limit. Damage further inside shows as vips::VError when the pixels are read.
class PictureSource
{
public:
    /// Opens `file` and reads its header. A picture of more than `pixelLimit` pixels is refused.
    PictureSource(const QString& file, qint64 pixelLimit);

    /// As FormatOfFile() names it; the bytes of the file decide, not its name.
    QString Format() const { return format; }

    /// The size of the pixels as they are stored, before turning the picture upright.
    QSize StoredSize() const { return storedSize; }

    /// How the stored picture has to be turned to stand upright, 1 to 8.
    int Orientation() const { return orientation; }

    /// The header as the library reads it, for its metadata; reading its pixels is not possible any more.
    const Picture& Header() const { return header; }

    /// How much smaller than stored, 1, 2, 4 or 8 times in each direction, the picture can be loaded at little cost, at
    /// most `shrink` times.
    int PossibleShrink(double shrink) const;

    /// The pixels as they are stored, to be read once from top to bottom, `shrink` times smaller in each direction,
    /// sizes rounded as the format does it. Each call reads the file anew.
    Picture Load(int shrink = 1) const;

private:
    void Identify();

    QString file;
    QString format;
    QSize storedSize;
    int orientation = 1;
    Picture header;
};

} // namespace BatchServer
