// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ParameterTexts.h"

#include "Words.h"

#include "job/effects/EffectCatalog.h"
#include "job/formats/FormatCatalog.h"
#include "job/values/ColourNames.h"
#include "job/values/Phrase.h"

#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include <algorithm>

using namespace BatchJob;

namespace BatchHost {

namespace {

using BatchJob::ParameterSchema;

const QString offMark = QStringLiteral("off:");

struct Assignment
{
    QString name;
    QString value;
};

Assignment Split(const QString& text)
{
    const int sign = text.indexOf(QLatin1Char('='));
    if (sign <= 0) {
        throw RequestError{Phrase::English("\"%1\" does not have the form KEY=VALUE").arg(text)};
    }
    return {text.left(sign).trimmed(), text.mid(sign + 1)};
}

QVector<Assignment> SplitAll(const QString& text)
{
    static const QRegularExpression border(QStringLiteral(",(?=\\s*[A-Za-z][A-Za-z0-9]*\\s*=)"));
    QVector<Assignment> assignments;
    for (const QString& part : text.split(border)) {
        assignments.append(Split(part));
    }
    return assignments;
}

QStringList NamesOf(const QVector<ParameterSchema>& schema)
{
    QStringList names;
    for (const ParameterSchema& parameter : schema) {
        names.append(parameter.name);
    }
    return names;
}

QJsonValue ValueFor(const QVector<ParameterSchema>& schema, const Assignment& assignment)
{
    const auto found = std::find_if(schema.begin(), schema.end(), [&](const ParameterSchema& parameter) {
        return parameter.name.compare(assignment.name, Qt::CaseInsensitive) == 0;
    });
    if (found == schema.end()) {
        const QStringList names = NamesOf(schema);
        throw RequestError{names.isEmpty()
                               ? Phrase::English("it takes no parameters, but \"%1\" is given").arg(assignment.name)
                               : NoSuchWord(assignment.name, names).text};
    }
    const BatchJob::ParameterValue value = BatchJob::ParameterFromText(*found, assignment.value);
    if (!value.IsValid()) {
        throw RequestError{value.error};
    }
    return value.value;
}

/// The name as the schema spells it.
QString SpelledName(const QVector<ParameterSchema>& schema, const QString& name)
{
    for (const ParameterSchema& parameter : schema) {
        if (parameter.name.compare(name, Qt::CaseInsensitive) == 0) {
            return parameter.name;
        }
    }
    return name;
}

QByteArray Compact(const QJsonObject& object)
{
    return object.isEmpty() ? QByteArray() : QJsonDocument(object).toJson(QJsonDocument::Compact);
}

/// `json` with the names of colours replaced by what jobs hold; unchanged without such names, or if it is no object.
QByteArray WithoutColourNames(const QVector<ParameterSchema>& schema, const QByteArray& json)
{
    QJsonObject object = QJsonDocument::fromJson(json).object();
    bool isChanged = false;
    for (const ParameterSchema& parameter : schema) {
        const QString colour = parameter.type == BatchJob::ParameterType::Colour
                                   ? BatchJob::ColourOfName(object.value(parameter.name).toString())
                                   : QString();
        if (!colour.isEmpty()) {
            object.insert(parameter.name, colour);
            isChanged = true;
        }
    }
    return isChanged ? Compact(object) : json;
}

QString ValueText(const QJsonValue& value)
{
    if (value.isString()) {
        return value.toString();
    }
    const QByteArray wrapped = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(wrapped.mid(1, wrapped.size() - 2));
}

bool IsPlain(const QJsonValue& value)
{
    return !value.isArray() && !value.isObject() && !value.isNull();
}

/// The options that a job in `format` may have.
QVector<ParameterSchema> OptionsOf(const QString& format)
{
    if (const BatchJob::FormatSchema* const known = BatchJob::FindFormat(format)) {
        return known->options;
    }
    QVector<ParameterSchema> all;
    for (const BatchJob::FormatSchema& known : BatchJob::Formats()) {
        for (const ParameterSchema& option : known.options) {
            if (!NamesOf(all).contains(option.name)) {
                all.append(option);
            }
        }
    }
    return all;
}

} // namespace

Effect EffectFromText(const QString& text)
{
    Effect effect;
    effect.enabled = !text.startsWith(offMark);
    const QString whole = effect.enabled ? text : text.mid(offMark.size());
    effect.id = whole.section(QLatin1Char(':'), 0, 0);
    const BatchJob::EffectSchema* const schema = BatchJob::FindEffect(effect.id.toLower());
    if (schema == nullptr) {
        QStringList ids;
        for (const BatchJob::EffectSchema& known : BatchJob::Effects()) {
            ids.append(known.id);
        }
        throw RequestError{Phrase::English("unknown effect \"%1\"; the effects are %2")
                               .arg(effect.id, ids.join(QStringLiteral(", "))) +
                           NearestHint(effect.id, ids)};
    }
    effect.id = schema->id;
    const QString context = BatchJob::Phrase::English("effect %1").arg(effect.id);
    const QString parameters = whole.section(QLatin1Char(':'), 1);
    if (parameters.startsWith(QLatin1Char('{'))) {
        effect.parameters = WithoutColourNames(schema->parameters, parameters.toUtf8());
    } else if (!parameters.isEmpty()) {
        QJsonObject object;
        for (const Assignment& assignment : SplitAll(parameters)) {
            try {
                object.insert(SpelledName(schema->parameters, assignment.name),
                              ValueFor(schema->parameters, assignment));
            } catch (const RequestError& error) {
                throw error.In(context);
            }
        }
        effect.parameters = Compact(object);
    }
    const BatchJob::CheckedParameters checked = BatchJob::CheckEffect(*schema, effect.parameters);
    if (!checked.IsValid()) {
        throw RequestError{checked.error}.In(context);
    }
    return effect;
}

QString EffectText(const ZTStyle& style, int index)
{
    QString text = style.EffectAt(index);
    if (!style.IsEnabled(index)) {
        text.prepend(offMark);
    }
    const QByteArray data = style.DataAt(index);
    const QJsonObject parameters = QJsonDocument::fromJson(data).object();
    if (parameters.isEmpty()) {
        return text;
    }
    QStringList assignments;
    for (auto it = parameters.begin(); it != parameters.end(); ++it) {
        if (!IsPlain(it.value())) {
            return text + QLatin1Char(':') + QString::fromUtf8(data);
        }
        assignments.append(it.key() + QLatin1Char('=') + ValueText(it.value()));
    }
    const QString joined = assignments.join(QLatin1Char(','));
    // A value may hold text that looks like another parameter.
    const bool isReadBack = SplitAll(joined).size() == assignments.size();
    return text + QLatin1Char(':') + (isReadBack ? joined : QString::fromUtf8(data));
}

QByteArray WithFormatOption(const QString& format, const QByteArray& options, const QString& text)
{
    QJsonObject object = QJsonDocument::fromJson(options).object();
    const QVector<ParameterSchema> schema = OptionsOf(format);
    try {
        const Assignment assignment = Split(text);
        object.insert(SpelledName(schema, assignment.name), ValueFor(schema, assignment));
    } catch (const RequestError& error) {
        throw error.In(Phrase::English("format %1").arg(format));
    }
    return Compact(object);
}

QString TypedValue(const QJsonValue& value)
{
    if (!value.isArray()) {
        return ValueText(value);
    }
    QStringList list;
    for (const QJsonValue element : value.toArray()) {
        QStringList numbers;
        for (const QJsonValue number : element.toArray()) {
            numbers.append(ValueText(number));
        }
        list.append(element.isArray() ? numbers.join(QLatin1Char(':')) : ValueText(element));
    }
    return list.isEmpty() ? QStringLiteral("none") : list.join(QLatin1Char('+'));
}

QStringList FormatOptionTexts(const QByteArray& options)
{
    const QJsonObject object = QJsonDocument::fromJson(options).object();
    QStringList texts;
    for (auto it = object.begin(); it != object.end(); ++it) {
        texts.append(it.key() + QLatin1Char('=') + TypedValue(it.value()));
    }
    return texts;
}

} // namespace BatchHost
