// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ToneMapping.h"

#include "job/values/Phrase.h"

#include "GeneratedProfile.h"

#include "server/worker/pixels/EmbeddedProfile.h"
#include "server/worker/pixels/PixelFilter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <vector>

using namespace BatchJob;

namespace BatchWorker {

namespace {

constexpr double peak = 1000.0; // cd/m2, of the screen that the values are meant for
constexpr double white = 203.0; // cd/m2, Report ITU-R BT.2408
constexpr double brightestPq = 10'000.0;

// The constants of PQ; source: Rec. ITU-R BT.2100, table 4.
constexpr double m1 = 2610.0 / 16'384.0;
constexpr double m2 = 2523.0 / 4096.0 * 128.0;
constexpr double c1 = 3424.0 / 4096.0;
constexpr double c2 = 2413.0 / 4096.0 * 32.0;
constexpr double c3 = 2392.0 / 4096.0 * 32.0;

// cd/m2 of a value.
double LightOfPq(double value)
{
    const double power = std::pow(value, 1.0 / m2);
    return brightestPq * std::pow(std::max(power - c1, 0.0) / (c2 - c3 * power), 1.0 / m1);
}

double PeaksOfPq(double value)
{
    return LightOfPq(value) / peak;
}

double PqOfLight(double light)
{
    const double power = std::pow(light / brightestPq, m1);
    return std::pow((c1 + c2 * power) / (1.0 + c3 * power), m2);
}

// The light of the scene, 0 to 1; source: Rec. ITU-R BT.2100, table 5.
double SceneOfHlg(double value)
{
    constexpr double a = 0.17883277;
    constexpr double b = 1.0 - 4.0 * a;
    const double c = 0.5 - a * std::log(4.0 * a);
    return value <= 0.5 ? value * value / 3.0 : (std::exp((value - c) / a) + b) / 12.0;
}

// cd/m2 up to `white` for cd/m2 up to `peak`; source: Report ITU-R BT.2390, section 5.4.1, for black at 0.
double Compressed(double light)
{
    const double brightest = PqOfLight(peak);
    const double largest = PqOfLight(white) / brightest;
    const double knee = 1.5 * largest - 0.5;
    const double value = PqOfLight(std::min(light, peak)) / brightest;
    if (value < knee) {
        return light;
    }
    const double t = (value - knee) / (1.0 - knee);
    const double t2 = t * t;
    const double t3 = t2 * t;
    const double bent =
        (2.0 * t3 - 3.0 * t2 + 1.0) * knee + (t3 - 2.0 * t2 + t) * (1.0 - knee) + (-2.0 * t3 + 3.0 * t2) * largest;
    return LightOfPq(bent * brightest);
}

double SrgbOf(double light)
{
    return light <= 0.0031308 ? 12.92 * light : 1.055 * std::pow(light, 1.0 / 2.4) - 0.055; // IEC 61966-2-1
}

/// A function of 0 to 1 as a table, dense near 0.
class Table
{
public:
    template<typename Function>
    explicit Table(Function function)
    {
        values.reserve(size);
        for (int i = 0; i < size; ++i) {
            const double root = double(i) / (size - 1);
            values.push_back(float(function(root * root)));
        }
    }

    double Of(double argument) const
    {
        const double root = std::sqrt(std::clamp(argument, 0.0, 1.0));
        return double(values[std::size_t(root * (size - 1) + 0.5)]);
    }

private:
    static constexpr int size = 65'536;
    std::vector<float> values;
};

/// The share of red, green and blue in the brightness of a colour.
std::array<double, 3> LuminanceOf(const Primaries& primaries)
{
    const auto column = [](const Chromaticity& point) {
        return std::array<double, 3>{point.x / point.y, 1.0, (1.0 - point.x - point.y) / point.y};
    };
    const auto determinant = [](const std::array<double, 3>& p, const std::array<double, 3>& q,
                                const std::array<double, 3>& r) {
        return p[0] * (q[1] * r[2] - q[2] * r[1]) - q[0] * (p[1] * r[2] - p[2] * r[1]) +
               r[0] * (p[1] * q[2] - p[2] * q[1]);
    };
    const auto red = column(primaries.red);
    const auto green = column(primaries.green);
    const auto blue = column(primaries.blue);
    const auto sum = column(primaries.white);
    const double all = determinant(red, green, blue);
    return {determinant(sum, green, blue) / all, determinant(red, sum, blue) / all, determinant(red, green, sum) / all};
}

/// What happens to a colour, by tables that all pixels share.
class Mapping
{
public:
    explicit Mapping(const HdrColours& colours)
        : isHlg(colours.isHlg)
        , luminance(LuminanceOf(colours.primaries))
        , decoded(EvenTable(isHlg ? SceneOfHlg : PeaksOfPq))
        , systemGain([](double scene) { return std::pow(scene, 0.2); })
        , compression(
              [](double light) { return light > 0.0 ? Compressed(light * peak) / (light * white) : peak / white; })
        , coded(SrgbOf)
    {
    }

    void Apply(std::array<double, 3>& colour, bool isGrey) const
    {
        if (isGrey) {
            colour[1] = colour[2] = colour[0];
        }
        for (double& value : colour) {
            value = double(decoded[std::size_t(value * 65'535.0 + 0.5)]);
        }
        if (isHlg) {
            const double scene = luminance[0] * colour[0] + luminance[1] * colour[1] + luminance[2] * colour[2];
            Scale(colour, systemGain.Of(scene));
        }
        const double brightest = *std::max_element(colour.begin(), colour.end());
        Scale(colour, brightest <= 1.0 ? compression.Of(brightest) : 1.0 / brightest);
        for (double& value : colour) {
            value = coded.Of(value);
        }
    }

private:
    // With an entry for each value of 16 bits.
    static std::vector<float> EvenTable(double (*function)(double))
    {
        std::vector<float> values;
        values.reserve(65'536);
        for (int i = 0; i < 65'536; ++i) {
            values.push_back(float(function(i / 65'535.0)));
        }
        return values;
    }

    static void Scale(std::array<double, 3>& colour, double factor)
    {
        for (double& value : colour) {
            value *= factor;
        }
    }

    bool isHlg;
    std::array<double, 3> luminance;
    std::vector<float> decoded; ///< light, 1 is `peak`
    Table systemGain;
    Table compression; ///< factor from light, 1 is `peak`, to light, 1 is `white`
    Table coded;
};

void Note(Warnings& warnings)
{
    const Warning warning{WarningKind::ColoursConverted,
                          Phrase::English("the file is HDR; the result has the brightness of common screens")};
    if (!warnings.contains(warning)) {
        warnings.append(warning);
    }
}

} // namespace

Picture FromHdr(const Picture& picture, const HdrColours& colours, Warnings& warnings)
{
    Note(warnings);
    const bool isGrey = IsGrey(picture);
    const auto mapping = std::make_shared<const Mapping>(colours);
    const Picture mapped =
        MapColours(picture, [mapping, isGrey](std::array<double, 3>& colour) { mapping->Apply(colour, isGrey); });
    return WithProfile(mapped, isGrey ? GreyProfileOf(SrgbCurve()) : ProfileOf(colours.primaries, SrgbCurve()));
}

} // namespace BatchWorker
