// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectFunctions.h"

#include "server/worker/pixels/PointPass.h"
#include "server/worker/pixels/VectorCode.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <vector>

namespace BatchWorker {

namespace {

/// How far colours go towards black or white, by their place.
struct Vignette
{
    std::vector<double> across; ///< squares of the distances of columns from the middle, where the borders have 1
    double halfHeight = 0;
    double start = 0;
    double softness = 0;
    double amount = 0;
    double target = 0; ///< of 0 to 1
};

// Distances take the precision of double: a transition may be much shorter than a pixel.
template<typename Number>
BATCH_VECTOR_CODE void FindShares(const double* __restrict across, double down, double start, double perSoftness,
                                  double amount, Number* __restrict shares, int count)
{
    for (int i = 0; i < count; ++i) {
        const double distance = std::sqrt((across[i] + down) / 2.0);
        double t = (distance - start) * perSoftness;
        t = t < 0.0 ? 0.0 : t;
        t = t > 1.0 ? 1.0 : t;
        shares[i] = static_cast<Number>(amount * (t * t * (3.0 - 2.0 * t)));
    }
}

template<typename Sample>
BATCH_VECTOR_CODE void MoveTowards(NumberFor<Sample> target, const NumberFor<Sample>* __restrict shares,
                                   Sample* __restrict plane, int count)
{
    for (int i = 0; i < count; ++i) {
        const auto value = NumberOf(plane[i]);
        plane[i] = SampleNear<Sample>(value + shares[i] * (target - value));
    }
}

template<typename Sample>
void Apply(const Vignette& vignette, const PlanarPixels<Sample>& pixels)
{
    const double down = (pixels.y + 0.5 - vignette.halfHeight) / vignette.halfHeight;
    std::array<NumberFor<Sample>, pixelsAtOnce> shares;
    FindShares(vignette.across.data() + pixels.x, down * down, vignette.start, 1.0 / vignette.softness, vignette.amount,
               shares.data(), pixels.count);
    const auto target = static_cast<NumberFor<Sample>>(vignette.target) * largestNumber<Sample>;
    for (int channel = 0; channel < pixels.channels; ++channel) {
        MoveTowards(target, shares.data(), pixels.planes[static_cast<std::size_t>(channel)], pixels.count);
    }
}

} // namespace

Picture ApplyVignette(const Picture& picture, const QJsonObject& parameters)
{
    const double amount = parameters[QLatin1String("amount")].toDouble() / 100.0;
    if (amount == 0.0) {
        return picture;
    }
    const auto vignette = std::make_shared<Vignette>();
    const double halfWidth = picture.width() / 2.0;
    for (int x = 0; x < picture.width(); ++x) {
        const double across = (x + 0.5 - halfWidth) / halfWidth;
        vignette->across.push_back(across * across);
    }
    // Without softness: a very short transition.
    constexpr double shortest = 1e-6;
    vignette->halfHeight = picture.height() / 2.0;
    vignette->start = parameters[QLatin1String("start")].toDouble() / 100.0;
    vignette->softness = std::max(parameters[QLatin1String("softness")].toDouble() / 100.0, shortest);
    vignette->amount = std::abs(amount);
    vignette->target = amount < 0.0 ? 0.0 : 1.0;
    return WithOperation(picture, OperationBy([vignette = std::shared_ptr<const Vignette>(vignette)](
                                                  const auto& pixels) { Apply(*vignette, pixels); }));
}

} // namespace BatchWorker
