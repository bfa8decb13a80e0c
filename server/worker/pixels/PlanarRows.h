// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PlanarOperation.h"

/// Between pixels as pictures hold them, channel beside channel, and planes.
namespace BatchWorker {

/// Copies the colours of pixels with `bands` channels (2 to 4) from `pixels` to the planes of `colours`.
template<typename Sample>
void SplitColours(const Sample* pixels, int bands, const PlanarPixels<Sample>& colours);

/// The opposite, to `result`; alpha comes from `pixels`.
template<typename Sample>
void JoinColours(const PlanarPixels<Sample>& colours, const Sample* pixels, int bands, Sample* result);

} // namespace BatchWorker
