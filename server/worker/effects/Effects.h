// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/effects/EffectCatalog.h"
#include "server/worker/pixels/Picture.h"

#include <QJsonObject>

namespace BatchWorker {

/// Applies `effect`, with complete parameters that CheckEffect() accepted, to `picture`. Throws PictureFailure,
/// ProcessingFailed, when the effect cannot be applied, or vips::VError from the library.
///
/// Where the effect NeedsRandomAccess() the picture must be readable in any order, and some of its pixels, or all, are
/// read at once. The caller sees to that beforehand, as with WithRandomAccess(), so that a file that cannot be read is
/// not taken for a failure of the effect. Else the pixels flow later, line by line from top to bottom.
Picture ApplyEffect(const BatchJob::EffectSchema& effect, const QJsonObject& parameters, const Picture& picture);

} // namespace BatchWorker
