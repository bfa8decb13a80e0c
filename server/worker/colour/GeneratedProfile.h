// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CodedColours.h"

#include <QByteArray>

/// ICC profiles that are made here. One that is made twice has the same bytes both times. Empty where none can be made.
namespace BatchWorker {

/// The RGB profile of these `primaries` and this curve, and the grey one of this curve.
QByteArray ProfileOf(const Primaries& primaries, const ToneCurve& curve);
QByteArray GreyProfileOf(const ToneCurve& curve);

/// The grey profile for values that `rgb`, a profile of RGB, would show as grey with red, green and blue alike.
QByteArray GreyProfileFor(const QByteArray& rgb);

/// The RGB profile that shows red, green and blue alike as `grey`, a profile of grey, shows that value. Other colours
/// are those of the primaries of sRGB.
QByteArray RgbProfileFor(const QByteArray& grey);

/// The colours of `profile`, RGB or grey, with the curve of sRGB. A profile of tables becomes sRGB.
QByteArray WithSrgbCurve(const QByteArray& profile);

/// Whether the values of `profile`, RGB or grey, are proportional to light, or nearly so: 8 bits a channel are too few
/// for that.
bool IsNearlyLinear(const QByteArray& profile);

} // namespace BatchWorker
