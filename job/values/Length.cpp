// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Length.h"

#include "JobValues.h"

namespace BatchJob {

double PixelsOf(double length, int unit, int resolution)
{
    switch (SizeUnit(unit)) {
    case SizeUnit::Inches:
        return length * resolution;
    case SizeUnit::Centimetres:
        return length / 2.54 * resolution;
    case SizeUnit::Millimetres:
        return length / 25.4 * resolution;
    default:
        return length;
    }
}

bool NeedsResolution(int unit)
{
    return unit == int(SizeUnit::Inches) || unit == int(SizeUnit::Centimetres) || unit == int(SizeUnit::Millimetres);
}

} // namespace BatchJob
