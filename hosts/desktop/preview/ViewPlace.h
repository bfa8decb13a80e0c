// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace BatchDesktop {

/// How large a picture is shown.
enum class ViewZoom {
    Fit,   ///< all of it, not enlarged
    Exact, ///< one pixel of the picture on one pixel of the screen
    Double
};

/// Which part of a picture a view shows, and where. Views that share it show the same part. All lengths are pixels: of
/// the picture, or of the screen.
class ViewPlace
{
public:
    ViewZoom Zoom() const { return zoom; }
    void SetZoom(ViewZoom wanted) { zoom = wanted; }

    /// The picture and the screen's part for it have these sizes from now on. The same part of the picture stays in the
    /// middle.
    void SetSizes(const QSizeF& picture, const QSizeF& screen);

    /// Pixels of the screen for each of the picture.
    double Scale() const;

    /// Where the picture is on the screen; whole pixels.
    QRectF Target() const;

    /// Moves the picture on the screen, as far as that shows more of it.
    void Move(const QPointF& way);

private:
    ViewZoom zoom = ViewZoom::Fit;
    QSizeF picture;
    QSizeF screen;
    QPointF middle{0.5, 0.5}; ///< what is in the middle of the screen, as a part of the picture's size
};

} // namespace BatchDesktop
