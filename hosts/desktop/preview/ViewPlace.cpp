// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ViewPlace.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace BatchDesktop {

namespace {

/// The nearest to `place` that leaves no room beside a picture of `shown` pixels on a screen of `room`.
double Bounded(double place, double shown, double room)
{
    const double margin = shown > room ? room / shown / 2 : 0.5;
    return std::clamp(place, margin, 1 - margin);
}

} // namespace

void ViewPlace::SetSizes(const QSizeF& newPicture, const QSizeF& newScreen)
{
    picture = newPicture;
    screen = newScreen;
}

double ViewPlace::Scale() const
{
    if (zoom == ViewZoom::Double) {
        return 2;
    }
    if (zoom == ViewZoom::Exact || picture.isEmpty()) {
        return 1;
    }
    return std::min({1.0, screen.width() / picture.width(), screen.height() / picture.height()});
}

QRectF ViewPlace::Target() const
{
    const QSizeF shown = picture * Scale();
    const double x = Bounded(middle.x(), shown.width(), screen.width());
    const double y = Bounded(middle.y(), shown.height(), screen.height());
    return {std::round(screen.width() / 2 - x * shown.width()), std::round(screen.height() / 2 - y * shown.height()),
            std::round(shown.width()), std::round(shown.height())};
}

void ViewPlace::Move(const QPointF& way)
{
    const QSizeF shown = picture * Scale();
    if (shown.isEmpty()) {
        return;
    }
    middle = {Bounded(middle.x() - way.x() / shown.width(), shown.width(), screen.width()),
              Bounded(middle.y() - way.y() / shown.height(), shown.height(), screen.height())};
}

} // namespace BatchDesktop
