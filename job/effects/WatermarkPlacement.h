// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/ParameterSchema.h"

/// What the two watermarks have in common: where their mark goes, how large and how strong it is.
namespace BatchJob {

/// "size", which `size` describes, "margin", "unit", "opacity", "position" and "tile".
QVector<ParameterSchema> PlacementParameters(double standardSize, const char* size, double standardOpacity);

/// What the schema of these parameters alone cannot say: the reason why they are refused, or nothing.
QString PlacementProblem(const QJsonObject& parameters);

} // namespace BatchJob
