// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <utility>
#include <vector>

#ifdef __GLIBC__
#include <malloc.h>
#endif

/// The time on the system's monotonic clock, which is the same in every process.
inline std::int64_t Nanoseconds()
{
    using namespace std::chrono;
    return duration_cast<nanoseconds>(steady_clock::now().time_since_epoch()).count();
}

/// The time since its construction.
class Stopwatch
{
public:
    double Nanoseconds() const
    {
        return std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - start).count();
    }

private:
    std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();
};

/// The median; of an even number of values the greater of the two in the middle, of none 0.
inline double Median(std::vector<double> values)
{
    if (values.empty()) {
        return 0;
    }
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

/// The median of what `measure` returns in `repeats` calls.
template<typename Measure>
double Median(int repeats, Measure measure)
{
    std::vector<double> values;
    for (int i = 0; i < repeats; ++i) {
        values.push_back(measure());
    }
    return Median(std::move(values));
}

/// How often to measure a case of `items` items: the shorter one run, the more often.
inline int RepeatsFor(int items)
{
    return std::clamp(1000000 / items, 1, 25);
}

/// Prints one case, one line for each size: the time per item, that of its baseline, which meets the same caches, and
/// how much more than the baseline it has grown since the first size.
class Series
{
public:
    /// The goal is the greatest growth against the baseline that is acceptable; 0 for none.
    Series(const char* name, double goal)
        : name(name)
        , goal(goal)
    {
    }

    void Add(int items, double nanosecondsPerItem, double baseline)
    {
        const double ratio = nanosecondsPerItem / baseline;
        if (first == 0) {
            first = ratio;
        }
        const double growth = ratio / first;
        std::printf("%-44s %8d %10.1f ns  baseline %10.1f ns  grows x %5.2f", name, items, nanosecondsPerItem, baseline,
                    growth);
        if (goal > 0) {
            std::printf("  goal %.2f%s", goal, growth > goal ? ", above it" : "");
        }
        std::printf("\n");
        std::fflush(stdout);
    }

private:
    const char* name;
    double goal;
    double first = 0;
};

/// The number of bytes that are allocated now; 0 where the platform does not tell.
inline std::size_t AllocatedBytes()
{
#ifdef __GLIBC__
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
#else
    return 0;
#endif
}
