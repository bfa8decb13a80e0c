// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/settings/JobCheck.h"
#include "job/tokens/TokenValues.h"
#include "server/worker/pixels/Picture.h"

#include <QVector>

namespace BatchWorker {

/// `effects` with `values` in the places of their tokens.
QVector<BatchJob::JobEffect> WithTokens(const QVector<BatchJob::JobEffect>& effects,
                                        const BatchJob::TokenValues& values);

/// `picture` after `effects`, one after the other. Throws PictureFailure, ProcessingFailed, with the effect's id, when
/// one of them fails; vips::VError when the pixels that it needs cannot be read.
///
/// Copies that effects need are freed as soon as the next one is made; so callers must not hold on to `picture`.
Picture WithEffects(Picture picture, const QVector<BatchJob::JobEffect>& effects);

} // namespace BatchWorker
