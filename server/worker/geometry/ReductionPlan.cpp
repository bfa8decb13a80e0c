// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ReductionPlan.h"

#include <algorithm>
#include <cmath>

namespace BatchWorker {

namespace {

double Lanczos(double x)
{
    constexpr double lobes = 3.0;
    constexpr double pi = 3.14159265358979323846;
    if (x == 0.0) {
        return 1.0;
    }
    return std::abs(x) < lobes ? lobes * std::sin(pi * x) * std::sin(pi * x / lobes) / (pi * pi * x * x) : 0.0;
}

double PlaceOfLibrary(double place)
{
    constexpr double steps = 64.0;
    return (std::floor((place + 0.5) * steps + 0.5)) / steps - 0.5;
}

/// The weights of the old lines from `start` on, of which the picture need not have all.
std::vector<double> LanczosWeights(int start, int count, double place, double factor)
{
    std::vector<double> weights;
    double sum = 0.0;
    for (int old = start; old < start + count; ++old) {
        weights.push_back(Lanczos((old - place) / factor));
        sum += weights.back();
    }
    for (double& weight : weights) {
        weight /= sum;
    }
    return weights;
}

} // namespace

ReductionPlan::ReductionPlan(int oldCount, int newCount, Arithmetic arithmetic)
    : oldCount(oldCount)
    , arithmetic(arithmetic)
{
    const double factor = double(oldCount) / newCount;
    const double radius = 3.0 * factor;
    const int reach = int(std::floor(2.0 * radius)) + 1;
    taps = std::min(reach, oldCount);
    wholeTaps = taps + taps % 2;
    for (int line = 0; line < newCount; ++line) {
        const double exactPlace = (line + 0.5) * factor - 0.5;
        const double place = arithmetic == Arithmetic::Exact ? exactPlace : PlaceOfLibrary(exactPlace);
        const int start = int(std::ceil(place - radius));
        firsts.push_back(std::clamp(start, 0, oldCount - taps));
        const std::vector<double> all = LanczosWeights(start, reach, place, factor);
        std::vector<double> held(std::size_t(taps), 0.0);
        for (int i = 0; i < reach; ++i) {
            held[IndexOf(start + i)] += all[std::size_t(i)];
        }
        weights.insert(weights.end(), held.begin(), held.end());
        wholeWeights.resize(weights.size() / std::size_t(taps) * std::size_t(wholeTaps), 0);
        if (arithmetic == Arithmetic::Exact) {
            SetWhole(held);
        } else {
            SetWholeOfLibrary(all, start);
        }
    }
}

/// Which of the taps of the latest line `old` is. The outermost line is repeated beyond the border.
std::size_t ReductionPlan::IndexOf(int old) const
{
    return std::size_t(std::clamp(old, 0, oldCount - 1) - firsts.back());
}

void ReductionPlan::SetWhole(const std::vector<double>& held)
{
    std::int16_t* whole = LatestWhole();
    // The rounding error of each is passed on to the next: their sum stays exact, however small they are.
    double rest = 0.0;
    for (const double weight : held) {
        const double wanted = weight * (1 << wholeBits) + rest;
        *whole = std::int16_t(std::lround(wanted));
        rest = wanted - *whole++;
    }
}

void ReductionPlan::SetWholeOfLibrary(const std::vector<double>& all, int start)
{
    constexpr int bitsOfLibrary = 12;
    constexpr int fill = 1 << (wholeBits - bitsOfLibrary);
    for (std::size_t i = 0; i < all.size(); ++i) {
        std::int16_t& whole = LatestWhole()[IndexOf(start + int(i))];
        whole = std::int16_t(whole + fill * int(all[i] * (1 << bitsOfLibrary)));
    }
}

} // namespace BatchWorker
