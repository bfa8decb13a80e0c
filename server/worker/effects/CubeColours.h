// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/effects/CubeFile.h"

#include <array>

/// Colours between the entries of a table. A colour outside the table's domain counts as the nearest one inside.
namespace BatchWorker {

/// Of a table of one dimension: each channel by itself, on the straight line between two entries.
std::array<double, 3> CurvesAt(const BatchJob::CubeTable& table, const std::array<double, 3>& colour);

/// Of a table of three dimensions: the mean of the eight corners around the colour, weighted along each axis.
std::array<double, 3> TrilinearAt(const BatchJob::CubeTable& table, const std::array<double, 3>& colour);

/// Of a table of three dimensions: from the dark to the light corner along the axes, the greatest share first, so that
/// four corners count. Greys on the diagonal depend on the entries of the diagonal only.
std::array<double, 3> TetrahedralAt(const BatchJob::CubeTable& table, const std::array<double, 3>& colour);

} // namespace BatchWorker
