// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTBatchManagerTimings_p.h"

ZTBatchManagerTimings& ZTBatchManagerTimings::InUse()
{
    static ZTBatchManagerTimings timings;
    return timings;
}
