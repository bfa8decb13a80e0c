// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "BoundParameter.h"

#include "hosts/common/Language.h"

using namespace BatchJob;

namespace BatchDesktop {

namespace {

ParameterRow Row(const char* name, ParameterType type, const QString& label)
{
    ParameterRow row;
    row.schema.name = QString::fromLatin1(name);
    row.schema.type = type;
    row.schema.defaultValue = QJsonValue(); // Each has a value of the settings.
    row.label = label;
    return row;
}

} // namespace

ParameterRow NumberRow(const char* name, const QString& label, double minimum, double maximum, const char* unit,
                       const char* field)
{
    ParameterRow row = Row(name, ParameterType::Number, label);
    row.schema.minimum = minimum;
    row.schema.maximum = maximum;
    row.schema.unit = QString::fromLatin1(unit);
    row.problemStart = QString::fromLatin1(field);
    return row;
}

ParameterRow IntegerRow(const char* name, const QString& label, int minimum, int maximum, const char* unit,
                        const char* field)
{
    ParameterRow row = NumberRow(name, label, minimum, maximum, unit, field);
    row.schema.type = ParameterType::Integer;
    return row;
}

ParameterRow TruthRow(const char* name, const QString& label)
{
    return Row(name, ParameterType::Truth, label);
}

ParameterRow TextRow(const char* name, const QString& label, int longest)
{
    ParameterRow row = Row(name, ParameterType::Text, label);
    row.schema.maximum = longest;
    return row;
}

ParameterRow ColourRow(const char* name, const QString& label)
{
    return Row(name, ParameterType::Colour, label);
}

ParameterRow FileRow(const char* name, const QString& label, const char* field)
{
    ParameterRow row = Row(name, ParameterType::File, label);
    row.problemStart = QString::fromLatin1(field);
    return row;
}

ParameterRow ChoiceRow(const char* name, const QString& label, const QVector<ShownChoice>& choices, const char* field)
{
    ParameterRow row = Row(name, ParameterType::Choice, label);
    row.choices = choices;
    row.problemStart = QString::fromLatin1(field);
    return row;
}

QString ShownDescription(const char* text)
{
    const QString shown = BatchHost::Messages::tr(text);
    return shown.isEmpty() ? shown : shown.at(0).toUpper() + shown.mid(1);
}

} // namespace BatchDesktop
