#pragma once

#include "BoundParameter.h"

/// The parameters of the frame, by subject.
namespace BatchDesktop {

QVector<BoundParameter> PlacementParameters();
QVector<BoundParameter> BackgroundParameters();
QVector<BoundParameter> ShadowParameters();

} // namespace BatchDesktop
