// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ParameterSchema.h"

#include "job/values/Phrase.h"

#include "ColourNames.h"
#include "Phrase.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <limits>
#include <numeric>
#include <utility>

namespace BatchJob {

namespace {

constexpr int maximumPoints = 256;

QString NumberText(double value)
{
    return QString::number(value, 'g', 10);
}

QString RangeText(const ParameterSchema& parameter)
{
    const QString minimum = NumberText(parameter.minimum);
    const QString maximum = NumberText(parameter.maximum);
    return parameter.unit.isEmpty() ? Phrase::English("from %1 to %2").arg(minimum, maximum)
                                    : Phrase::English("from %1 to %2 (%3)").arg(minimum, maximum, parameter.unit);
}

QString ValueText(const QJsonValue& value)
{
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    const QString text = QString::fromUtf8(wrapped.mid(1, wrapped.size() - 2));
    constexpr int longest = 80;
    return text.size() <= longest ? text : text.left(longest) + QStringLiteral("...");
}

bool IsWithin(double value, const ParameterSchema& parameter)
{
    return std::isfinite(value) && value >= parameter.minimum && value <= parameter.maximum;
}

bool IsColour(const QString& text)
{
    static const QRegularExpression form(QStringLiteral("\\A#(?:[0-9a-fA-F]{6}|[0-9a-fA-F]{8})\\z"));
    return form.match(text).hasMatch();
}

bool AreChoices(const QJsonArray& values, const QStringList& choices)
{
    QSet<QString> seen;
    return std::all_of(values.begin(), values.end(), [&](const QJsonValue& value) {
        const QString text = value.toString();
        const bool isNew = !seen.contains(text);
        seen.insert(text);
        return value.isString() && isNew && choices.contains(text);
    });
}

bool ArePoints(const QJsonArray& points, const ParameterSchema& parameter)
{
    if (points.size() < 2 || points.size() > maximumPoints) {
        return false;
    }
    double last = -std::numeric_limits<double>::infinity();
    for (const QJsonValue& value : points) {
        const QJsonArray point = value.toArray();
        if (point.size() != 2 || !point[0].isDouble() || !point[1].isDouble()) {
            return false;
        }
        if (!IsWithin(point[0].toDouble(), parameter) || !IsWithin(point[1].toDouble(), parameter) ||
            point[0].toDouble() <= last) {
            return false;
        }
        last = point[0].toDouble();
    }
    return true;
}

bool IsAllowed(const QJsonValue& value, const ParameterSchema& parameter)
{
    switch (parameter.type) {
    case ParameterType::Number:
        return value.isDouble() && IsWithin(value.toDouble(), parameter);
    case ParameterType::Integer:
        return value.isDouble() && IsWithin(value.toDouble(), parameter) &&
               value.toDouble() == std::trunc(value.toDouble());
    case ParameterType::Truth:
        return value.isBool();
    case ParameterType::Choice:
        return value.isString() && parameter.choices.contains(value.toString());
    case ParameterType::ChoiceList:
        return value.isArray() && AreChoices(value.toArray(), parameter.choices);
    case ParameterType::Colour:
        return value.isString() && IsColour(value.toString());
    case ParameterType::Text:
        return value.isString() && IsWithin(value.toString().size(), parameter);
    case ParameterType::File:
        return value.isString() && QDir::isAbsolutePath(value.toString());
    case ParameterType::Points:
        return value.isArray() && ArePoints(value.toArray(), parameter);
    }
    return false;
}

QJsonValue NumberFromText(const QString& text)
{
    bool isNumber = false;
    const double number = text.trimmed().toDouble(&isNumber);
    return isNumber ? QJsonValue(number) : QJsonValue(QJsonValue::Undefined);
}

QJsonValue TruthFromText(const QString& text)
{
    const QString word = text.trimmed().toLower();
    const auto isOneOf = [&word](std::initializer_list<const char*> words) {
        return std::any_of(words.begin(), words.end(), [&word](const char* it) { return word == QLatin1String(it); });
    };
    if (isOneOf({"true", "yes", "on", "1"})) {
        return true;
    }
    return isOneOf({"false", "no", "off", "0"}) ? QJsonValue(false) : QJsonValue(QJsonValue::Undefined);
}

QJsonValue ChoiceFromText(const QString& text, const QStringList& choices)
{
    const QString word = text.trimmed();
    const auto found = std::find_if(choices.begin(), choices.end(), [&word](const QString& choice) {
        return choice.compare(word, Qt::CaseInsensitive) == 0;
    });
    return found == choices.end() ? QJsonValue(QJsonValue::Undefined) : QJsonValue(*found);
}

QJsonValue ChoiceListFromText(const QString& text, const QStringList& choices)
{
    static const QRegularExpression separators(QStringLiteral("[+,]"));
    QJsonArray list;
    if (!text.trimmed().isEmpty() && text.trimmed().compare(QLatin1String("none"), Qt::CaseInsensitive) != 0) {
        const QStringList words = text.split(separators);
        for (const QString& word : words) {
            list.append(ChoiceFromText(word, choices));
        }
    }
    return list;
}

QJsonValue ColourFromText(const QString& text)
{
    const QString colour = text.trimmed();
    const QString named = ColourOfName(colour);
    if (!named.isEmpty()) {
        return named;
    }
    return colour.startsWith(QLatin1Char('#')) ? colour : QLatin1Char('#') + colour;
}

QJsonValue FileFromText(const QString& text)
{
    return text.isEmpty() ? QJsonValue(QJsonValue::Undefined)
                          : QJsonValue(QDir::cleanPath(QDir::current().absoluteFilePath(text)));
}

QJsonValue PointsFromText(const QString& text)
{
    static const QRegularExpression separators(QStringLiteral("[+;\\s]+"));
    QJsonArray points;
    const QStringList pairs = text.trimmed().split(separators);
    for (const QString& pair : pairs) {
        QJsonArray point;
        const QStringList coordinates = pair.split(QLatin1Char(':'));
        for (const QString& coordinate : coordinates) {
            point.append(NumberFromText(coordinate));
        }
        points.append(point);
    }
    return points;
}

// Text of another form than the type's gives undefined or a list with an element that no schema allows.
QJsonValue ValueFromText(const ParameterSchema& parameter, const QString& text)
{
    switch (parameter.type) {
    case ParameterType::Number:
    case ParameterType::Integer:
        return NumberFromText(text);
    case ParameterType::Truth:
        return TruthFromText(text);
    case ParameterType::Choice:
        return ChoiceFromText(text, parameter.choices);
    case ParameterType::ChoiceList:
        return ChoiceListFromText(text, parameter.choices);
    case ParameterType::Colour:
        return ColourFromText(text);
    case ParameterType::Text:
        return text;
    case ParameterType::File:
        return FileFromText(text);
    case ParameterType::Points:
        return PointsFromText(text);
    }
    return QJsonValue(QJsonValue::Undefined);
}

QString UnknownName(const QString& name, const QVector<ParameterSchema>& schema)
{
    QStringList known;
    for (const ParameterSchema& parameter : schema) {
        known.append(parameter.name);
    }
    QString error = Phrase::English("\"%1\" is unknown").arg(name);
    const QString nearest = NearestWord(name, known);
    if (!nearest.isEmpty()) {
        error += Phrase::English("; did you mean \"%1\"?").arg(nearest);
    } else if (known.isEmpty()) {
        error += Phrase::English("; none is taken here");
    } else {
        error += Phrase::English("; known are %1").arg(known.join(QStringLiteral(", ")));
    }
    return error;
}

QString NearestText(const ParameterSchema& parameter, const QString& text)
{
    switch (parameter.type) {
    case ParameterType::Choice:
        return NearestWord(text, parameter.choices);
    case ParameterType::Colour:
        return NearestColourName(text);
    default:
        return {};
    }
}

int EditDistance(const QString& from, const QString& to)
{
    QVector<int> row(to.size() + 1);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 0; i < from.size(); ++i) {
        int diagonal = std::exchange(row[0], i + 1);
        for (int j = 0; j < to.size(); ++j) {
            const int replaced = diagonal + (from[i] == to[j] ? 0 : 1);
            diagonal = row[j + 1];
            row[j + 1] = std::min({replaced, row[j] + 1, diagonal + 1});
        }
    }
    return row.last();
}

} // namespace

CheckedParameters CheckParameters(const QVector<ParameterSchema>& schema, const QByteArray& json)
{
    if (json.trimmed().isEmpty()) {
        return CheckParameters(schema, QJsonObject());
    }
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(json, &problem);
    if (problem.error != QJsonParseError::NoError) {
        return {{}, Phrase::English("not valid JSON at byte %1: %2").arg(problem.offset).arg(problem.errorString())};
    }
    if (!document.isObject()) {
        return {{}, Phrase::English("a JSON object is needed, such as {\"name\": value}")};
    }
    return CheckParameters(schema, document.object());
}

CheckedParameters CheckParameters(const QVector<ParameterSchema>& schema, const QJsonObject& given)
{
    QJsonObject values;
    for (const ParameterSchema& parameter : schema) {
        const auto found = given.constFind(parameter.name);
        if (found == given.constEnd()) {
            if (parameter.defaultValue.isNull()) {
                return {
                    {},
                    Phrase::English("\"%1\" is missing; it must be %2").arg(parameter.name, AllowedValues(parameter))};
            }
            if (!parameter.defaultValue.isUndefined()) {
                values.insert(parameter.name, parameter.defaultValue);
            }
        } else if (IsAllowed(*found, parameter)) {
            values.insert(parameter.name, *found);
        } else {
            return {{},
                    Phrase::English("\"%1\" is %2; it must be %3")
                        .arg(parameter.name, ValueText(*found), AllowedValues(parameter))};
        }
    }
    for (auto it = given.constBegin(); it != given.constEnd(); ++it) {
        const auto isKnown = std::any_of(schema.begin(), schema.end(),
                                         [&](const ParameterSchema& parameter) { return parameter.name == it.key(); });
        if (!isKnown) {
            return {{}, UnknownName(it.key(), schema)};
        }
    }
    return {values, {}};
}

ParameterValue ParameterFromText(const ParameterSchema& parameter, const QString& text)
{
    const QJsonValue value = ValueFromText(parameter, text);
    if (IsAllowed(value, parameter)) {
        return {value, {}};
    }
    QString error = Phrase::English("\"%1\" is %2; it must be %3")
                        .arg(parameter.name, ValueText(QJsonValue(text)), AllowedTexts(parameter));
    const QString nearest = NearestText(parameter, text);
    if (!nearest.isEmpty()) {
        error += Phrase::English("; did you mean %1?").arg(nearest);
    }
    return {QJsonValue(QJsonValue::Undefined), error};
}

QString AllowedValues(const ParameterSchema& parameter)
{
    switch (parameter.type) {
    case ParameterType::Number:
        return Phrase::English("a number %1").arg(RangeText(parameter));
    case ParameterType::Integer:
        return Phrase::English("a whole number %1").arg(RangeText(parameter));
    case ParameterType::Truth:
        return Phrase::English("true or false");
    case ParameterType::Choice:
        return Phrase::English("one of %1").arg(parameter.choices.join(QStringLiteral(", ")));
    case ParameterType::ChoiceList:
        return Phrase::English("a list of %1").arg(parameter.choices.join(QStringLiteral(", ")));
    case ParameterType::Colour:
        return Phrase::English("a colour, #rrggbb or #rrggbbaa");
    case ParameterType::Text:
        return Phrase::English("a text of %1 to %2 characters")
            .arg(NumberText(parameter.minimum), NumberText(parameter.maximum));
    case ParameterType::File:
        return Phrase::English("the absolute path of a file");
    case ParameterType::Points:
        return Phrase::English("a list of 2 to %1 points [x, y] with ascending x, numbers %2")
            .arg(maximumPoints)
            .arg(RangeText(parameter));
    }
    return {};
}

QString AllowedTexts(const ParameterSchema& parameter)
{
    switch (parameter.type) {
    case ParameterType::Colour:
        return Phrase::English("a colour: #rrggbb, #rrggbbaa, or a name such as white");
    case ParameterType::ChoiceList:
        return Phrase::English("%1, joined with +, or none").arg(parameter.choices.join(QStringLiteral(", ")));
    case ParameterType::Points:
        return Phrase::English("2 to %1 points x:y with ascending x, joined with +, numbers %2")
            .arg(maximumPoints)
            .arg(RangeText(parameter));
    default:
        return AllowedValues(parameter);
    }
}

QString NearestWord(const QString& word, const QStringList& words)
{
    QString nearest;
    int least = word.size() / 2 + 1;
    for (const QString& candidate : words) {
        const int distance = EditDistance(word.toLower(), candidate.toLower());
        if (distance < least) {
            least = distance;
            nearest = candidate;
        }
    }
    return nearest;
}

} // namespace BatchJob
