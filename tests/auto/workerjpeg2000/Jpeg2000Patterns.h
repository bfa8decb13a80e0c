// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Jpeg2000Maker.h"

#include <QPoint>

/// What tests write into JPEG 2000 files, and how it looks as a picture.
namespace Jpeg2000Patterns {

/// The value of a channel at a place of the picture.
using Pixel = std::function<double(int channel, int x, int y)>;

/// A pattern of whole numbers up to `largest`, which reaches both ends.
int Pattern(int channel, int x, int y, int largest);

/// `bits` a sample; signed samples are those of the same picture, with their least value for black.
Jpeg2000Maker::Plane PatternPlane(int channel, int bits, bool isSigned = false);
QVector<Jpeg2000Maker::Plane> PatternPlanes(int count, int bits, bool isSigned = false);

/// The pattern of `bits` as a picture with this largest value, which begins at `corner` of the reference grid.
Pixel PatternPixel(int bits, int largest, const QPoint& corner = {});

/// Slopes of luma and chroma.
double Luma(double x, double y);
double Blue(double x, double y);
double Red(double x, double y);

/// Luma in full, chroma `dx` by `dy` times smaller, each sample the mean of the pixels that it covers.
QVector<Jpeg2000Maker::Plane> YccPlanes(int dx, int dy, bool isSigned = false);

/// The slopes as RGB, by the numbers of ITU-R BT.601. Interpolation between samples gives them back.
Pixel YccPixel(const QPoint& corner = {});

} // namespace Jpeg2000Patterns
