// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// Takes a text as the options of every format and as the parameters of every effect. What is accepted is complete, is
// accepted again without a change, and becomes valid options of every format that a picture may be written in.

#include "Require.h"

#include "job/effects/EffectCatalog.h"
#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"

#include "ZTBatchOutputSettings.h"

#include <QJsonDocument>

#include <cstdint>

using namespace BatchJob;

namespace {

QByteArray Json(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

void RequireComplete(const QJsonObject& values, const QVector<ParameterSchema>& schema)
{
    for (const ParameterSchema& parameter : schema) {
        Require(parameter.defaultValue.isUndefined() || values.contains(parameter.name));
    }
}

void RequireSettled(const CheckedParameters& checked)
{
    Require(checked.IsValid() || checked.values.isEmpty());
}

void CheckFormat(const QString& name, const QByteArray& text)
{
    const CheckedParameters checked = CheckFormatOptions(name, text);
    RequireSettled(checked);
    if (!checked.IsValid()) {
        return;
    }
    const CheckedParameters again = CheckFormatOptions(name, Json(checked.values));
    Require(again.IsValid() && again.values == checked.values);
    for (const FormatSchema& format : Formats()) {
        const QJsonObject options = OptionsFor(format, checked.values);
        RequireComplete(options, format.options);
        Require(OptionsFor(format, options) == options);
        const QJsonValue depth = options.value(QStringLiteral("bitDepth"));
        Require(!depth.isDouble() || format.bitDepths.contains(depth.toInt()));
        Require(!BitDepthsFor(format, options).isEmpty());
        Require(format.name != name || options == checked.values);
    }
}

void CheckEffectText(const EffectSchema& effect, const QByteArray& text)
{
    const CheckedParameters checked = CheckEffect(effect, text);
    RequireSettled(checked);
    if (!checked.IsValid()) {
        return;
    }
    RequireComplete(checked.values, effect.parameters);
    effect.NeedsRandomAccess(checked.values);
    const CheckedParameters again = CheckEffect(effect, Json(checked.values));
    Require(again.IsValid() && again.values == checked.values);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<int>(size));
    CheckFormat(ZTBatchOutputSettings::GetOriginalFormat(), text);
    for (const FormatSchema& format : Formats()) {
        CheckFormat(format.name, text);
    }
    for (const EffectSchema& effect : Effects()) {
        CheckEffectText(effect, text);
    }
    return 0;
}
