// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "BoundParameter.h"

namespace BatchDesktop {

/// The parts of names, what separates them, and the folders of results.
QVector<BoundParameter> NameParameters();

} // namespace BatchDesktop
