// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/effects/EffectList.h"
#include "server/worker/pixels/Picture.h"

#include <QJsonObject>

/// The work of the effects on pixels, one source file each; the records define what each computes. The functions take
/// complete parameters that the record's check has accepted, and keep size, depth, kind, alpha and metadata unless
/// their source says otherwise. Parameters that change nothing give back the picture itself.
namespace BatchWorker {

#define BATCH_EFFECT_FUNCTION(name) Picture Apply##name(const Picture& picture, const QJsonObject& parameters);
BATCH_EFFECTS(BATCH_EFFECT_FUNCTION)
#undef BATCH_EFFECT_FUNCTION

} // namespace BatchWorker
