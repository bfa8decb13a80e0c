// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Colours by name, the names of SVG.
namespace BatchJob {

/// "#rrggbb" for the colour `name`, such as "white" or "LightGrey"; "#00000000" for "transparent"; empty for a text
/// that names no colour.
QString ColourOfName(const QString& name);

/// The name that is nearest to `text`; empty if none is near.
QString NearestColourName(const QString& text);

} // namespace BatchJob
