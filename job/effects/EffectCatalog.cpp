// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectCatalog.h"

#include "EffectRecords.h"
#include "EffectTokens.h"

#include <algorithm>

namespace BatchJob {

namespace {

EffectSchema OfKind(EffectKind kind, EffectSchema record)
{
    record.kind = kind;
    return record;
}

} // namespace

const QVector<EffectSchema>& Effects()
{
#define BATCH_EFFECT_ENTRY(name) OfKind(EffectKind::name, name##Effect()),
    static const QVector<EffectSchema> effects{BATCH_EFFECTS(BATCH_EFFECT_ENTRY)};
#undef BATCH_EFFECT_ENTRY
    return effects;
}

const EffectSchema* FindEffect(const QString& id)
{
    const QVector<EffectSchema>& effects = Effects();
    const auto found =
        std::find_if(effects.begin(), effects.end(), [&id](const EffectSchema& effect) { return effect.id == id; });
    return found == effects.end() ? nullptr : &*found;
}

CheckedParameters CheckEffect(const EffectSchema& effect, const QByteArray& data)
{
    const CheckedParameters checked = CheckParameters(effect.parameters, data);
    if (!checked.IsValid()) {
        return checked;
    }
    QString problem = TokenProblem(effect, checked.values);
    if (problem.isEmpty() && effect.extraProblem) {
        problem = effect.extraProblem(checked.values);
    }
    return problem.isEmpty() ? checked : CheckedParameters{{}, problem};
}

} // namespace BatchJob
