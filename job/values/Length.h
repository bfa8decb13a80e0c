// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

/// Lengths of jobs in pixels.
namespace BatchJob {

/// `length` in pixels, not rounded, at `resolution` dots per inch. `unit` is a SizeUnit; pixels and percent, which are
/// no lengths on paper, stay as they are.
double PixelsOf(double length, int unit, int resolution);

/// Whether `unit` is a SizeUnit that needs a resolution: inches, centimetres or millimetres.
bool NeedsResolution(int unit);

} // namespace BatchJob
