// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "BicubicTurn.h"
#include "Coverage.h"

#include "server/worker/pixels/FilledPicture.h"
#include "server/worker/pixels/SampleRange.h"
#include "server/worker/pixels/VectorCode.h"

#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <memory>
#include <vector>

namespace BatchWorker {

/// Where a picture is drawn, and what lies under it.
struct TurnPlan
{
    int width; ///< of the picture
    int height;
    QTransform toPicture; ///< from the canvas
    BicubicTurn interpolation;
    Coverage coverage;
    std::vector<float> paint; ///< a premultiplied colour; empty where the picture lies on nothing
};

/// The four values of each pixel that interpolation takes: samples, weighted by alpha if that is the last of them, and
/// zeros.
template<typename Sample, int bands>
BATCH_VECTOR_CODE void WidenPixels(const Sample* samples, int count, float* values)
{
    constexpr bool hasAlpha = bands % 2 == 0;
    constexpr float share = 1.0F / largestSample<Sample>;
    for (int i = 0; i < count; ++i) {
        const float weight = hasAlpha ? static_cast<float>(samples[i * bands + bands - 1]) * share : 1.0F;
        for (int band = 0; band < 4; ++band) {
            const float value = band < bands ? static_cast<float>(samples[i * bands + band]) : 0.0F;
            values[i * 4 + band] = hasAlpha && band == bands - 1 ? value : value * weight;
        }
    }
}

/// The opposite of WidenPixels().
template<typename Sample, int bands>
BATCH_VECTOR_CODE void NarrowPixels(const float* values, int count, Sample* samples)
{
    constexpr bool hasAlpha = bands % 2 == 0;
    for (int i = 0; i < count; ++i) {
        const float alpha = values[i * 4 + bands - 1];
        const float factor = hasAlpha ? (alpha != 0.0F ? largestSample<Sample> / alpha : 0.0F) : 1.0F;
        for (int band = 0; band < bands; ++band) {
            const float value = values[i * 4 + band];
            samples[i * bands + band] = Rounded<Sample>(hasAlpha && band == bands - 1 ? value : value * factor);
        }
    }
}

/// Makes a canvas tile by tile from the pixels of the picture that lie around each.
template<typename Sample, int bands>
class TurnedAreas : public AreaFiller
{
public:
    explicit TurnedAreas(std::shared_ptr<const TurnPlan> plan)
        : plan(std::move(plan))
    {
    }

    bool Fill(VipsRegion* target, VipsRegion* source) override
    {
        const VipsRect& area = target->valid;
        const int right = area.left + area.width;
        const int bottom = area.top + area.height;
        for (int top = area.top; top < bottom; top += tileSide) {
            for (int left = area.left; left < right; left += tileSide) {
                const VipsRect tile{left, top, std::min(tileSide, right - left), std::min(tileSide, bottom - top)};
                if (!FillTile(target, source, tile)) {
                    return false;
                }
            }
        }
        return true;
    }

private:
    static constexpr int tileSide = 128;
    static constexpr std::size_t valuesOfPixel = 4;

    bool FillTile(VipsRegion* target, VipsRegion* source, const VipsRect& tile)
    {
        const VipsRect around = PixelsAround(tile);
        const VipsRect picture{0, 0, plan->width, plan->height};
        VipsRect touched;
        vips_rect_intersectrect(&around, &picture, &touched);
        const bool isTouched = !vips_rect_isempty(&touched);
        if (isTouched && !TakePixels(source, around)) {
            return false;
        }
        for (int y = tile.top; y < tile.top + tile.height; ++y) {
            auto* const samples = PixelAt<Sample>(target, tile.left, y);
            if (isTouched) {
                FillRow(around, tile, y);
            } else {
                Paint(0, tile.width);
            }
            NarrowPixels<Sample, bands>(row.data(), tile.width, samples);
        }
        return true;
    }

    /// What interpolation may look at, with one pixel more for what rounding does.
    VipsRect PixelsAround(const VipsRect& tile) const
    {
        const QRectF middles(tile.left + 0.5, tile.top + 0.5, tile.width - 1, tile.height - 1);
        const QPolygonF places = plan->toPicture.map(
            QPolygonF({middles.topLeft(), middles.topRight(), middles.bottomRight(), middles.bottomLeft()}));
        const QRectF box = places.boundingRect();
        const int left = int(std::floor(box.left() - 0.5)) - 2;
        const int top = int(std::floor(box.top() - 0.5)) - 2;
        return {left, top, int(std::floor(box.right() - 0.5)) + 4 - left,
                int(std::floor(box.bottom() - 0.5)) + 4 - top};
    }

    /// Beyond its edges the picture goes on as there.
    bool TakePixels(VipsRegion* source, const VipsRect& around)
    {
        const int left = std::clamp(around.left, 0, plan->width - 1);
        const int right = std::clamp(around.left + around.width - 1, 0, plan->width - 1) + 1;
        const int top = std::clamp(around.top, 0, plan->height - 1);
        const int bottom = std::clamp(around.top + around.height - 1, 0, plan->height - 1) + 1;
        const VipsRect needed{left, top, right - left, bottom - top};
        if (vips_region_prepare(source, &needed) != 0) {
            return false;
        }
        const std::size_t stride = std::size_t(around.width) * valuesOfPixel;
        pixels.resize(stride * std::size_t(around.height));
        for (int y = 0; y < around.height; ++y) {
            const int line = std::clamp(around.top + y, 0, plan->height - 1);
            float* const first = pixels.data() + std::size_t(y) * stride;
            float* const begin = first + std::size_t(left - around.left) * valuesOfPixel;
            float* const end = begin + std::size_t(needed.width) * valuesOfPixel;
            WidenPixels<Sample, bands>(PixelAt<const Sample>(source, left, line), needed.width, begin);
            for (float* pixel = begin; pixel > first; pixel -= valuesOfPixel) {
                std::copy_n(begin, valuesOfPixel, pixel - valuesOfPixel);
            }
            for (float* pixel = end; pixel < first + stride; pixel += valuesOfPixel) {
                std::copy_n(end - valuesOfPixel, valuesOfPixel, pixel);
            }
        }
        return true;
    }

    void FillRow(const VipsRect& around, const VipsRect& tile, int y)
    {
        const Coverage::Columns all{tile.left, tile.left + tile.width};
        const Coverage::Columns touched = plan->paint.empty() ? all : plan->coverage.Touched(y, all);
        const QPointF first = plan->toPicture.map(QPointF(0.5, y + 0.5)) - QPointF(0.5, 0.5);
        const BicubicTurn::Line line{first.x(), first.y(), plan->toPicture.m11(), plan->toPicture.m12()};
        const PixelBlock block{around.left, around.top, std::ptrdiff_t(around.width) * 4, pixels.data()};
        plan->interpolation.Interpolate(block, line, touched.first, touched.end - touched.first,
                                        row.data() + std::size_t(touched.first - tile.left) * valuesOfPixel);
        if (!plan->paint.empty()) {
            Paint(0, touched.first - tile.left);
            Paint(touched.end - tile.left, tile.width);
            const Coverage::Columns covered = plan->coverage.WhollyCovered(y, touched);
            PaintUnder(touched.first, covered.first, y, tile.left);
            PaintUnder(covered.end, touched.end, y, tile.left);
        }
    }

    void Paint(int first, int end)
    {
        for (int i = first; i < end; ++i) {
            for (std::size_t band = 0; band < valuesOfPixel; ++band) {
                row[std::size_t(i) * valuesOfPixel + band] = band < plan->paint.size() ? plan->paint[band] : 0.0F;
            }
        }
    }

    void PaintUnder(int first, int end, int y, int left)
    {
        for (int x = first; x < end; ++x) {
            const auto covered = static_cast<float>(plan->coverage.OfPixel(x, y));
            float* const values = row.data() + std::size_t(x - left) * valuesOfPixel;
            for (std::size_t band = 0; band < plan->paint.size(); ++band) {
                values[band] = covered * values[band] + (1.0F - covered) * plan->paint[band];
            }
        }
    }

    std::shared_ptr<const TurnPlan> plan;
    std::vector<float> pixels; ///< around a tile
    std::array<float, tileSide * valuesOfPixel> row{};
};

} // namespace BatchWorker
