// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

namespace BatchDesktop {

/// Which value each position of a slider stands for. Wide ranges, such as 1 to 10,000, give small values as much room
/// as large ones.
class SliderScale
{
public:
    SliderScale(double low, double high, bool isWhole);

    int Minimum() const { return first; }
    int Maximum() const { return last; }

    /// Rounded to what the eye can tell on a slider.
    double ValueAt(int position) const;

    int PositionOf(double value) const;

    /// The step of arrow keys in a box with the value; 0 where it depends on the value.
    double Step() const { return isWide ? 0.0 : step; }

private:
    double Stretched(double share) const;

    double minimum;
    double maximum;
    bool isInteger;
    bool isWide;
    bool isBothWays; ///< wide to both sides of 0
    double step = 1;
    int first = 0;
    int last = 0;
};

} // namespace BatchDesktop
