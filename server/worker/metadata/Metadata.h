#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QSize>
#include <QString>
#include <QStringList>

#include <memory>

namespace BatchWorker {

class PictureSource;

/// What a picture says about itself: EXIF with GPS, IPTC, XMP. The colour profile is a matter of
/// the decoder, with one exception.
class Metadata
{
public:
    /// None.
    Metadata();
    ~Metadata();
    Metadata(Metadata&& other) noexcept;
    Metadata& operator=(Metadata&& other) noexcept;

    /// Those of `file`, whose header `source` has read. What cannot be read is left out, with a warning.
    static Metadata Of(const QString& file, const PictureSource& source, QStringList& warnings);

    /// The ICC profile of a JPEG 2000 file, which the decoder of that format does not hand over; empty for all others.
    QByteArray Profile() const;

    /// The EXIF original time, by the camera's clock; invalid when there is none.
    QDateTime Captured() const;

    /// Removes what is not among `kinds`: "exif", "gps", "iptc", "xmp". Without "gps" the places that XMP repeats go
    /// too.
    void KeepOnly(const QStringList& kinds);

    /// Whether EXIF was not to be kept and there is none, not even places: then the result has no such block.
    bool GoWithoutExif() const;

    /// Brings what describes the pixels in line with the result: upright, `size` pixels, `dotsPerInch`. Takes out the
    /// preview of the source, and whatever described how its pixels were stored.
    void DescribeResult(const QSize& size, int dotsPerInch, bool isSrgb);

    /// Takes the captions and keywords of IPTC over into XMP, for formats that have no place for IPTC.
    void MoveIptcToXmp();

    void RemoveXmp();

    /// A whole EXIF block, beginning with its TIFF header; empty when there is nothing to say. With `longest` above 0
    /// the notes that only the camera's maker understands are left out of a longer block.
    QByteArray Exif(int longest = 0) const;

    /// The records of IPTC; empty when there are none.
    QByteArray Iptc() const;

    /// An XMP packet; empty when there is nothing to say. Without its wrapper it is shorter, and can no longer be
    /// changed in place.
    QByteArray Xmp(bool withWrapper = true) const;

    /// Writes them into the finished file `file`, for formats that the encoder writes without. Reads the whole file
    /// into memory. Throws std::exception.
    void WriteInto(const QString& file, bool withProfile, const QByteArray& profile) const;

    bool IsEmpty() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace BatchWorker
