// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// Brings decoded pixels into the form that the stages expect: grey or RGB, 8 or 16 bits a channel, at most one
/// channel behind the colours, which is alpha. Floating point becomes 16 bits: 0 to 1 is the whole range, the rest is
/// cut off; the values are those of the picture's profile, which has to fit, and without one linear light, which
/// becomes sRGB or grey. Signed numbers keep their order: the smallest becomes 0. Numbers of 32 bits become 16 bits.
/// Other colours without such a form (Lab) become sRGB of 16 bits. Throws PictureFailure for what has no colours.
Picture InWorkingForm(const Picture& decoded);

/// Whether the values of grey or RGB are floating point.
bool IsFloatingPoint(const Picture& decoded);

} // namespace BatchWorker
