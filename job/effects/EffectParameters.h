// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/ParameterSchema.h"

/// The words that the records of effects describe their parameters with.
namespace BatchJob {

/// A text of `shortest` to `longest` characters.
ParameterSchema TextParameter(const char* name, const QJsonValue& standard, int shortest, int longest,
                              const char* description);

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

/// Why lengths of more than 100 percent are refused: the first of `names` that has one in the "unit" of `parameters`;
/// empty when none has.
QString PercentProblem(const QJsonObject& parameters, const QStringList& names);

} // namespace BatchJob
