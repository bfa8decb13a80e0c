// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ParameterRow.h"

#include "ShownNames.h"

#include "hosts/common/Language.h"

#include <algorithm>
#include <tuple>

using namespace BatchJob;
using BatchHost::Translated;

namespace BatchDesktop {

namespace {

bool IsSameSchema(const ParameterSchema& one, const ParameterSchema& other)
{
    return std::tie(one.name, one.type, one.description, one.minimum, one.maximum, one.unit, one.choices) ==
               std::tie(other.name, other.type, other.description, other.minimum, other.maximum, other.unit,
                        other.choices) &&
           one.defaultValue == other.defaultValue;
}

QString HelpOf(const ParameterSchema& schema)
{
    const QString description = Translated(schema.description);
    return description.isEmpty() ? QString() : description.at(0).toUpper() + description.mid(1);
}

} // namespace

bool ParameterRow::operator==(const ParameterRow& other) const
{
    const auto isSameChoice = [](const ShownChoice& one, const ShownChoice& second) {
        return one.value == second.value && one.text == second.text;
    };
    return IsSameSchema(schema, other.schema) &&
           std::tie(label, id, help) == std::tie(other.label, other.id, other.help) &&
           std::equal(choices.begin(), choices.end(), other.choices.begin(), other.choices.end(), isSameChoice);
}

ParameterRow RowOf(const ParameterSchema& schema, const QString& prefix)
{
    ParameterRow row{schema, ShownParameter(schema.name), prefix + QLatin1Char('.') + schema.name};
    row.help = HelpOf(schema);
    row.problemStart = QLatin1Char('"') + schema.name + QLatin1Char('"');
    for (const QString& choice : schema.type == ParameterType::Choice ? schema.choices : QStringList()) {
        row.choices.append({choice, ShownName(choice)});
    }
    return row;
}

} // namespace BatchDesktop
