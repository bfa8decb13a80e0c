// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectTokens.h"

#include "job/tokens/TokenText.h"

#include <algorithm>

namespace BatchJob {

namespace {

QStringList NamesOf(const EffectSchema& effect, const QJsonObject& parameters)
{
    return effect.tokenParameters ? effect.tokenParameters(parameters) : QStringList();
}

} // namespace

QString TokenProblem(const EffectSchema& effect, const QJsonObject& parameters)
{
    for (const QString& name : NamesOf(effect, parameters)) {
        const TokenText text(parameters[name].toString());
        if (!text.IsValid()) {
            return QStringLiteral("%1: %2").arg(name, text.Error());
        }
    }
    return {};
}

bool UsesToken(const EffectSchema& effect, const QJsonObject& parameters, Token token)
{
    const QStringList names = NamesOf(effect, parameters);
    return std::any_of(names.begin(), names.end(), [&parameters, token](const QString& name) {
        return TokenText(parameters[name].toString()).Uses(token);
    });
}

QJsonObject WithTokens(const EffectSchema& effect, const QJsonObject& parameters, const TokenValues& values)
{
    QJsonObject filled = parameters;
    for (const QString& name : NamesOf(effect, parameters)) {
        filled[name] = TokenText(parameters[name].toString()).Filled(values);
    }
    return filled;
}

} // namespace BatchJob
