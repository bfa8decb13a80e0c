// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

#include <array>

namespace BatchWorker {

/// What red, green and blue add to each of red, green and blue.
using ColourMatrix = std::array<std::array<double, 3>, 3>;

/// The matrix that leads from each colour by `amount` towards the one that `matrix` gives, or beyond.
ColourMatrix Towards(const ColourMatrix& matrix, double amount);

/// `picture`, RGB, with its colours multiplied by `matrix`.
Picture Multiplied(const Picture& picture, const ColourMatrix& matrix);

} // namespace BatchWorker
