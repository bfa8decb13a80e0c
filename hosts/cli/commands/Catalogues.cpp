// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Catalogues.h"

#include "hosts/cli/options/TextLayout.h"
#include "hosts/common/Language.h"
#include "hosts/common/options/FormatNames.h"
#include "hosts/common/options/ParameterTexts.h"
#include "hosts/common/options/Words.h"
#include "job/effects/EffectCatalog.h"
#include "job/formats/FormatCatalog.h"
#include "job/values/Phrase.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace BatchHost;
using namespace BatchJob;

namespace BatchCli {

namespace {

using BatchJob::EffectSchema;
using BatchJob::FormatSchema;
using BatchJob::ParameterSchema;
using BatchJob::ParameterType;

constexpr int columns = 100;

const QString originalDescription = Phrase::English("the format of each input");

QVector<EffectSchema> PickEffects(const QStringList& names)
{
    QVector<EffectSchema> picked;
    for (const QString& name : names) {
        const EffectSchema* const effect = FindEffect(name.toLower());
        if (effect == nullptr) {
            QStringList known;
            for (const EffectSchema& schema : Effects()) {
                known.append(schema.id);
            }
            throw NoSuchWord(name, known);
        }
        picked.append(*effect);
    }
    return names.isEmpty() ? Effects() : picked;
}

/// The names as the catalogue spells them; all of them, with the original format last, if `names` is empty.
QStringList PickFormats(const QStringList& names)
{
    QStringList picked;
    for (const QString& name : names) {
        picked.append(FormatName(name));
    }
    if (names.isEmpty()) {
        picked = FormatNames();
        picked.append(picked.takeFirst());
    }
    return picked;
}

QString DefaultText(const ParameterSchema& parameter)
{
    if (parameter.defaultValue.isNull()) {
        return Messages::tr("required");
    }
    if (parameter.defaultValue.isUndefined()) {
        return Messages::tr("optional");
    }
    const QString text = TypedValue(parameter.defaultValue);
    return Messages::tr("default %1").arg(text.isEmpty() ? QStringLiteral("\"\"") : text);
}

QString ParameterListing(const QVector<ParameterSchema>& parameters)
{
    QString text;
    for (const ParameterSchema& parameter : parameters) {
        const QString line = QStringLiteral("%1: %2; %3, %4")
                                 .arg(parameter.name, Translated(parameter.description),
                                      Translated(BatchJob::AllowedTexts(parameter)), DefaultText(parameter));
        text += QStringLiteral("    ") + Wrapped(line, 6, columns) + QLatin1Char('\n');
    }
    return text;
}

QString TypeName(ParameterType type)
{
    switch (type) {
    case ParameterType::Number:
        return QStringLiteral("number");
    case ParameterType::Integer:
        return QStringLiteral("integer");
    case ParameterType::Truth:
        return QStringLiteral("boolean");
    case ParameterType::Choice:
        return QStringLiteral("choice");
    case ParameterType::ChoiceList:
        return QStringLiteral("choices");
    case ParameterType::Colour:
        return QStringLiteral("colour");
    case ParameterType::Text:
        return QStringLiteral("text");
    case ParameterType::File:
        return QStringLiteral("file");
    case ParameterType::Points:
        return QStringLiteral("points");
    }
    return {};
}

QJsonArray ParametersJson(const QVector<ParameterSchema>& parameters)
{
    QJsonArray array;
    for (const ParameterSchema& parameter : parameters) {
        QJsonObject object{{QStringLiteral("name"), parameter.name},
                           {QStringLiteral("type"), TypeName(parameter.type)},
                           {QStringLiteral("description"), parameter.description},
                           {QStringLiteral("required"), parameter.defaultValue.isNull()}};
        if (!parameter.defaultValue.isNull() && !parameter.defaultValue.isUndefined()) {
            object.insert(QStringLiteral("default"), parameter.defaultValue);
        }
        if (parameter.minimum != parameter.maximum) {
            object.insert(QStringLiteral("minimum"), parameter.minimum);
            object.insert(QStringLiteral("maximum"), parameter.maximum);
        }
        if (!parameter.unit.isEmpty()) {
            object.insert(QStringLiteral("unit"), parameter.unit);
        }
        if (!parameter.choices.isEmpty()) {
            object.insert(QStringLiteral("choices"), QJsonArray::fromStringList(parameter.choices));
        }
        array.append(object);
    }
    return array;
}

QString JsonText(const QJsonArray& array)
{
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Indented));
}

QString DepthsText(const FormatSchema& format)
{
    QStringList depths;
    for (const int depth : format.bitDepths) {
        depths.append(QString::number(depth));
    }
    return depths.join(QStringLiteral(", "));
}

QString YesOrNo(bool value)
{
    return value ? Messages::tr("yes") : Messages::tr("no");
}

QString ListingOf(const FormatSchema& format)
{
    const QString text = Messages::tr("%1 bits a channel; transparency: %2; CMYK: %3; longest side %4 pixels")
                             .arg(DepthsText(format), YesOrNo(format.holdsTransparency), YesOrNo(format.holdsCmyk),
                                  QString::number(format.longestSide));
    return QStringLiteral("%1 (.%2)\n  %3\n  %4\n")
               .arg(format.name, format.extensions.join(QStringLiteral(", .")), text, Translated(format.description)) +
           ParameterListing(format.options);
}

QJsonObject JsonOf(const FormatSchema& format)
{
    QJsonArray depths;
    for (const int depth : format.bitDepths) {
        depths.append(depth);
    }
    return {{QStringLiteral("name"), format.name},
            {QStringLiteral("description"), format.description},
            {QStringLiteral("extensions"), QJsonArray::fromStringList(format.extensions)},
            {QStringLiteral("transparency"), format.holdsTransparency},
            {QStringLiteral("cmyk"), format.holdsCmyk},
            {QStringLiteral("bitDepths"), depths},
            {QStringLiteral("longestSide"), format.longestSide},
            {QStringLiteral("options"), ParametersJson(format.options)}};
}

} // namespace

QString EffectListing(const QStringList& names)
{
    QString text;
    for (const EffectSchema& effect : PickEffects(names)) {
        text += effect.id + QLatin1Char('\n') + QStringLiteral("  ") +
                Wrapped(Translated(effect.description), 2, columns) + QLatin1Char('\n') +
                ParameterListing(effect.parameters);
    }
    return text;
}

QString EffectJson(const QStringList& names)
{
    QJsonArray array;
    for (const EffectSchema& effect : PickEffects(names)) {
        array.append(QJsonObject{{QStringLiteral("name"), effect.id},
                                 {QStringLiteral("description"), effect.description},
                                 {QStringLiteral("parameters"), ParametersJson(effect.parameters)}});
    }
    return JsonText(array);
}

QString FormatListing(const QStringList& names)
{
    QString text;
    for (const QString& name : PickFormats(names)) {
        const FormatSchema* const format = FindFormat(name);
        text += format == nullptr ? QStringLiteral("%1\n  %2\n").arg(name, Translated(originalDescription))
                                  : ListingOf(*format);
    }
    if (names.isEmpty()) {
        const QString extensions = BatchJob::ReadableExtensions().join(QStringLiteral(", "));
        text += QLatin1Char('\n') + Wrapped(Messages::tr("Files that can be read: %1").arg(extensions), 2, columns) +
                QLatin1Char('\n');
    }
    return text;
}

QString FormatJson(const QStringList& names)
{
    QJsonArray array;
    for (const QString& name : PickFormats(names)) {
        const FormatSchema* const format = FindFormat(name);
        if (format != nullptr) {
            array.append(JsonOf(*format));
        } else if (!names.isEmpty()) {
            array.append(
                QJsonObject{{QStringLiteral("name"), name}, {QStringLiteral("description"), originalDescription}});
        }
    }
    return JsonText(array);
}

} // namespace BatchCli
