#pragma once

#include <QMargins>
#include <QSize>
#include <QSizeF>
#include <QTransform>

/// Where a picture stands in a frame of its own size: the arithmetic behind
/// ZTBatchOutputSettings::CalculateOutputTransformation(). Made and read on any thread.
///
/// Previews and results of past jobs were placed by exactly these steps, so each keeps its operations and their order.
class ZTOutputPlacement
{
public:
    ZTOutputPlacement(const QSize& size, int angle, const QMargins& margins);

    /// The size that the picture is drawn in, before it is turned, in whole pixels.
    QSize OutputSize() const { return outputSize; }

    /// From the picture's coordinates to the frame's.
    QTransform Transform() const { return transform; }

    /// The diagonal of the largest rectangle that fits, turned by `angle` degrees and centred, into a box of
    /// `boxWidth` by `boxHeight` whose own aspect ratio the rectangle has.
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
