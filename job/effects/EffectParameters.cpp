// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectParameters.h"

#include "job/values/Phrase.h"

namespace BatchJob {

namespace {

ParameterSchema Parameter(const char* name, ParameterType type, const QJsonValue& standard, const char* description)
{
    ParameterSchema parameter;
    parameter.name = QString::fromLatin1(name);
    parameter.type = type;
    parameter.defaultValue = standard;
    parameter.description = QString::fromLatin1(description);
    return parameter;
}

} // namespace

ParameterSchema NumberParameter(const char* name, double standard, double minimum, double maximum, const char* unit,
                                const char* description)
{
    ParameterSchema parameter = Parameter(name, ParameterType::Number, standard, description);
    parameter.minimum = minimum;
    parameter.maximum = maximum;
    parameter.unit = QString::fromLatin1(unit);
    return parameter;
}

ParameterSchema IntegerParameter(const char* name, int standard, int minimum, int maximum, const char* unit,
                                 const char* description)
{
    ParameterSchema parameter = NumberParameter(name, standard, minimum, maximum, unit, description);
    parameter.type = ParameterType::Integer;
    return parameter;
}

ParameterSchema TextParameter(const char* name, const QJsonValue& standard, int shortest, int longest,
                              const char* description)
{
    ParameterSchema parameter = Parameter(name, ParameterType::Text, standard, description);
    parameter.minimum = shortest;
    parameter.maximum = longest;
    return parameter;
}

ParameterSchema TruthParameter(const char* name, bool standard, const char* description)
{
    return Parameter(name, ParameterType::Truth, standard, description);
}

ParameterSchema ChoiceParameter(const char* name, const QStringList& choices, const char* description)
{
    ParameterSchema parameter = Parameter(name, ParameterType::Choice, choices.first(), description);
    parameter.choices = choices;
    return parameter;
}

ParameterSchema ColourParameter(const char* name, const char* standard, const char* description)
{
    return Parameter(name, ParameterType::Colour, QString::fromLatin1(standard), description);
}

ParameterSchema FileParameter(const char* name, const char* description)
{
    return Parameter(name, ParameterType::File, QJsonValue(), description);
}

QString PercentProblem(const QJsonObject& parameters, const QStringList& names)
{
    if (parameters[QLatin1String("unit")].toString() != QLatin1String("percent")) {
        return {};
    }
    for (const QString& name : names) {
        if (parameters[name].toDouble() > 100) {
            return Phrase::English("\"%1\" is %2 percent; it must be at most 100, or the unit pixels")
                .arg(name)
                .arg(parameters[name].toDouble());
        }
    }
    return {};
}

} // namespace BatchJob
