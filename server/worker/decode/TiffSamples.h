// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "TiffLayout.h"

#include <vips/vips8>

#include <cstdint>
#include <memory>
#include <vector>

namespace BatchWorker {

/// Makes values of pictures from samples as a TIFF file stores them.
///
/// Whole numbers of up to 8 bits become 8 bits, others 16 bits; the whole range stays the whole range, and signed
/// numbers keep their order: the smallest becomes 0. Grey is that of which 0 is black, alpha is straight. Floating
/// point stays, as does Lab, which has alpha of 0 to 65535 behind it.
class TiffSamples
{
public:
    TiffSamples(const TiffHandle& file, const TiffLayout& layout);

    /// Whether the colours are no longer those of the file, so that its profile does not describe them.
    bool HasOwnColours() const { return fromLab != nullptr; }

    int Bands() const { return layout.colourSamples + (layout.alpha == TiffAlpha::None ? 0 : 1); }
    VipsBandFormat Format() const { return format; }
    VipsInterpretation Interpretation() const;
    int PixelSize() const { return Bands() * ValueSize(); }

    /// Whether the pixels of a file that is not planar are those of the picture.
    bool IsPlain() const;

    /// Converts `count` pixels at the start of `planes`: one row of samples, or one for each plane.
    void Convert(const std::vector<const std::uint8_t*>& planes, int count, std::uint8_t* target) const;

private:
    struct Palette
    {
        std::vector<std::uint16_t> colours; ///< three for each entry
        bool isDeep = false;
    };

    static Palette PaletteOf(const TiffHandle& file, const TiffLayout& layout);
    VipsBandFormat FormatOf() const;
    int ValueSize() const;
    double Sample(const std::uint8_t* row, int index) const;
    void Interpret(double* values) const;
    void StoreLab(const double* values, std::uint8_t* target) const;
    void Store(const double* values, std::uint8_t* target) const;
    void StorePaletteColour(double index, double alpha, std::uint8_t* target) const;

    struct DeleteTransform
    {
        void operator()(void* transform) const;
    };

    TiffLayout layout;
    std::unique_ptr<void, DeleteTransform> fromLab;
    Palette palette;
    VipsBandFormat format;
    double largest = 1; ///< of a sample
};

} // namespace BatchWorker
