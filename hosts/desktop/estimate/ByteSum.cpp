// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ByteSum.h"

#include <cmath>
#include <numeric>

namespace BatchDesktop {

int ByteSum::Percent() const
{
    constexpr double whole = 100;
    return bytes > 0 ? int(std::ceil(whole * error / bytes)) : 0;
}

std::optional<ByteSum> ByteSum::Of(const QMap<int, qint64>& samples, int files)
{
    const int count = samples.size();
    if (count == 0 || (count == 1 && files > 1)) {
        return {};
    }
    const QList<qint64> bytes = samples.values();
    const double ofSamples = std::accumulate(bytes.begin(), bytes.end(), 0.0);
    if (ofSamples == 0) {
        return {};
    }
    ByteSum sum;
    const double factor = double(files) / count;
    sum.bytes = factor * ofSamples;
    if (count < files) {
        double squares = 0;
        for (int i = 1; i < count; ++i) {
            const double step = double(bytes[i] - bytes[i - 1]);
            squares += step * step;
        }
        const double variance =
            (1 - double(count) / files) * double(files) * factor * squares / (2.0 * double(count - 1));
        sum.error = 2 * std::sqrt(variance);
    }
    return sum;
}

} // namespace BatchDesktop
