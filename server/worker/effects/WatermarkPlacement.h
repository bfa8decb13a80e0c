// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Overlay.h"

#include <QJsonObject>

/// The parameters that the two watermarks have in common.
namespace BatchWorker {

/// A length in pixels: `name` of `parameters` in their "unit", where percent are of `whole`.
double LengthIn(const QJsonObject& parameters, const char* name, double whole);

/// Lays `mark` over `picture` as the "position", "margin", "unit", "opacity" and "tile" of `parameters` say. Of two
/// rows or columns that are equally near to the centre the upper or left one counts. Tiles repeat the mark in its place
/// in all directions, the margin apart.
Picture Watermarked(const Picture& picture, const Overlay& mark, const QJsonObject& parameters);

} // namespace BatchWorker
