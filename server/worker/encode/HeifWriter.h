// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

#include <QByteArray>
#include <QJsonObject>
#include <QPair>
#include <QVector>

#include <libheif/heif.h>

namespace BatchWorker {

/// The bytes that an encoder holds of a pixel of 8 bits at its peak.
struct EncoderMemory
{
    double fineColours = 0; ///< with as many pixels as brightness
    double coarseColours = 0;
    double lossless = 0; ///< in addition
    double alpha = 0;    ///< in addition
};

/// How a picture is coded into the file format that HEIF and AVIF share.
struct HeifSettings
{
    const char* formatName = ""; ///< for users
    heif_compression_format compression = heif_compression_undefined;
    int quality = 0; ///< 1 to 100
    bool isLossless = false;
    bool keepsFineColour = false; ///< colours have as many pixels as brightness
    int bits = 8;                 ///< of a channel in the file, 8 to 12

    /// Names and values of the encoder's own parameters. A name that it does not know is left out: libheif may have
    /// been built with another encoder.
    QVector<QPair<QByteArray, QByteArray>> parameters;

    EncoderMemory memory;
};

/// What `options` and the depth of `picture` say; the rest is for the caller to set.
HeifSettings HeifSettingsOf(const QJsonObject& options, const Picture& picture);

/// Writes `picture`, RGB with or without alpha, its profile and its blocks of EXIF and XMP to `target`. Throws
/// PictureFailure when the encoder needs more memory than there is, because encoders end the process then, and
/// vips::VError.
void WriteHeif(const Picture& picture, const HeifSettings& settings, const vips::VTarget& target);

} // namespace BatchWorker
