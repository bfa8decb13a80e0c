// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PngParts.h"

#include <QVector>

/// Values of HDR and those of the result. They are worked out apart from this program by the formulas that the
/// documents name: light of ITU-R BT.2100 for 1000 cd/m2, the curve of BT.2390 (5.4.1) from 1000 to 203 cd/m2 on the
/// largest channel, then sRGB.
namespace HdrAnchors {

using PngParts::Colour;

struct Anchor
{
    Colour hdr;
    Colour result;
};

QVector<Anchor> OfPq();

/// In the primaries of Rec. ITU-R BT.2100.
QVector<Anchor> OfHlg();

QVector<Colour> HdrOf(const QVector<Anchor>& anchors);

/// The largest difference of a channel between `found`, patch by patch, and the results of `anchors`.
double LargestDifference(const QVector<Anchor>& anchors, const QVector<Colour>& found);

} // namespace HdrAnchors
