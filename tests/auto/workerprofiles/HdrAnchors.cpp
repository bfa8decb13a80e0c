// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HdrAnchors.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace HdrAnchors {

namespace {

Anchor Grey(double hdr, double result)
{
    return {{hdr, hdr, hdr}, {result, result, result}};
}

} // namespace

QVector<Anchor> OfPq()
{
    return {Grey(0.0, 0.0),        Grey(0.14995, 0.0603), Grey(0.29970, 0.2459), Grey(0.44028, 0.5334),
            Grey(0.50808, 0.7284), Grey(0.58069, 0.8980), Grey(0.69629, 0.9964), Grey(0.75183, 1.0),
            Grey(0.90257, 1.0),    Grey(1.0, 1.0)};
}

QVector<Anchor> OfHlg()
{
    return {Grey(0.0, 0.0),
            Grey(0.25, 0.2409),
            Grey(0.5, 0.5368),
            Grey(0.75, 0.8981),
            Grey(1.0, 1.0),
            {{0.5, 0.25, 0.25}, {0.4984, 0.2556, 0.2556}},
            {{0.9, 0.6, 0.3}, {0.9848, 0.4983, 0.2473}}};
}

QVector<Colour> HdrOf(const QVector<Anchor>& anchors)
{
    QVector<Colour> colours;
    for (const Anchor& anchor : anchors) {
        colours.append(anchor.hdr);
    }
    return colours;
}

double LargestDifference(const QVector<Anchor>& anchors, const QVector<Colour>& found)
{
    if (anchors.isEmpty() || anchors.size() != found.size()) {
        return std::numeric_limits<double>::infinity();
    }
    double largest = 0.0;
    for (int i = 0; i < anchors.size(); ++i) {
        for (std::size_t channel = 0; channel < 3; ++channel) {
            largest = std::max(largest, std::abs(found[i][channel] - anchors[i].result[channel]));
        }
    }
    return largest;
}

} // namespace HdrAnchors
