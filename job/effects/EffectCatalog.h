#pragma once

#include "job/values/ParameterSchema.h"

#include <QByteArray>
#include <QString>
#include <QVector>

/// The effects that a style can hold, as data. Everything here is safe on any thread.
namespace BatchJob {

struct EffectSchema
{
    QString id;          ///< as it stands in a job, such as "exposure"
    QString description; ///< one line
    QVector<ParameterSchema> parameters;
    QString definition = {}; ///< what exactly it computes, with the source of formulas; for the reference page
};

/// Every effect, in the order of the reference page.
const QVector<EffectSchema>& Effects();

/// The effect `id`; null when there is none.
const EffectSchema* FindEffect(const QString& id);

/// Checks the parameters `data` of `effect`, a UTF-8 JSON object or nothing. What the schema alone cannot say is
/// checked too, such as levels whose black is not below their white, and the files that it names are opened: a table of
/// colours is read whole, a picture only as far as its first bytes.
CheckedParameters CheckEffect(const EffectSchema& effect, const QByteArray& data);

} // namespace BatchJob
