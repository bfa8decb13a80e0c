// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CubeColours.h"

#include <algorithm>

using namespace BatchJob;

namespace BatchWorker {

namespace {

/// Where a colour lies along one channel: behind an entry, by a share of the way to the next.
struct Place
{
    size_t entry = 0;
    double share = 0;
};

Place PlaceOf(const CubeTable& table, size_t channel, double value)
{
    const double minimum = double(table.domainMinimum[channel]);
    const double maximum = double(table.domainMaximum[channel]);
    const double scaled = std::clamp((value - minimum) / (maximum - minimum), 0.0, 1.0) * (table.size - 1);
    const auto entry = std::min(static_cast<size_t>(scaled), static_cast<size_t>(table.size) - 2);
    return {entry, scaled - double(entry)};
}

/// The first of the three values of the entry in which the colour's cell begins, and the way to the next entry along
/// each channel.
struct Cell
{
    Cell(const CubeTable& table, const std::array<double, 3>& colour)
    {
        const auto size = static_cast<size_t>(table.size);
        steps = {3, 3 * size, 3 * size * size};
        for (size_t channel = 0; channel < 3; ++channel) {
            const Place place = PlaceOf(table, channel, colour[channel]);
            first += place.entry * steps[channel];
            shares[channel] = place.share;
        }
    }

    size_t first = 0;
    std::array<size_t, 3> steps{};
    std::array<double, 3> shares{};
};

} // namespace

std::array<double, 3> CurvesAt(const CubeTable& table, const std::array<double, 3>& colour)
{
    std::array<double, 3> result{};
    for (size_t channel = 0; channel < 3; ++channel) {
        const Place place = PlaceOf(table, channel, colour[channel]);
        const double from = double(table.values[3 * place.entry + channel]);
        const double to = double(table.values[3 * (place.entry + 1) + channel]);
        result[channel] = from + place.share * (to - from);
    }
    return result;
}

std::array<double, 3> TrilinearAt(const CubeTable& table, const std::array<double, 3>& colour)
{
    const Cell cell(table, colour);
    std::array<double, 3> result{};
    for (unsigned corner = 0; corner < 8; ++corner) {
        double weight = 1.0;
        size_t entry = cell.first;
        for (size_t channel = 0; channel < 3; ++channel) {
            const bool isFar = (corner >> channel & 1U) != 0;
            weight *= isFar ? cell.shares[channel] : 1.0 - cell.shares[channel];
            entry += isFar ? cell.steps[channel] : 0;
        }
        for (size_t channel = 0; channel < 3; ++channel) {
            result[channel] += weight * double(table.values[entry + channel]);
        }
    }
    return result;
}

std::array<double, 3> TetrahedralAt(const CubeTable& table, const std::array<double, 3>& colour)
{
    const Cell cell(table, colour);
    std::array<size_t, 3> order{0, 1, 2};
    std::sort(order.begin(), order.end(), [&cell](size_t a, size_t b) { return cell.shares[a] > cell.shares[b]; });

    std::array<double, 3> result{};
    size_t entry = cell.first;
    double before = 1.0;
    for (size_t corner = 0; corner < 4; ++corner) {
        const double share = corner < 3 ? cell.shares[order[corner]] : 0.0;
        for (size_t channel = 0; channel < 3; ++channel) {
            result[channel] += (before - share) * double(table.values[entry + channel]);
        }
        if (corner < 3) {
            entry += cell.steps[order[corner]];
            before = share;
        }
    }
    return result;
}

} // namespace BatchWorker
