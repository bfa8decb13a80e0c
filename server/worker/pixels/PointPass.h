// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Picture.h"
#include "PlanarOperation.h"
#include "ValueTables.h"

#include <variant>

namespace BatchWorker {

using PointOperation = std::variant<ValueTables, PlanarOperation>;

/// `picture` with its colours changed by `operation`. Alpha stays.
///
/// Where `picture` itself is such a result, one pass over the pixels does both operations, each rounded as if it were
/// alone: the values are the same, and the pixels go through memory once. The metadata is that of the picture at which
/// the pass begins.
Picture WithOperation(const Picture& picture, const PointOperation& operation);

} // namespace BatchWorker
