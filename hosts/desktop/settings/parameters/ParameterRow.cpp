// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ParameterRow.h"

#include "hosts/common/Language.h"

#include <QHash>
#include <QSet>

#include <algorithm>
#include <tuple>

using namespace BatchJob;
using BatchHost::Messages;
using BatchHost::Translated;

namespace BatchDesktop {

namespace {

bool IsAbbreviation(const QString& name)
{
    static const QSet<QString> abbreviations{QStringLiteral("exif"), QStringLiteral("gps"), QStringLiteral("icc"),
                                             QStringLiteral("iptc"), QStringLiteral("lzw"), QStringLiteral("xmp")};
    return abbreviations.contains(name);
}

QString InWords(const QString& name)
{
    if (IsAbbreviation(name)) {
        return name.toUpper();
    }
    QString words;
    for (const QChar character : name) {
        if (character.isUpper() && !words.isEmpty()) {
            words += QLatin1Char(' ');
        }
        words += character == QLatin1Char('-') ? QLatin1Char(' ') : character.toLower();
    }
    if (!words.isEmpty()) {
        words[0] = words.at(0).toUpper();
    }
    return words;
}

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
    ParameterRow row{schema, ShownName(schema.name), prefix + QLatin1Char('.') + schema.name};
    row.help = HelpOf(schema);
    row.problemStart = QLatin1Char('"') + schema.name + QLatin1Char('"');
    for (const QString& choice : schema.type == ParameterType::Choice ? schema.choices : QStringList()) {
        row.choices.append({choice, ShownName(choice)});
    }
    return row;
}

QString ShownName(const QString& name)
{
    return Messages::tr(InWords(name).toUtf8().constData());
}

QString ShownUnit(const QString& unit)
{
    static const QHash<QString, QString> signs{{QStringLiteral("percent"), QStringLiteral("%")},
                                               {QStringLiteral("pixels"), QStringLiteral("px")},
                                               {QStringLiteral("degrees"), QStringLiteral("\u00B0")}};
    return signs.value(unit, Messages::tr(unit.toUtf8().constData()));
}

} // namespace BatchDesktop
