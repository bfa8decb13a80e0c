// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVector>

/// Parameters of effects and options of formats, described as data. Checks, help texts and the reference pages are all
/// made from these descriptions. Everything here is safe on any thread.
namespace BatchJob {

/// What a parameter's JSON value must be.
enum class ParameterType {
    Number,     ///< a finite number within minimum and maximum
    Integer,    ///< a whole number within minimum and maximum
    Truth,      ///< true or false
    Choice,     ///< one of the choices, a string
    ChoiceList, ///< an array of different choices, which may be empty
    Colour,     ///< "#rrggbb" or "#rrggbbaa"
    Text,       ///< a string of minimum to maximum characters
    File,       ///< the absolute path of a file
    Points      ///< an array of 2 to 256 arrays [x, y] of numbers within minimum and maximum, x strictly ascending
};

struct ParameterSchema
{
    QString name;
    ParameterType type = ParameterType::Number;
    QJsonValue defaultValue; ///< null: the parameter is required; undefined: it is optional, without a default
    QString description;     ///< one line, without the range, which comes from the other fields
    double minimum = 0;
    double maximum = 0;
    QString unit;        ///< such as "pixels", "degrees", "percent"; empty for plain numbers
    QStringList choices; ///< for Choice and ChoiceList
};

/// Parameters after their check: complete with the defaults, or the reason why they are refused.
struct CheckedParameters
{
    QJsonObject values; ///< empty when refused
    QString error;      ///< names the parameter, the value and what is allowed; empty when accepted

    bool IsValid() const { return error.isEmpty(); }
};

/// Checks `json`, the UTF-8 text of a JSON object, against `schema`. Empty text and `{}` give the defaults. The error
/// about an unknown name suggests the nearest known one.
CheckedParameters CheckParameters(const QVector<ParameterSchema>& schema, const QByteArray& json);
CheckedParameters CheckParameters(const QVector<ParameterSchema>& schema, const QJsonObject& given);

/// One value as a user wrote it, or the reason why it is refused.
struct ParameterValue
{
    QJsonValue value; ///< undefined when refused
    QString error;    ///< names the parameter, the text and what is allowed; empty when accepted

    bool IsValid() const { return error.isEmpty(); }
};

/// The JSON value of `text` from a command line, checked against `parameter`. Numbers have a decimal point in every
/// locale. Truth is "true", "yes", "on", "1" or their opposites; letter case does not matter, nor does it for choices.
/// A colour may lack its "#", or be a name, which becomes a number. A relative path starts at the current folder. The
/// choices of a list are joined with "+" or ","; "none" is the empty list. Points are written x:y and joined with "+",
/// ";" or blanks.
ParameterValue ParameterFromText(const ParameterSchema& parameter, const QString& text);

/// The values that `parameter` allows, in words, such as "a number from 0 to 100 (percent)".
QString AllowedValues(const ParameterSchema& parameter);

/// The same for values that are typed, as ParameterFromText() reads them.
QString AllowedTexts(const ParameterSchema& parameter);

/// The entry of `words` with the least edit distance to `word`, ignoring letter case; an empty string if the distance
/// is more than half of the word's length.
QString NearestWord(const QString& word, const QStringList& words);

} // namespace BatchJob
