// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ByteColumns.h"

#include "ColumnPlan.h"

#ifdef __x86_64__

#include <algorithm>
#include <cstring>
#include <immintrin.h>

namespace BatchWorker {

namespace {

constexpr int bandsAtOnce = 4;

// The instructions that HasVectorUnit() looks for; the rest of the program is compiled without them.
#define WITH_VECTOR_UNIT __attribute__((target("avx2")))

template<int count>
std::uint32_t BytesOf(const std::uint8_t* pixel)
{
    std::uint32_t bytes = 0;
    std::memcpy(&bytes, pixel, count);
    return bytes;
}

} // namespace

bool ByteColumns::HasVectorUnit()
{
    static const bool hasIt = __builtin_cpu_supports("avx2") > 0;
    return hasIt;
}

template<int count>
WITH_VECTOR_UNIT void ByteColumns::Load(const Sources& sources)
{
    const std::uint8_t* upper = sources[0];
    const std::uint8_t* lower = sources[1];
    const int columns = int(neighbours.size());
    // Four bytes are read in one step, three are not. Reading a byte beyond a pixel is harmless, but not beyond the
    // line.
    const int wideColumns = columns - (bandsAtOnce + bands - 1) / bands;
    auto* to = reinterpret_cast<__m256i*>(neighbours.data());
    __m256i left = _mm256_setzero_si256();
    for (int column = 0; column < columns; ++column) {
        const bool isWide = column < wideColumns;
        const std::uint32_t above = isWide ? BytesOf<bandsAtOnce>(upper) : BytesOf<count>(upper);
        const std::uint32_t below = isWide ? BytesOf<bandsAtOnce>(lower) : BytesOf<count>(lower);
        const __m128i both = _mm_insert_epi32(_mm_cvtsi32_si128(int(above)), int(below), 2);
        const __m256i pixel = _mm256_cvtepu8_epi16(both);
        if (column > 0) {
            _mm256_store_si256(to++, _mm256_unpacklo_epi16(left, pixel));
        }
        left = pixel;
        upper += bands;
        lower += bands;
    }
    _mm256_store_si256(to, _mm256_unpacklo_epi16(left, _mm256_setzero_si256()));
}

template<int count>
WITH_VECTOR_UNIT void ByteColumns::Store(const Targets& targets) const
{
    const __m256i zero = _mm256_setzero_si256();
    const auto* const allOld = reinterpret_cast<const __m256i*>(neighbours.data());
    const int first = plan.firsts[std::size_t(begin)];
    const std::int16_t* weights = &plan.wholeWeights[std::size_t(begin) * std::size_t(plan.wholeTaps)];
    std::uint8_t* upper = targets[0];
    std::uint8_t* lower = targets[1];
    for (int column = begin; column < end; ++column) {
        const __m256i* const old = allOld + (plan.firsts[std::size_t(column)] - first);
        __m256i sum = _mm256_set1_epi32(ColumnPlan::wholeHalf);
        for (int tap = 0; tap < plan.wholeTaps; tap += 2) {
            int weightPair = 0;
            std::memcpy(&weightPair, weights + tap, sizeof(weightPair));
            sum = _mm256_add_epi32(sum, _mm256_madd_epi16(old[tap], _mm256_set1_epi32(weightPair)));
        }
        weights += plan.wholeTaps;
        const __m256i words = _mm256_packs_epi32(_mm256_srai_epi32(sum, ColumnPlan::wholeBits), zero);
        const __m256i bytes = _mm256_packus_epi16(words, zero);
        const int above = _mm_cvtsi128_si32(_mm256_castsi256_si128(bytes));
        const int below = _mm_cvtsi128_si32(_mm256_extracti128_si256(bytes, 1));
        std::memcpy(upper, &above, count);
        std::memcpy(lower, &below, count);
        upper += bands;
        lower += bands;
    }
}

template<int count>
void ByteColumns::ReduceBands(const Sources& sources, const Targets& targets)
{
    Load<count>(sources);
    Store<count>(targets);
}

void ByteColumns::ReduceSideBySide(const Sources& sources, const Targets& targets)
{
    for (int band = 0; band < bands; band += bandsAtOnce) {
        const Sources from{sources[0] + band, sources[1] + band};
        const Targets to{targets[0] + band, targets[1] + band};
        switch (std::min(bands - band, bandsAtOnce)) {
        case 1:
            ReduceBands<1>(from, to);
            break;
        case 2:
            ReduceBands<2>(from, to);
            break;
        case 3:
            ReduceBands<3>(from, to);
            break;
        default:
            ReduceBands<bandsAtOnce>(from, to);
            break;
        }
    }
}

} // namespace BatchWorker

#else

namespace BatchWorker {

bool ByteColumns::HasVectorUnit()
{
    return false;
}

void ByteColumns::ReduceSideBySide(const Sources&, const Targets&) {}

} // namespace BatchWorker

#endif
