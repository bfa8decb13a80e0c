// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/effects/CubeFile.h"
#include "server/worker/pixels/PointPass.h"

#include <memory>

/// Colours between the entries of a table. A colour outside the table's domain counts as the nearest one inside.
namespace BatchWorker {

using SharedCube = std::shared_ptr<const BatchJob::CubeTable>;

/// Of a table of one dimension: each channel by itself, on the straight line between two entries. `value` is 0 to 1.
double CurveAt(const BatchJob::CubeTable& table, std::size_t channel, double value);

/// The operations lead by `strength`, 0 to 1, towards the colour of a table of three dimensions. Its values need one
/// more number behind the last: entries are read four numbers at a time.
///
/// The mean of the eight corners around the colour, weighted along each axis.
PlanarOperation Trilinear(const SharedCube& table, double strength);

/// From the dark to the light corner along the axes, the greatest share first, so that four corners count. Greys on the
/// diagonal depend on the entries of the diagonal only.
PlanarOperation Tetrahedral(const SharedCube& table, double strength);

} // namespace BatchWorker
