// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatOptions.h"

#include "job/values/Phrase.h"

#include "ByteLimit.h"
#include "FormatCatalog.h"

#include "ZTBatchOutputSettings.h"

#include <algorithm>

namespace BatchJob {

namespace {

const QString& BitDepthName()
{
    static const QString name = QStringLiteral("bitDepth");
    return name;
}

// Without defaults: those of each picture's format are filled in later.
QVector<ParameterSchema> OptionsOfAllFormats()
{
    QVector<ParameterSchema> options;
    for (const FormatSchema& format : Formats()) {
        for (const ParameterSchema& option : format.options) {
            const auto isThere = std::any_of(options.begin(), options.end(), [&option](const ParameterSchema& known) {
                return known.name == option.name;
            });
            if (!isThere) {
                options.append(option);
                options.last().defaultValue = QJsonValue(QJsonValue::Undefined);
            }
        }
    }
    return options;
}

QString DepthError(const FormatSchema& format, int depth)
{
    QStringList depths;
    for (const int known : format.bitDepths) {
        depths.append(QString::number(known));
    }
    return Phrase::English("\"bitDepth\" is %1; %2 takes %3")
        .arg(depth)
        .arg(format.name, depths.join(QStringLiteral(", ")));
}

CheckedParameters WithinLimit(const CheckedParameters& checked)
{
    const QString error = ByteLimitError(checked.values);
    return error.isEmpty() ? checked : CheckedParameters{{}, error};
}

CheckedParameters CheckOptionsOfOriginals(const QByteArray& options)
{
    CheckedParameters checked = CheckParameters(OptionsOfAllFormats(), options);
    const QJsonValue depth = checked.values.value(BitDepthName());
    const auto isKnown = std::any_of(Formats().begin(), Formats().end(), [&depth](const FormatSchema& format) {
        return format.bitDepths.contains(depth.toInt());
    });
    if (depth.isDouble() && !isKnown) {
        return {{}, Phrase::English("\"bitDepth\" is %1; it must be 8, 10, 12 or 16").arg(depth.toInt())};
    }
    return WithinLimit(checked);
}

} // namespace

QVector<ParameterSchema> OptionsTakenBy(const QString& format)
{
    if (format == ZTBatchOutputSettings::GetOriginalFormat()) {
        return OptionsOfAllFormats();
    }
    const FormatSchema* const schema = FindFormat(format);
    return schema ? schema->options : QVector<ParameterSchema>();
}

CheckedParameters CheckFormatOptions(const QString& format, const QByteArray& options)
{
    if (format == ZTBatchOutputSettings::GetOriginalFormat()) {
        return CheckOptionsOfOriginals(options);
    }
    const FormatSchema* schema = FindFormat(format);
    if (!schema) {
        return {{}, Phrase::English("the format \"%1\" is unknown").arg(format)};
    }
    CheckedParameters checked = CheckParameters(schema->options, options);
    const QJsonValue depth = checked.values.value(BitDepthName());
    if (depth.isDouble() && !schema->bitDepths.contains(depth.toInt())) {
        return {{}, DepthError(*schema, depth.toInt())};
    }
    if (depth.isDouble() && !BitDepthsFor(*schema, checked.values).contains(depth.toInt())) {
        return {{}, Phrase::English("\"bitDepth\" is %1; \"compression\" jpeg takes 8").arg(depth.toInt())};
    }
    return WithinLimit(checked);
}

QJsonObject OptionsFor(const FormatSchema& format, const QJsonObject& accepted)
{
    QJsonObject own;
    for (const ParameterSchema& option : format.options) {
        const auto found = accepted.constFind(option.name);
        if (found != accepted.constEnd()) {
            own.insert(option.name, *found);
        }
    }
    const auto depth = own.find(BitDepthName());
    if (depth != own.end()) {
        const int wanted = depth->toInt();
        const auto above = std::upper_bound(format.bitDepths.begin(), format.bitDepths.end(), wanted);
        *depth = above == format.bitDepths.begin() ? format.bitDepths.first() : *std::prev(above);
    }
    return CheckParameters(format.options, own).values;
}

QVector<int> BitDepthsFor(const FormatSchema& format, const QJsonObject& options)
{
    const bool isCompressedAsJpeg = options.value(QStringLiteral("compression")) == QStringLiteral("jpeg");
    return isCompressedAsJpeg ? QVector<int>{8} : format.bitDepths;
}

int QualityUsed(const QJsonObject& complete)
{
    const QString compression = complete[QLatin1String("compression")].toString();
    const bool usesQuality = compression.isEmpty() || compression == QLatin1String("jpeg");
    const bool isLossless = complete[QLatin1String("lossless")].toBool();
    return usesQuality && !isLossless ? complete[QLatin1String("quality")].toInt() : 0;
}

} // namespace BatchJob
