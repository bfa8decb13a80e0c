// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/PointPass.h"

namespace BatchWorker {

/// The operation that makes pixels of `bits` (8 or 16) a channel as light as they are, in grey: three equal values that
/// stand for the luminance of the colour.
PointOperation GreyByLuminance(int bits);

} // namespace BatchWorker
