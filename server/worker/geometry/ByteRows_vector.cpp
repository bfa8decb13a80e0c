// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ByteRows.h"

#include "ReductionPlan.h"

#ifdef __x86_64__

#include <array>
#include <cstring>
#include <immintrin.h>

namespace BatchWorker {

namespace {

constexpr int valuesAtOnce = 32;

// The instructions that HasVectorUnit() looks for; the rest of the program is compiled without them.
#define WITH_VECTOR_UNIT __attribute__((target("avx2")))

/// The sums of 32 values, in the order in which two rows interleave.
struct Sums
{
    __m256i first, second, third, fourth;
};

WITH_VECTOR_UNIT inline void Add(Sums& sums, __m256i upper, __m256i lower, __m256i weightPair)
{
    const __m256i zero = _mm256_setzero_si256();
    const __m256i low = _mm256_unpacklo_epi8(upper, lower);
    const __m256i high = _mm256_unpackhi_epi8(upper, lower);
    const auto weighted = [&](__m256i pairs) WITH_VECTOR_UNIT { return _mm256_madd_epi16(pairs, weightPair); };
    sums.first = _mm256_add_epi32(sums.first, weighted(_mm256_unpacklo_epi8(low, zero)));
    sums.second = _mm256_add_epi32(sums.second, weighted(_mm256_unpackhi_epi8(low, zero)));
    sums.third = _mm256_add_epi32(sums.third, weighted(_mm256_unpacklo_epi8(high, zero)));
    sums.fourth = _mm256_add_epi32(sums.fourth, weighted(_mm256_unpackhi_epi8(high, zero)));
}

WITH_VECTOR_UNIT inline __m256i Rounded(const Sums& sums)
{
    constexpr int bits = ReductionPlan::wholeBits;
    const __m256i low = _mm256_packs_epi32(_mm256_srai_epi32(sums.first, bits), _mm256_srai_epi32(sums.second, bits));
    const __m256i high = _mm256_packs_epi32(_mm256_srai_epi32(sums.third, bits), _mm256_srai_epi32(sums.fourth, bits));
    return _mm256_packus_epi16(low, high);
}

WITH_VECTOR_UNIT inline __m256i ValuesAt(const std::uint8_t* place)
{
    return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(place));
}

} // namespace

bool ByteRows::HasVectorUnit()
{
    static const bool hasIt = __builtin_cpu_supports("avx2") > 0;
    return hasIt;
}

WITH_VECTOR_UNIT int ByteRows::ReduceSideBySide(int row, const std::uint8_t* source, std::ptrdiff_t stride,
                                                std::uint8_t* target) const
{
    const std::int16_t* const weights = plan.WholeWeights(row);
    const int lastTap = plan.taps - 1;
    int done = 0;
    for (; done + valuesAtOnce <= count; done += valuesAtOnce) {
        const __m256i half = _mm256_set1_epi32(ReductionPlan::wholeHalf);
        Sums sums{half, half, half, half};
        const std::uint8_t* old = source + done;
        for (int tap = 0; tap < plan.taps; tap += 2) {
            int weightPair = 0;
            std::memcpy(&weightPair, weights + tap, sizeof(weightPair));
            // Behind the last row, where taps are odd, there may be none; the weight is 0.
            const std::uint8_t* const next = tap < lastTap ? old + stride : old;
            Add(sums, ValuesAt(old), ValuesAt(next), _mm256_set1_epi32(weightPair));
            old += 2 * stride;
        }
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(target + done), Rounded(sums));
    }
    return done;
}

} // namespace BatchWorker

#else

namespace BatchWorker {

bool ByteRows::HasVectorUnit()
{
    return false;
}

int ByteRows::ReduceSideBySide(int, const std::uint8_t*, std::ptrdiff_t, std::uint8_t*) const
{
    return 0;
}

} // namespace BatchWorker

#endif
