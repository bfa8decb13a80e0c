// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SlowEffects.h"

#include "TestPictures.h"

#include <algorithm>
#include <cmath>

namespace SlowEffects {

namespace {

/// A weighted mean of pixels, colours by their opacity.
class Mean
{
public:
    Mean(const Pixels& pixels, bool weighsOpacityOnly)
        : pixels(pixels)
        , weighsOpacityOnly(weighsOpacityOnly)
        , sums(std::size_t(pixels.bands))
    {
    }

    void Add(int x, int y, double weight)
    {
        const double opacity = pixels.Opacity(x, y);
        for (int band = 0; band < pixels.Colours(); ++band) {
            sums[std::size_t(band)] += weight * opacity * pixels.Near(x, y, band);
        }
        opacities += weight * opacity;
        weights += weight;
    }

    double Colour(int band, double otherwise) const
    {
        return opacities != 0.0 ? sums[std::size_t(band)] / opacities : otherwise;
    }

    double Alpha() const { return opacities / (weighsOpacityOnly ? 1.0 : weights) * pixels.largest; }

private:
    const Pixels& pixels;
    bool weighsOpacityOnly;
    std::vector<double> sums;
    double opacities = 0.0;
    double weights = 0.0;
};

double LumaOf(const Pixels& pixels, int x, int y)
{
    return pixels.bands < 3
               ? pixels.Near(x, y, 0)
               : 0.2126 * pixels.Near(x, y, 0) + 0.7152 * pixels.Near(x, y, 1) + 0.0722 * pixels.Near(x, y, 2);
}

double Cubic(double distance)
{
    const double d = std::abs(distance);
    if (d < 1.0) {
        return 1.5 * d * d * d - 2.5 * d * d + 1.0;
    }
    return d < 2.0 ? -0.5 * d * d * d + 2.5 * d * d - 4.0 * d + 2.0 : 0.0;
}

} // namespace

Pixels::Pixels(const BatchWorker::Picture& picture)
    : width(picture.width())
    , height(picture.height())
    , bands(picture.bands())
    , hasAlpha(picture.has_alpha())
    , largest(picture.format() == VIPS_FORMAT_USHORT ? 65535.0 : 255.0)
{
    const QVector<int> samples = ValuesOf(picture);
    values.assign(samples.begin(), samples.end());
}

double Pixels::Near(int x, int y, int band) const
{
    const int row = std::clamp(y, 0, height - 1);
    return values[std::size_t((row * width + std::clamp(x, 0, width - 1)) * bands + band)];
}

double Pixels::Opacity(int x, int y) const
{
    return hasAlpha ? Near(x, y, bands - 1) / largest : 1.0;
}

Pixels Blurred(const Pixels& pixels, double sigma)
{
    // Rows first, then columns: both weigh by opacity, so the order does not matter.
    Pixels result = pixels;
    const int radius = int(3.0 * sigma);
    std::vector<double> rows(pixels.values.size());
    const auto weight = [sigma](int distance) { return std::exp(-distance * distance / (2.0 * sigma * sigma)); };
    double all = 0.0;
    for (int distance = -radius; distance <= radius; ++distance) {
        all += weight(distance);
    }
    const auto premultiplied = [&](int x, int y, int band) {
        return pixels.Near(x, y, band) * (band < pixels.Colours() ? pixels.Opacity(x, y) : 1.0);
    };
    const auto index = [&](int x, int y, int band) {
        return std::size_t((y * pixels.width + x) * pixels.bands + band);
    };
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x) {
            for (int band = 0; band < pixels.bands; ++band) {
                for (int distance = -radius; distance <= radius; ++distance) {
                    rows[index(x, y, band)] += weight(distance) / all * premultiplied(x + distance, y, band);
                }
            }
        }
    }
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x) {
            for (int band = 0; band < pixels.bands; ++band) {
                double sum = 0.0;
                for (int distance = -radius; distance <= radius; ++distance) {
                    const int row = std::clamp(y + distance, 0, pixels.height - 1);
                    sum += weight(distance) / all * rows[index(x, row, band)];
                }
                result.At(x, y, band) = sum;
            }
            const double opacity = result.Opacity(x, y);
            for (int band = 0; band < pixels.Colours(); ++band) {
                result.At(x, y, band) = opacity > 0.0 ? result.At(x, y, band) / opacity : 0.0;
            }
        }
    }
    return result;
}

Pixels Sharpened(const Pixels& pixels, const Pixels& blurred, double amount, double threshold)
{
    Pixels result = pixels;
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x) {
            for (int band = 0; band < pixels.Colours(); ++band) {
                const double difference = pixels.Near(x, y, band) - blurred.Near(x, y, band);
                result.At(x, y, band) += std::abs(difference) >= threshold * pixels.largest ? amount * difference : 0.0;
            }
        }
    }
    return result;
}

Pixels Clarified(const Pixels& pixels, const Pixels& blurred, double amount)
{
    Pixels result = pixels;
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x) {
            const double luma = LumaOf(pixels, x, y);
            const double share = luma / pixels.largest;
            const double change = amount * 4.0 * share * (1.0 - share) * (luma - LumaOf(blurred, x, y));
            for (int band = 0; band < pixels.Colours(); ++band) {
                result.At(x, y, band) += change;
            }
        }
    }
    return result;
}

Pixels Denoised(const Pixels& pixels, double strength, double sigma)
{
    Pixels result = pixels;
    const int radius = int(std::ceil(2.0 * sigma));
    for (int y = 0; y < pixels.height; ++y) {
        for (int x = 0; x < pixels.width; ++x) {
            Mean mean(pixels, false);
            for (int j = -radius; j <= radius; ++j) {
                for (int i = -radius; i <= radius; ++i) {
                    double squares = 0.0;
                    for (int band = 0; band < pixels.Colours(); ++band) {
                        const double difference = pixels.Near(x + i, y + j, band) - pixels.Near(x, y, band);
                        squares += difference * difference / (pixels.largest * pixels.largest * pixels.Colours());
                    }
                    const double exponent = squares / (2.0 * strength * strength);
                    if (exponent < 10.0) {
                        mean.Add(x + i, y + j, std::exp(-(i * i + j * j) / (2.0 * sigma * sigma) - exponent));
                    }
                }
            }
            for (int band = 0; band < pixels.Colours(); ++band) {
                result.At(x, y, band) = mean.Colour(band, pixels.Near(x, y, band));
            }
        }
    }
    return result;
}

Pixels Turned(const Pixels& pixels, const QTransform& toPicture, const QSize& canvas)
{
    Pixels result = pixels;
    result.width = canvas.width();
    result.height = canvas.height();
    result.values.assign(std::size_t(canvas.width() * canvas.height() * pixels.bands), 0.0);
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            const QPointF place = toPicture.map(QPointF(x + 0.5, y + 0.5)) - QPointF(0.5, 0.5);
            const double column = std::floor(place.x() * 64.0 + 0.5) / 64.0;
            const double row = std::floor(place.y() * 64.0 + 0.5) / 64.0;
            Mean mean(pixels, true);
            for (int j = int(std::floor(row)) - 1; j <= int(std::floor(row)) + 2; ++j) {
                for (int i = int(std::floor(column)) - 1; i <= int(std::floor(column)) + 2; ++i) {
                    mean.Add(i, j, Cubic(column - i) * Cubic(row - j));
                }
            }
            for (int band = 0; band < pixels.Colours(); ++band) {
                result.At(x, y, band) = mean.Colour(band, 0.0);
            }
            if (pixels.hasAlpha) {
                result.At(x, y, pixels.bands - 1) = mean.Alpha();
            }
        }
    }
    return result;
}

} // namespace SlowEffects
