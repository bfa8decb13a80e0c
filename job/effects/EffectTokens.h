// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "EffectCatalog.h"

#include "job/tokens/TokenTable.h"
#include "job/tokens/TokenValues.h"

/// Texts with tokens in the parameters of effects. Parameters are complete.
namespace BatchJob {

/// Why a text with tokens is refused, with the name of its parameter; empty if all are accepted.
QString TokenProblem(const EffectSchema& effect, const QJsonObject& parameters);

/// Whether a text in `parameters`, which have no TokenProblem(), has `token`.
bool UsesToken(const EffectSchema& effect, const QJsonObject& parameters, Token token);

/// `parameters`, which have no TokenProblem(), with `values` in the places of their tokens.
QJsonObject WithTokens(const EffectSchema& effect, const QJsonObject& parameters, const TokenValues& values);

} // namespace BatchJob
