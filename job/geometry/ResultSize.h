// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/settings/JobCheck.h"

#include <QSize>

#include <optional>

/// The sizes of results, in whole pixels. No pixels are touched here.
namespace BatchJob {

/// The size of the frame around a picture of `size`, by `framing`, whose state is true.
QSize FrameSize(const QSize& size, const ZTBatchOutputSettings::Transformation& framing);

/// The size of what `settings` make of a picture of `size`, upright, by crop, size, effects and framing. Nothing when
/// it depends on the pixels, as it does for pictures that are trimmed.
std::optional<QSize> ResultSize(const QSize& size, const JobSettings& settings);

} // namespace BatchJob
