// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColumnPlan.h"

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

} // namespace

ColumnPlan::ColumnPlan(int oldWidth, int newWidth)
{
    const double factor = double(oldWidth) / newWidth;
    const double radius = 3.0 * factor;
    const int reach = int(std::floor(2.0 * radius)) + 1;
    taps = std::min(reach, oldWidth);
    wholeTaps = taps + taps % 2;
    for (int column = 0; column < newWidth; ++column) {
        const double middle = (column + 0.5) * factor - 0.5;
        const int start = int(std::ceil(middle - radius));
        firsts.push_back(std::clamp(start, 0, oldWidth - taps));
        std::vector<double> exact(std::size_t(taps), 0.0);
        double sum = 0.0;
        for (int old = start; old < start + reach; ++old) {
            const double weight = Lanczos((old - middle) / factor);
            exact[std::size_t(std::clamp(old, 0, oldWidth - 1) - firsts.back())] += weight;
            sum += weight;
        }
        for (double& weight : exact) {
            weight /= sum;
        }
        AppendWeights(exact);
    }
}

void ColumnPlan::AppendWeights(const std::vector<double>& exact)
{
    weights.insert(weights.end(), exact.begin(), exact.end());
    // The rounding error of each is passed on to the next: their sum stays exact, however small they are.
    double rest = 0.0;
    for (const double weight : exact) {
        const double wanted = weight * (1 << wholeBits) + rest;
        wholeWeights.push_back(std::int16_t(std::lround(wanted)));
        rest = wanted - wholeWeights.back();
    }
    wholeWeights.resize(firsts.size() * std::size_t(wholeTaps), 0);
}

} // namespace BatchWorker
