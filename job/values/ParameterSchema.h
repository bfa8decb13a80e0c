#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QVector>

/// Parameters of effects and options of formats, described as data. Validation, help texts and the reference pages all
/// come from these descriptions. Everything here is safe on any thread.
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
    QJsonValue defaultValue; ///< Null: the parameter has to be given. Undefined: it may be left out and is absent then.
    QString description;     ///< one line, without the range, which is written from the fields here
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

/// Checks `json`, the UTF-8 text of a JSON object, against `schema`. No text at all, or `{}`, gives the defaults. An
/// unknown name is refused with the nearest known one.
CheckedParameters CheckParameters(const QVector<ParameterSchema>& schema, const QByteArray& json);
CheckedParameters CheckParameters(const QVector<ParameterSchema>& schema, const QJsonObject& given);

/// One value as a user wrote it, or the reason why it is refused.
struct ParameterValue
{
    QJsonValue value; ///< undefined when refused
    QString error;    ///< names the parameter, the text and what is allowed; empty when accepted

    bool IsValid() const { return error.isEmpty(); }
};

/// The JSON value that `text`, written on a command line, stands for, checked against `parameter`. Numbers have a
/// decimal point in every locale. Truth is "true", "yes", "on", "1" or their opposites, in any letter case, as choices
/// are. A colour may come without its "#". A relative file counts from the current folder. A list joins its choices
/// with "+" or ",", and "none" is the empty list. Points are written x:y and joined with "+", ";" or blanks.
ParameterValue ParameterFromText(const ParameterSchema& parameter, const QString& text);

/// What `parameter` takes, in words, such as "a number from 0 to 100 (percent)".
QString AllowedValues(const ParameterSchema& parameter);

/// The entry of `words` that is nearest to `word` in edits of single characters, upper and lower case being equal; an
/// empty string when none is nearer than half of the word's length.
QString NearestWord(const QString& word, const QStringList& words);

} // namespace BatchJob
