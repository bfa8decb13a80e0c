// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

#include <QSize>
#include <QTransform>

#include <vector>

/// Effects straight from their definitions, pixel by pixel and in double precision.
namespace SlowEffects {

/// The values of a picture, or exact ones.
struct Pixels
{
    explicit Pixels(const BatchWorker::Picture& picture);

    double& At(int x, int y, int band) { return values[std::size_t((y * width + x) * bands + band)]; }
    /// Beyond its edges a picture goes on as there.
    double Near(int x, int y, int band) const;
    /// The share of the pixel that counts.
    double Opacity(int x, int y) const;
    int Colours() const { return hasAlpha ? bands - 1 : bands; }

    int width;
    int height;
    int bands;
    bool hasAlpha;
    double largest;
    std::vector<double> values;
};

Pixels Blurred(const Pixels& pixels, double sigma);

/// `amount` and `threshold` as shares of 1.
Pixels Sharpened(const Pixels& pixels, const Pixels& blurred, double amount, double threshold);
Pixels Clarified(const Pixels& pixels, const Pixels& blurred, double amount);
Pixels Denoised(const Pixels& pixels, double strength, double sigma);

/// Cubic interpolation at steps of 1/64 of a pixel.
Pixels Turned(const Pixels& pixels, const QTransform& toPicture, const QSize& canvas);

} // namespace SlowEffects
