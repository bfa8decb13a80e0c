// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"
#include "server/protocol/ServerLimits.h"
#include "server/worker/pixels/Picture.h"

#include "ZTBatchOutputSettings.h"

#include <QSize>

#include <optional>

namespace BatchWorker {

/// The background file of `framing`, upright and scaled to cover a frame of `size`, the middle of it being cut out;
/// sRGB or grey, held in memory. Nothing when the background is no file. Throws PictureFailure, with the file's name,
/// when it cannot be read whole, or is beyond `limits`.
std::optional<Picture> ReadBackgroundFile(const ZTBatchOutputSettings::Transformation& framing, const QSize& size,
                                          const BatchProtocol::ServerLimits& limits, BatchJob::Warnings& warnings);

/// The background of a frame of `size`, its opacity applied: in the kind, depth and profile of `like`, with an alpha
/// channel. `file` is what ReadBackgroundFile() gave.
Picture MakeBackground(const ZTBatchOutputSettings::Transformation& framing, const std::optional<Picture>& file,
                       const QSize& size, const Picture& like, BatchJob::Warnings& warnings);

/// Whether nothing can be seen through the background.
bool IsBackgroundOpaque(const ZTBatchOutputSettings::Transformation& framing, const std::optional<Picture>& file);

} // namespace BatchWorker
