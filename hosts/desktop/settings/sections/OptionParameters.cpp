// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "OptionParameters.h"

#include "hosts/common/Language.h"
#include "hosts/desktop/settings/parameters/ParameterValues.h"
#include "hosts/desktop/settings/parameters/SliderScale.h"
#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"

#include <QJsonObject>

using namespace BatchJob;
using BatchHost::Messages;

namespace BatchDesktop {

namespace {

// Where the option has no default because each format has its own.
QJsonValue DefaultOfSomeFormat(const QString& name)
{
    for (const FormatSchema& format : Formats()) {
        for (const ParameterSchema& option : format.options) {
            if (option.name == name && !option.defaultValue.isUndefined()) {
                return option.defaultValue;
            }
        }
    }
    return QJsonValue(QJsonValue::Undefined);
}

bool IsTaken(const Settings& settings, const QString& name, const QJsonValue& value)
{
    QJsonObject options = ObjectOf(settings.formatOptions);
    options.insert(name, value);
    return CheckFormatOptions(settings.format, TextOfObject(options)).IsValid();
}

QVector<ShownChoice> NotSetOr(const QVector<ShownChoice>& choices)
{
    return QVector<ShownChoice>{{QJsonValue(QJsonValue::Undefined), Messages::tr("As the format has it")}} + choices;
}

// Of a short range, formats take some numbers only, such as 8 and 16 bits.
QVector<ShownChoice> TakenNumbers(const Settings& settings, const ParameterSchema& option)
{
    QVector<ShownChoice> taken;
    for (int number = int(option.minimum); number <= int(option.maximum); ++number) {
        if (IsTaken(settings, option.name, number)) {
            taken.append({number, QString::number(number)});
        }
    }
    return taken;
}

ParameterRow RowOfOption(const Settings& settings, const ParameterSchema& option)
{
    ParameterRow row = RowOf(option, {});
    if (!option.defaultValue.isUndefined()) {
        return row;
    }
    row.firstValue = DefaultOfSomeFormat(option.name);
    if (option.type == ParameterType::Choice) {
        row.choices = NotSetOr(row.choices);
    } else if (option.type == ParameterType::Truth) {
        row.choices = NotSetOr({{true, Messages::tr("Yes")}, {false, Messages::tr("No")}});
    } else if (option.type == ParameterType::Integer && row.firstValue.isUndefined()) {
        constexpr double shortRange = 100;
        if (option.maximum - option.minimum < shortRange) {
            row.choices = NotSetOr(TakenNumbers(settings, option));
        } else {
            const SliderScale scale(option.minimum, option.maximum, true);
            row.firstValue = scale.ValueAt((scale.Minimum() + scale.Maximum()) / 2);
        }
    }
    return row;
}

} // namespace

const QStringList& MetadataOptions()
{
    static const QStringList names{QStringLiteral("keep"), QStringLiteral("keepFileTime")};
    return names;
}

QVector<BoundParameter> OptionParameters(const Settings& settings, bool ofMetadata)
{
    QVector<BoundParameter> parameters;
    const QVector<ParameterSchema> options = OptionsTakenBy(settings.format);
    for (const ParameterSchema& option : options) {
        if (MetadataOptions().contains(option.name) == ofMetadata) {
            parameters.append({RowOfOption(settings, option),
                               [option](const Settings& now) { return ValueIn(now.formatOptions, option); },
                               [option](Settings& wanted, const QJsonValue& value) {
                                   wanted.formatOptions = WithValue(wanted.formatOptions, option, value);
                               }});
        }
    }
    return parameters;
}

QString OptionProblem(const Settings& settings, bool ofMetadata)
{
    const QString problem = CheckFormatOptions(settings.format, settings.formatOptions).error;
    QJsonObject own = ObjectOf(settings.formatOptions);
    if (problem.isEmpty() || own.isEmpty()) {
        return ofMetadata ? QString() : problem;
    }
    const QStringList names = own.keys();
    for (const QString& name : names) {
        if (MetadataOptions().contains(name) != ofMetadata) {
            own.remove(name);
        }
    }
    return CheckFormatOptions(settings.format, TextOfObject(own)).error;
}

void ChangeFormat(Settings& settings, const QString& format)
{
    settings.format = format;
    QJsonObject options = ObjectOf(settings.formatOptions);
    const QStringList names = options.keys();
    for (const QString& name : names) {
        if (!CheckFormatOptions(format, TextOfObject({{name, options.value(name)}})).IsValid()) {
            options.remove(name);
        }
    }
    settings.formatOptions = TextOfObject(options);
}

} // namespace BatchDesktop
