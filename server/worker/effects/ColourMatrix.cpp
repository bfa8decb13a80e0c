// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourMatrix.h"

#include "server/worker/pixels/PointPass.h"
#include "server/worker/pixels/VectorCode.h"

namespace BatchWorker {

namespace {

template<typename Number>
using Weights = std::array<std::array<Number, 3>, 3>;

template<typename Number>
Weights<Number> WeightsOf(const ColourMatrix& matrix)
{
    Weights<Number> weights{};
    for (std::size_t to = 0; to < 3; ++to) {
        for (std::size_t from = 0; from < 3; ++from) {
            weights[to][from] = static_cast<Number>(matrix[to][from]);
        }
    }
    return weights;
}

template<typename Sample>
BATCH_VECTOR_CODE void Multiply(Sample* __restrict red, Sample* __restrict green, Sample* __restrict blue, int count,
                                const Weights<NumberFor<Sample>>& weights)
{
    const auto [toRed, toGreen, toBlue] = weights;
    for (int i = 0; i < count; ++i) {
        const auto r = NumberOf(red[i]);
        const auto g = NumberOf(green[i]);
        const auto b = NumberOf(blue[i]);
        red[i] = SampleNear<Sample>(toRed[0] * r + toRed[1] * g + toRed[2] * b);
        green[i] = SampleNear<Sample>(toGreen[0] * r + toGreen[1] * g + toGreen[2] * b);
        blue[i] = SampleNear<Sample>(toBlue[0] * r + toBlue[1] * g + toBlue[2] * b);
    }
}

} // namespace

ColourMatrix Towards(const ColourMatrix& matrix, double amount)
{
    ColourMatrix result{};
    for (std::size_t to = 0; to < 3; ++to) {
        for (std::size_t from = 0; from < 3; ++from) {
            result[to][from] = amount * matrix[to][from] + (to == from ? 1.0 - amount : 0.0);
        }
    }
    return result;
}

Picture Multiplied(const Picture& picture, const ColourMatrix& matrix)
{
    const auto multiply = [](const auto& pixels, const auto& weights) {
        Multiply(pixels.planes[0], pixels.planes[1], pixels.planes[2], pixels.count, weights);
    };
    return WithOperation(picture, PlanarOperation{[multiply, weights = WeightsOf<float>(matrix)](const auto& pixels) {
                                                      multiply(pixels, weights);
                                                  },
                                                  [multiply, weights = WeightsOf<double>(matrix)](const auto& pixels) {
                                                      multiply(pixels, weights);
                                                  }});
}

} // namespace BatchWorker
