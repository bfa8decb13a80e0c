// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

namespace BatchWorker {

/// `picture` with `height` rows, which are not more than it has, and with all its columns: the vertical half of a
/// reduction, by the filter of WithFewerColumns(). 8 and 16 bits are rounded and held within their range; the only
/// other format is float. Sums are added up in one order, so that the values are the same on every processor.
Picture WithFewerRows(const Picture& picture, int height);

} // namespace BatchWorker
