#include "EffectCatalog.h"

#include "EffectChecks.h"
#include "EffectGroups.h"

#include <algorithm>

namespace BatchJob {

namespace {

QVector<EffectSchema> MakeEffects()
{
    QVector<EffectSchema> effects =
        ToneEffects() + ColourEffects() + DetailEffects() + LookEffects() + GeometryEffects() + WatermarkEffects();
    for (EffectSchema& effect : effects) {
        effect.definition = DefinitionOf(effect.id);
    }
    return effects;
}

} // namespace

const QVector<EffectSchema>& Effects()
{
    static const QVector<EffectSchema> effects = MakeEffects();
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
    const QString problem = checked.IsValid() ? EffectProblem(effect.id, checked.values) : QString();
    return problem.isEmpty() ? checked : CheckedParameters{{}, problem};
}

} // namespace BatchJob
