// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

#include <QDateTime>
#include <QSize>
#include <QString>

#include <memory>

class LibRaw;

namespace BatchWorker {

class RawStream;

/// A camera RAW file: the sensor data, developed with the white balance that the camera recorded, into sRGB of 16 bits
/// a channel. Brightness is that of the exposure, so that pictures of a series match.
class RawFile
{
public:
    /// Opens `file` and reads its header. Develop() fails when the decoder would need more than `memoryLimit` bytes.
    RawFile(const QString& file, qint64 memoryLimit);
    ~RawFile();

    /// Whether this is a file of a camera that the decoder knows. Only then the other functions may be called.
    bool IsKnown() const { return isKnown; }

    /// The size of the whole picture, before turning it upright.
    QSize Size() const;

    /// EXIF orientation, 1 to 8.
    int Orientation() const;

    /// By the camera's clock; invalid if the file does not say it.
    QDateTime Captured() const;

    /// Develops the picture. With `isHalf` four sensor elements make one pixel, which takes a quarter of time and
    /// memory. To be called once. Throws PictureFailure when the file is damaged.
    Picture Develop(bool isHalf);

private:
    Q_DISABLE_COPY(RawFile)

    void Check(int result) const;
    void RequireData() const;

    QString file;
    std::unique_ptr<RawStream> stream; ///< outlives the decoder that reads it
    std::unique_ptr<LibRaw> raw;
    bool isKnown = false;
    bool isDamaged = false;
};

} // namespace BatchWorker
