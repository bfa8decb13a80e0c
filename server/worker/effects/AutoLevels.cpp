// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"

#include "server/worker/pixels/PixelFilter.h"
#include "server/worker/pixels/ValueCounts.h"

#include <algorithm>
#include <numeric>

namespace BatchWorker {

namespace {

/// The values, 0 to 1, that become black and white.
struct Range
{
    double black = 0;
    double white = 1;
};

Range RangeOf(const ValueCounts& counts, double clip, double largest)
{
    const double clipped = std::accumulate(counts.begin(), counts.end(), 0.0) * clip;
    const auto firstAbove = [clipped](auto begin, auto end) {
        double sum = 0.0;
        return std::find_if(begin, end, [&sum, clipped](double count) { return (sum += count) > clipped; });
    };
    const auto black = firstAbove(counts.begin(), counts.end());
    const auto white = firstAbove(counts.rbegin(), counts.rend());
    if (black == counts.end()) {
        return {};
    }
    return {double(std::distance(counts.begin(), black)) / largest,
            double(std::distance(white, counts.rend()) - 1) / largest};
}

ValueFunction Spread(const Range& range)
{
    if (range.black >= range.white) {
        return [](double value) { return value; };
    }
    return [range](double value) { return (value - range.black) / (range.white - range.black); };
}

} // namespace

// Reads the picture twice, the first time at once.
Picture ApplyAutoLevels(const Picture& picture, const QJsonObject& parameters)
{
    const double clip = parameters[QLatin1String("clip")].toDouble() / 100.0;
    const bool isForEach = parameters[QLatin1String("channels")].toString() == QLatin1String("each");

    std::vector<Range> ranges;
    for (const ValueCounts& counts : CountedValues(picture)) {
        ranges.push_back(RangeOf(counts, clip, LargestValue(picture)));
    }
    if (isForEach && ranges.size() == 3) {
        return MapValues(picture, {Spread(ranges[0]), Spread(ranges[1]), Spread(ranges[2])});
    }
    Range whole = ranges.front();
    for (const Range& range : ranges) {
        whole = {std::min(whole.black, range.black), std::max(whole.white, range.white)};
    }
    return MapValues(picture, Spread(whole));
}

} // namespace BatchWorker
