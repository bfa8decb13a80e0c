// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "CodedColours.h"

#include "job/values/Warning.h"
#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// `picture`, whose values are PQ or HLG of these `colours`, for a screen that shows no more than white: in the same
/// primaries, with the curve of sRGB and the profile of both. Grey or RGB of 8 or 16 bits, 0 to the largest value;
/// depth and alpha stay. A warning says that it happened, once for each list of warnings.
///
/// The light of the values is that of a screen of 1000 cd/m2: PQ says it directly (Rec. ITU-R BT.2100, table 4), HLG by
/// its system gamma of 1.2 (table 5). 203 cd/m2, the white of Report ITU-R BT.2408, becomes the white of the result.
/// What is brighter is compressed by the curve of Report ITU-R BT.2390, section 5.4.1 (EETF): up to 88 cd/m2
/// nothing changes, 203 cd/m2 become 159, 1000 and more become 203. The curve is applied to the largest of red, green
/// and blue, and all three are scaled alike, so that hues stay.
Picture FromHdr(const Picture& picture, const HdrColours& colours, BatchJob::Warnings& warnings);

} // namespace BatchWorker
