// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"
#include "server/worker/pixels/Picture.h"

#include <QColor>

#include <vector>

/// Colours and pictures from elsewhere, brought into the space of the picture at work. Warnings, for users, are
/// appended to the list given.
namespace BatchWorker {

/// Whether `colour` is not a grey.
bool HasColour(const QColor& colour);

/// Whether any visible pixel of `image`, sRGB of 8 bits, has a colour other than grey.
bool HasColour(const Picture& image);

/// `picture` as RGB, of the same depth, with its alpha channel. Grey values of a profile become those of sRGB, whose
/// profile the result then carries; without one the grey values stay what they are.
Picture AsRgb(const Picture& picture);

/// `other`, whose values are sRGB or grey with sRGB's tone curve, in the channels, depth and profile of `picture`. Its
/// alpha channel, straight, is kept. It brings no metadata along. Colour is lost when `picture` is grey. With a profile
/// that nothing can be converted to, the values stay, with a warning.
Picture InSpaceOf(const Picture& picture, const Picture& other, BatchJob::Warnings& warnings);

/// The values of `colour`, which is sRGB, in the colour channels of `picture`. Values that the profile of `picture`
/// changes by at most two of 255 steps, which is what rounding does, stay as they are.
std::vector<double> ColourInSpaceOf(const Picture& picture, const QColor& colour, BatchJob::Warnings& warnings);

/// A picture that can hold a colour, and the colour in its values, one for each band.
struct PaintablePicture
{
    Picture picture;
    std::vector<double> paint;
};

/// Makes `picture` able to hold `colour`, which is sRGB: a grey one becomes RGB when the colour is not grey, and one
/// without alpha gets it when the colour is not opaque.
PaintablePicture PaintableWith(const QColor& colour, const Picture& picture);

} // namespace BatchWorker
