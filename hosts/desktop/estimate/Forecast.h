// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ByteSum.h"

#include <QString>

#include <optional>

namespace BatchDesktop {

/// What a run would do.
struct Forecast
{
    int files = 0;
    bool areNamesKnown = false; ///< otherwise the four numbers mean nothing
    int newNames = 0;
    int takenNames = 0; ///< the run would ask, or leave out
    int replaced = 0;   ///< files that exist
    int unwritable = 0; ///< for other reasons
    std::optional<ByteSum> sum;
    qint64 freeBytes = -1; ///< where the results go; negative if it is not known

    /// Whether the results will probably not fit onto their disk.
    bool IsRoomShort() const;

    /// All of it in sentences.
    QString Text() const;
};

} // namespace BatchDesktop
