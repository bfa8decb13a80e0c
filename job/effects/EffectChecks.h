#pragma once

#include <QJsonObject>
#include <QString>

namespace BatchJob {

/// What the schema of the effect `id` alone cannot say about `parameters`, which are checked and complete by it. Files
/// are opened: they have to be readable and of a form that the effect can use. Returns the reason why the parameters
/// are refused, or nothing.
QString EffectProblem(const QString& id, const QJsonObject& parameters);

} // namespace BatchJob
