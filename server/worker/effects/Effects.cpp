// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Effects.h"

#include "EffectFunctions.h"

#include <array>

namespace BatchWorker {

Picture ApplyEffect(const BatchJob::EffectSchema& effect, const QJsonObject& parameters, const Picture& picture)
{
#define BATCH_EFFECT_ENTRY(name) Apply##name,
    static constexpr std::array functions{BATCH_EFFECTS(BATCH_EFFECT_ENTRY)};
#undef BATCH_EFFECT_ENTRY
    return functions[static_cast<std::size_t>(effect.kind)](picture, parameters);
}

} // namespace BatchWorker
