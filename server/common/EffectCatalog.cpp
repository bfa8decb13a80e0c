#include "EffectCatalog.h"

#include <algorithm>

namespace BatchServer {

const QVector<EffectSchema>& Effects()
{
    static const QVector<EffectSchema> effects{
        {QStringLiteral("exposure"),
         QStringLiteral("Brightens or darkens as a longer or shorter exposure would"),
         {{QStringLiteral("stops"),
           ParameterType::Number,
           0.0,
           QStringLiteral("how much; 1 doubles the light"),
           -10,
           10,
           QStringLiteral("stops"),
           {}}}},
    };
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
    return CheckParameters(effect.parameters, data);
}

} // namespace BatchServer
