// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <optional>

namespace BatchWorker {

/// A picture that is to be written as JPEG XL.
struct JxlPicture
{
    int width = 0;
    int height = 0;
    int bands = 3;
    int bits = 8; ///< of a channel: 8 or 16
    bool isLossless = false;
};

/// How a picture is written as JPEG XL.
struct JxlPlan
{
    int effort = 1;               ///< on the encoder's scale, 1 to 9
    bool looksForRepeats = false; ///< finds parts of the picture that repeat, such as letters
    int frameHeight = 0;          ///< rows of each frame but the last, which may have fewer
};

/// The plan for `picture` at `effort`, 0 to 9, which takes at most `memory` bytes; nothing when no plan does.
///
/// The encoder holds a frame in memory several times over. A picture that is too large for one frame is divided into
/// strips, each a frame of its own: readers show them as one picture, but take longer to open it. Strips are seen
/// nowhere but there, so a plan has as few as it can.
std::optional<JxlPlan> PlanJxl(const JxlPicture& picture, int effort, qint64 memory);

} // namespace BatchWorker
