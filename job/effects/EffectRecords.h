// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "EffectCatalog.h"
#include "EffectList.h"

/// The records that the catalogue is made of, one source file each. A record leaves `kind` to the catalogue.
namespace BatchJob {

#define BATCH_EFFECT_RECORD(name) EffectSchema name##Effect();
BATCH_EFFECTS(BATCH_EFFECT_RECORD)
#undef BATCH_EFFECT_RECORD

} // namespace BatchJob
