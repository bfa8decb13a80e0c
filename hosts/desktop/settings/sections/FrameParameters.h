// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "BoundParameter.h"

/// The parameters of the frame, by subject.
namespace BatchDesktop {

QVector<BoundParameter> PlacementParameters();
QVector<BoundParameter> BackgroundParameters();
QVector<BoundParameter> ShadowParameters();

} // namespace BatchDesktop
