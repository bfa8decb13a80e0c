#pragma once

#include "EffectCatalog.h"

/// The parts that the table of effects is put together from, and the words that its rows are written with.
namespace BatchJob {

QVector<EffectSchema> ToneEffects();
QVector<EffectSchema> ColourEffects();
QVector<EffectSchema> DetailEffects();
QVector<EffectSchema> LookEffects();
QVector<EffectSchema> GeometryEffects();
QVector<EffectSchema> WatermarkEffects();

/// What exactly the effect `id` computes.
QString DefinitionOf(const QString& id);

/// A number from `minimum` to `maximum` in `unit`; "" for plain numbers.
ParameterSchema NumberParameter(const char* name, double standard, double minimum, double maximum, const char* unit,
                                const char* description);
ParameterSchema IntegerParameter(const char* name, int standard, int minimum, int maximum, const char* unit,
                                 const char* description);
ParameterSchema TruthParameter(const char* name, bool standard, const char* description);
/// One of `choices`, of which the first is the default.
ParameterSchema ChoiceParameter(const char* name, const QStringList& choices, const char* description);
ParameterSchema ColourParameter(const char* name, const char* standard, const char* description);
/// A file that has to be given.
ParameterSchema FileParameter(const char* name, const char* description);

} // namespace BatchJob
