// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/formats/FormatSchema.h"

#include <QJsonObject>

namespace BatchWorker {

/// Whether this installation can write `format` with `options`, which are complete, for pictures of more than 8 bits a
/// channel if `isDeep`: the imaging library may lack an encoder, and some versions of encoders fail at some depths. A
/// few pixels are written once to find out.
bool CanWrite(const BatchJob::FormatSchema& format, const QJsonObject& options, bool isDeep);

} // namespace BatchWorker
