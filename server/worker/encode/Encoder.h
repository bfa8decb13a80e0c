// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/formats/FormatSchema.h"
#include "server/worker/pixels/Picture.h"

#include <QByteArray>
#include <QJsonObject>

namespace BatchWorker {

/// The bits a channel, 8 or 16, of the pixels that the encoder of `format` is given. `options` are complete; the
/// picture has more than 8 bits a channel if `isDeep`.
int ResultDepth(const BatchJob::FormatSchema& format, const QJsonObject& options, bool isDeep);

/// Brings `picture`, of the form that stages hand on or of CMYK, into one that `format` holds: depth and background by
/// `options`, which are complete.
Picture ReadyFor(const BatchJob::FormatSchema& format, const QJsonObject& options, const Picture& picture);

/// Writes `before`, then `picture`, which is ready for `format`, to the open and empty file `descriptor`. Throws
/// PictureFailure of the case Output when the file cannot take it, and vips::VError for anything else, such as a source
/// that proves damaged.
void Encode(const Picture& picture, const BatchJob::FormatSchema& format, const QJsonObject& options,
            const QByteArray& before, int descriptor);

} // namespace BatchWorker
