// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/formats/FormatSchema.h"
#include "server/worker/pixels/Picture.h"

#include <QJsonObject>
#include <QString>

namespace BatchWorker {

/// Throws PictureFailure, FormatCannotHold, when `picture`, in the colours of the result, cannot be written in `format`
/// with its `options`. The format of the input, `inputFormat`, counts for the one that it proposes instead.
void RequireFormatHolds(const BatchJob::FormatSchema& format, const QJsonObject& options, const Picture& picture,
                        const QString& inputFormat);

} // namespace BatchWorker
