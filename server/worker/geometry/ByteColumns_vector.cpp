// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ByteColumns.h"

#include "ReductionPlan.h"

#ifdef __x86_64__

#include <algorithm>
#include <cstring>
#include <immintrin.h>
#include <type_traits>

namespace BatchWorker {

namespace {

constexpr int bandsAtOnce = 4;
constexpr int columnsAtOnce = 4;
constexpr int bytesOfHalf = 16; // of a register; each of the two lines has one

// The instructions that HasVectorUnit() looks for; the rest of the program is compiled without them.
#define WITH_VECTOR_UNIT __attribute__((target("avx2")))

WITH_VECTOR_UNIT inline __m128i HalfAt(const void* place)
{
    return _mm_loadu_si128(static_cast<const __m128i*>(place));
}

/// The upper line in the lower half, the lower line in the upper half.
WITH_VECTOR_UNIT inline __m256i Both(__m128i upper, __m128i lower)
{
    return _mm256_inserti128_si256(_mm256_castsi128_si256(upper), lower, 1);
}

/// Up to four bands of a pixel as words, in every second word.
template<int count>
WITH_VECTOR_UNIT inline __m128i WordsOf(const std::uint8_t* pixel)
{
    std::uint32_t bytes = 0;
    std::memcpy(&bytes, pixel, count);
    return _mm_cvtepu8_epi32(_mm_cvtsi32_si128(int(bytes)));
}

/// A pixel and its neighbour, band by band.
template<int count>
WITH_VECTOR_UNIT inline __m128i Pair(const std::uint8_t* pixel, const std::uint8_t* neighbour)
{
    return _mm_or_si128(WordsOf<count>(pixel), _mm_slli_epi32(WordsOf<count>(neighbour), 16));
}

/// What takes a pixel and its neighbour, `bands` bytes on, to the places that Pair() gives them.
template<int count>
WITH_VECTOR_UNIT __m256i PairOrder(int bands)
{
    std::int8_t order[bytesOfHalf];
    for (int byte = 0; byte < bytesOfHalf; ++byte) {
        const int band = byte / 4;
        const bool isNeighbour = byte % 4 == 2;
        order[byte] = std::int8_t(byte % 2 != 0 || band >= count ? -1 : band + (isNeighbour ? bands : 0));
    }
    return _mm256_broadcastsi128_si256(HalfAt(order));
}

/// What takes four pixels of four bytes each to places without gaps between them.
template<int count>
WITH_VECTOR_UNIT __m256i DenseOrder()
{
    std::int8_t order[bytesOfHalf];
    for (int byte = 0; byte < bytesOfHalf; ++byte) {
        order[byte] = std::int8_t(byte < bandsAtOnce * count ? byte / count * bandsAtOnce + byte % count : -1);
    }
    return _mm256_broadcastsi128_si256(HalfAt(order));
}

/// The sums of new columns that follow each other: of each, four bands of the one line and four of the other. Their
/// first old columns are `firsts`; `old` begins with the column `begin`.
template<int columns>
WITH_VECTOR_UNIT inline void SumUp(const __m256i* old, int begin, const int* firsts, const std::int16_t* weights,
                                   int taps, __m256i* sums)
{
    for (int column = 0; column < columns; ++column) {
        sums[column] = _mm256_set1_epi32(ReductionPlan::wholeHalf);
    }
    for (int tap = 0; tap < taps; tap += 2) {
        for (int column = 0; column < columns; ++column) {
            int weightPair = 0;
            std::memcpy(&weightPair, weights + std::ptrdiff_t(column) * taps + tap, sizeof(weightPair));
            const __m256i products =
                _mm256_madd_epi16(old[firsts[column] - begin + tap], _mm256_set1_epi32(weightPair));
            sums[column] = _mm256_add_epi32(sums[column], products);
        }
    }
    for (int column = 0; column < columns; ++column) {
        sums[column] = _mm256_srai_epi32(sums[column], ReductionPlan::wholeBits);
    }
}

} // namespace

bool ByteColumns::HasVectorUnit()
{
    static const bool hasIt = __builtin_cpu_supports("avx2") > 0;
    return hasIt;
}

template<int count>
WITH_VECTOR_UNIT void ByteColumns::Load(const Sources& sources, int columns)
{
    neighbours.resize(std::max(neighbours.size(), std::size_t(columns)));
    const __m256i order = PairOrder<count>(bands);
    const std::uint8_t* upper = sources[0];
    const std::uint8_t* lower = sources[1];
    auto* const to = reinterpret_cast<__m256i*>(neighbours.data());
    // Half a register is read at a time, as long as it ends within the line.
    const bool isNear = bands + count <= bytesOfHalf;
    const int wideColumns = isNear ? columns - (bytesOfHalf + bands - 1) / bands : 0;
    int column = 0;
    for (; column < wideColumns; ++column) {
        _mm256_store_si256(to + column, _mm256_shuffle_epi8(Both(HalfAt(upper), HalfAt(lower)), order));
        upper += bands;
        lower += bands;
    }
    for (; column < columns; ++column) {
        const int next = column + 1 < columns ? bands : 0; // The weight of the last one's neighbour is 0.
        _mm256_store_si256(to + column, Both(Pair<count>(upper, upper + next), Pair<count>(lower, lower + next)));
        upper += bands;
        lower += bands;
    }
}

template<int count>
WITH_VECTOR_UNIT void ByteColumns::Store(int from, int to, const Targets& targets) const
{
    const __m256i zero = _mm256_setzero_si256();
    const auto* const loaded = reinterpret_cast<const __m256i*>(neighbours.data());
    const int first = plan.firsts[std::size_t(from)];
    const auto sumUp = [&](auto columns, int column, __m256i* sums) WITH_VECTOR_UNIT {
        SumUp<columns>(loaded, first, &plan.firsts[std::size_t(column)], plan.WholeWeights(column), plan.wholeTaps,
                       sums);
    };
    const auto store = [](const Targets& places, __m256i bytes, std::size_t length) WITH_VECTOR_UNIT {
        const __m128i upper = _mm256_castsi256_si128(bytes);
        const __m128i lower = _mm256_extracti128_si256(bytes, 1);
        std::memcpy(places[0], &upper, length);
        std::memcpy(places[1], &lower, length);
    };
    Targets places = targets;
    int column = from;
    if (bands == count) {
        const __m256i order = DenseOrder<count>();
        constexpr std::ptrdiff_t size = std::ptrdiff_t(columnsAtOnce) * count;
        for (; column + columnsAtOnce <= to; column += columnsAtOnce) {
            __m256i sums[columnsAtOnce];
            sumUp(std::integral_constant<int, columnsAtOnce>(), column, sums);
            const __m256i left = _mm256_packs_epi32(sums[0], sums[1]);
            const __m256i right = _mm256_packs_epi32(sums[2], sums[3]);
            store(places, _mm256_shuffle_epi8(_mm256_packus_epi16(left, right), order), size);
            places = {places[0] + size, places[1] + size};
        }
    }
    for (; column < to; ++column) {
        __m256i sum;
        sumUp(std::integral_constant<int, 1>(), column, &sum);
        store(places, _mm256_packus_epi16(_mm256_packs_epi32(sum, zero), zero), count);
        places = {places[0] + bands, places[1] + bands};
    }
}

template<int count>
void ByteColumns::ReduceBands(const Sources& sources, const Targets& targets)
{
    // What a part needs stays in the processor's nearest memory.
    constexpr int oldAtOnce = 768;
    const int firstOld = plan.firsts[std::size_t(begin)];
    const int part = std::max(1, int(std::int64_t(oldAtOnce) * (end - begin) / (plan.End(end - 1) - firstOld)));
    for (int from = begin; from < end; from += part) {
        const int to = std::min(from + part, end);
        const int old = plan.firsts[std::size_t(from)];
        const std::ptrdiff_t skipped = std::ptrdiff_t(old - firstOld) * bands;
        const std::ptrdiff_t done = std::ptrdiff_t(from - begin) * bands;
        Load<count>({sources[0] + skipped, sources[1] + skipped}, plan.End(to - 1) - old);
        Store<count>(from, to, {targets[0] + done, targets[1] + done});
    }
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
