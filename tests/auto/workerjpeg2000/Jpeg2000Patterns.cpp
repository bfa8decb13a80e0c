// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Jpeg2000Patterns.h"

#include <algorithm>
#include <cmath>

using Jpeg2000Maker::Plane;

namespace Jpeg2000Patterns {

namespace {

int Largest(int bits)
{
    return (1 << bits) - 1;
}

// Where the middle of a cell is.
double Middle(int cell, int spacing)
{
    return cell * spacing + (spacing - 1) / 2.0;
}

} // namespace

int Pattern(int channel, int x, int y, int largest)
{
    return (x * (37 + 6 * channel) + y * (11 + 4 * channel) + x * y * (channel + 1)) % (largest + 1);
}

Plane PatternPlane(int channel, int bits, bool isSigned)
{
    return {[=](int x, int y) { return Pattern(channel, x, y, Largest(bits)) - (isSigned ? 1 << (bits - 1) : 0); },
            bits, isSigned};
}

QVector<Plane> PatternPlanes(int count, int bits, bool isSigned)
{
    QVector<Plane> planes;
    for (int channel = 0; channel < count; ++channel) {
        planes.append(PatternPlane(channel, bits, isSigned));
    }
    return planes;
}

Pixel PatternPixel(int bits, int largest, const QPoint& corner)
{
    return [=](int channel, int x, int y) {
        const int value = Pattern(channel, x + corner.x(), y + corner.y(), Largest(bits));
        return std::floor(double(value) * largest / Largest(bits) + 0.5);
    };
}

double Luma(double x, double y)
{
    return std::round(20 + 2.5 * x + 1.2 * y);
}

double Blue(double x, double y)
{
    return 128 + 0.7 * (x - 30) - 0.4 * (y - 20);
}

double Red(double x, double y)
{
    return 128 - 0.5 * (x - 30) + 0.6 * (y - 20);
}

QVector<Plane> YccPlanes(int dx, int dy, bool isSigned)
{
    const auto chroma = [=](double (*slope)(double, double)) {
        return
            [=](int x, int y) { return int(std::lround(slope(Middle(x, dx), Middle(y, dy)))) - (isSigned ? 128 : 0); };
    };
    return {{[](int x, int y) { return int(Luma(x, y)); }, 8, false},
            {chroma(Blue), 8, isSigned, dx, dy},
            {chroma(Red), 8, isSigned, dx, dy}};
}

Pixel YccPixel(const QPoint& corner)
{
    return [corner](int channel, int column, int line) {
        const int x = column + corner.x();
        const int y = line + corner.y();
        const double blue = Blue(x, y) - 128;
        const double red = Red(x, y) - 128;
        const double rgb[] = {Luma(x, y) + 1.402 * red, Luma(x, y) - 0.344136 * blue - 0.714136 * red,
                              Luma(x, y) + 1.772 * blue};
        return std::round(std::clamp(rgb[channel], 0.0, 255.0));
    };
}

} // namespace Jpeg2000Patterns
