// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <type_traits>

/// Operations on pixels that need nothing but the pixel itself and its place.
namespace BatchWorker {

/// So many that their planes stay in the processor's nearest cache.
constexpr int pixelsAtOnce = 1024;

/// Pixels of one row, at most pixelsAtOnce, with a plane for each channel of colour: one of a grey picture, else three.
template<typename Sample>
struct PlanarPixels
{
    std::array<Sample*, 3> planes{};
    int channels = 0;
    int count = 0;
    int x = 0; ///< the place of the first pixel
    int y = 0;
};

/// Changes the colours of pixels in place. Called on several threads at a time, and must not throw. A pixel's result
/// does not depend on the pixels that come with it.
struct PlanarOperation
{
    std::function<void(const PlanarPixels<std::uint8_t>&)> ofBytes;
    std::function<void(const PlanarPixels<std::uint16_t>&)> ofWords;
};

/// The operation by a `function` that takes both kinds of pixels.
template<typename Function>
PlanarOperation OperationBy(const Function& function)
{
    return {function, function};
}

/// What to compute with: single precision from 0 to 255 for bytes; that is too coarse for samples of 16 bits, which are
/// numbers of double precision from 0 to 1.
template<typename Sample>
using NumberFor = std::conditional_t<sizeof(Sample) == 1, float, double>;

/// The number that stands for the largest sample.
template<typename Sample>
constexpr NumberFor<Sample> largestNumber = sizeof(Sample) == 1 ? 255 : 1;

/// By way of int, from which processors have vector instructions.
template<typename Sample>
inline NumberFor<Sample> NumberOf(Sample sample)
{
    const auto number = static_cast<NumberFor<Sample>>(static_cast<int>(sample));
    return sizeof(Sample) == 1 ? number : number / 65535;
}

/// The sample that is nearest to `number`; what is outside their range becomes 0 or the largest.
template<typename Sample, typename Number>
inline Sample SampleNear(Number number)
{
    constexpr Number least = 0;
    constexpr Number most = sizeof(Sample) == 1 ? 255 : 65535;
    Number held = (sizeof(Sample) == 1 ? number : number * most) + Number(0.5);
    held = held < least ? least : held;
    held = held > most ? most : held;
    return static_cast<Sample>(static_cast<int>(held));
}

} // namespace BatchWorker
