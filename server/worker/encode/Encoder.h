#pragma once

#include "job/formats/FormatCatalog.h"
#include "server/worker/pixels/Picture.h"

#include <QByteArray>
#include <QJsonObject>

namespace BatchWorker {

/// Whether this installation can write `format` with `options`, which are complete, for pictures of more than 8 bits a
/// channel if `isDeep`: the imaging library may lack an encoder, and some versions of encoders fail at some depths.
bool CanWrite(const BatchJob::FormatSchema& format, const QJsonObject& options, bool isDeep);

/// Brings `picture`, of the form that stages hand on or of CMYK, into one that `format` holds: depth and background by
/// `options`, which are complete.
Picture ReadyFor(const BatchJob::FormatSchema& format, const QJsonObject& options, const Picture& picture);

/// Writes `before`, then `picture`, which is ready for `format`, to the open and empty file `descriptor`. A JPEG file
/// that goes `withoutExif` gets no metadata at all, not even the profile; so does a HEIF or AVIF file for which
/// `picture` has none. Else their encoders make EXIF up where there is none. Throws PictureFailure of the case Output
/// when the file cannot take it, and vips::VError for anything else, such as a source that proves damaged.
void Encode(const Picture& picture, const BatchJob::FormatSchema& format, const QJsonObject& options,
            const QByteArray& before, bool withoutExif, int descriptor);

} // namespace BatchWorker
