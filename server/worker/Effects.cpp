#include "Effects.h"

#include "effects/AllEffects.h"

#include <QHash>

namespace BatchServer {

Picture ApplyEffect(const QString& id, const QJsonObject& parameters, const Picture& picture)
{
    static const QHash<QString, EffectFunction> functions{
        {QStringLiteral("exposure"), ApplyExposure},
    };
    const auto found = functions.constFind(id);
    if (found == functions.constEnd()) {
        throw EffectError("the effect " + id.toStdString() + " is not available");
    }
    return (*found)(picture, parameters);
}

} // namespace BatchServer
