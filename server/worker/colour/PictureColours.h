#pragma once

#include "server/worker/pixels/Picture.h"

#include <QColor>
#include <QStringList>

#include <vector>

/// Colours and pictures from elsewhere, brought into the space of the picture at work.
namespace BatchWorker {

/// Whether `picture` has one channel of light, not three.
bool IsGrey(const Picture& picture);

/// The largest value of a channel: 255, or 65535 at 16 bits.
double FullValue(const Picture& picture);

/// `picture` as RGB, of the same depth, with its alpha channel. A grey profile becomes sRGB; without one the grey
/// values stay what they are.
Picture ToRgb(const Picture& picture);

/// `other`, whose values are sRGB or grey with sRGB's tone curve, in the kind, depth and profile of `picture`. Its
/// alpha channel, straight, is kept. It brings no metadata along. Colour is lost when `picture` is grey. With a profile
/// that nothing can be converted to, the values stay, with a warning.
Picture InSpaceOf(const Picture& picture, const Picture& other, QStringList& warnings);

/// The values of `colour`, which is sRGB, in the colour channels of `picture`.
std::vector<double> ColourInSpaceOf(const Picture& picture, const QColor& colour, QStringList& warnings);

} // namespace BatchWorker
