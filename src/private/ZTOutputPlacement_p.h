// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMargins>
#include <QSize>
#include <QSizeF>
#include <QTransform>

/// The placement of a picture in a frame of its own size: the calculation behind
/// ZTBatchOutputSettings::CalculateOutputTransformation(). Usable on any thread.
///
/// Results of earlier jobs were placed by exactly these steps: do not change the operations or their order.
class ZTOutputPlacement
{
public:
    ZTOutputPlacement(const QSize& size, int angle, const QMargins& margins);

    /// The size in pixels at which the picture is drawn, before the rotation.
    QSize OutputSize() const { return outputSize; }

    /// From the picture's coordinates to the frame's.
    QTransform Transform() const { return transform; }

    /// The diagonal of the largest centred rectangle that fits into a box of `boxWidth` by `boxHeight` after a rotation
    /// by `angle` degrees, and has the aspect ratio of the box.
    static double FittedDiagonal(double boxWidth, double boxHeight, int angle);

private:
    QSizeF PictureSize() const;
    QSizeF UprightSize() const;
    QSizeF LyingSize() const;
    QSizeF TurnedSize() const;
    QTransform PlainRotation() const;
    QTransform ScaledPlacement(double pictureWidth) const;

    double FreeWidth() const;
    double FreeHeight() const;
    double AspectRatio() const;

    QSize size;
    int angle;
    QMargins margins;
    QSize outputSize;
    QTransform transform;
};
