#include "Catalogues.h"

#include "hosts/cli/options/HelpTexts.h"
#include "hosts/cli/options/Words.h"
#include "job/effects/EffectCatalog.h"
#include "job/formats/FormatCatalog.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace BatchJob;

namespace BatchCli {

namespace {

using BatchJob::EffectSchema;
using BatchJob::FormatSchema;
using BatchJob::ParameterSchema;
using BatchJob::ParameterType;

constexpr int columns = 100;

const QString& NameOf(const EffectSchema& effect)
{
    return effect.id;
}

const QString& NameOf(const FormatSchema& format)
{
    return format.name;
}

template<typename Schema>
QVector<Schema> Pick(const QVector<Schema>& all, const QStringList& names)
{
    QVector<Schema> picked;
    for (const QString& name : names) {
        QStringList known;
        for (const Schema& schema : all) {
            known.append(NameOf(schema));
            if (NameOf(schema).compare(name, Qt::CaseInsensitive) == 0) {
                picked.append(schema);
                known.clear();
                break;
            }
        }
        if (!known.isEmpty()) {
            throw NoSuchWord(name, known);
        }
    }
    return names.isEmpty() ? all : picked;
}

QString DefaultText(const ParameterSchema& parameter)
{
    if (parameter.defaultValue.isNull()) {
        return QStringLiteral("required");
    }
    if (parameter.defaultValue.isUndefined()) {
        return QStringLiteral("optional");
    }
    if (parameter.defaultValue.isString()) {
        const QString text = parameter.defaultValue.toString();
        return QStringLiteral("default ") + (text.isEmpty() ? QStringLiteral("\"\"") : text);
    }
    const QByteArray wrapped = QJsonDocument(QJsonArray{parameter.defaultValue}).toJson(QJsonDocument::Compact);
    return QStringLiteral("default ") + QString::fromUtf8(wrapped.mid(1, wrapped.size() - 2));
}

QString ParameterListing(const QVector<ParameterSchema>& parameters)
{
    QString text;
    for (const ParameterSchema& parameter : parameters) {
        const QString line =
            QStringLiteral("%1: %2; %3, %4")
                .arg(parameter.name, parameter.description, BatchJob::AllowedValues(parameter), DefaultText(parameter));
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

} // namespace

QString EffectListing(const QStringList& names)
{
    QString text;
    for (const EffectSchema& effect : Pick(BatchJob::Effects(), names)) {
        text += effect.id + QLatin1Char('\n') + QStringLiteral("  ") + Wrapped(effect.description, 2, columns) +
                QLatin1Char('\n') + ParameterListing(effect.parameters);
    }
    return text;
}

QString EffectJson(const QStringList& names)
{
    QJsonArray array;
    for (const EffectSchema& effect : Pick(BatchJob::Effects(), names)) {
        array.append(QJsonObject{{QStringLiteral("name"), effect.id},
                                 {QStringLiteral("description"), effect.description},
                                 {QStringLiteral("parameters"), ParametersJson(effect.parameters)}});
    }
    return JsonText(array);
}

QString FormatListing(const QStringList& names)
{
    QString text;
    for (const FormatSchema& format : Pick(BatchJob::Formats(), names)) {
        text += QStringLiteral("%1 (.%2)\n  %3 bits a channel; transparency: %4; CMYK: %5; longest side %6 pixels\n")
                    .arg(format.name, format.extensions.join(QStringLiteral(", .")), DepthsText(format),
                         format.holdsTransparency ? QStringLiteral("yes") : QStringLiteral("no"),
                         format.holdsCmyk ? QStringLiteral("yes") : QStringLiteral("no"))
                    .arg(format.longestSide);
        text += QStringLiteral("  ") + format.description + QLatin1Char('\n') + ParameterListing(format.options);
    }
    if (names.isEmpty()) {
        text += QStringLiteral("Original\n  the format of each input\n\nFiles that can be read: ") +
                Wrapped(BatchJob::ReadableExtensions().join(QStringLiteral(", ")), 2, columns) + QLatin1Char('\n');
    }
    return text;
}

QString FormatJson(const QStringList& names)
{
    QJsonArray array;
    for (const FormatSchema& format : Pick(BatchJob::Formats(), names)) {
        QJsonArray depths;
        for (const int depth : format.bitDepths) {
            depths.append(depth);
        }
        array.append(QJsonObject{{QStringLiteral("name"), format.name},
                                 {QStringLiteral("description"), format.description},
                                 {QStringLiteral("extensions"), QJsonArray::fromStringList(format.extensions)},
                                 {QStringLiteral("transparency"), format.holdsTransparency},
                                 {QStringLiteral("cmyk"), format.holdsCmyk},
                                 {QStringLiteral("bitDepths"), depths},
                                 {QStringLiteral("longestSide"), format.longestSide},
                                 {QStringLiteral("options"), ParametersJson(format.options)}});
    }
    return JsonText(array);
}

} // namespace BatchCli
