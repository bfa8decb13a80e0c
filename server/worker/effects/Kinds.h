#pragma once

#include "server/worker/pixels/Picture.h"

#include <QColor>
#include <QString>

#include <vector>

/// Grey and RGB pictures, and colours for them.
namespace BatchWorker {

/// `picture` as an RGB picture of the same depth, alpha kept. A grey one is converted by its profile, after which it
/// carries an sRGB profile; without a profile its values are repeated.
Picture AsRgb(const Picture& picture);

/// `picture` with an alpha channel, opaque where it is new.
Picture WithAlpha(const Picture& picture);

/// The colour that "#rrggbb" or "#rrggbbaa" stands for.
QColor ColourOf(const QString& text);

/// A picture that can hold a colour, and the colour in its values, one for each band.
struct Painted
{
    Picture picture;
    std::vector<double> ink;
};

/// Makes `picture` able to hold `colour`, of sRGB: a grey one becomes RGB when the colour is not
/// grey, and one without alpha gets it when the colour is not opaque. The ink is the colour in the picture's own
/// profile; one that differs by at most two of 255 steps is taken as written.
Painted PaintedFor(const Picture& picture, const QColor& colour);

/// `pixels`, 8 bits sRGB with or without alpha, in the profile that `picture`, which is RGB, carries.
Picture InProfileOf(const Picture& picture, const Picture& pixels);

} // namespace BatchWorker
