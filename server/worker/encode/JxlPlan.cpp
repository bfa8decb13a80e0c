// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JxlPlan.h"

#include <algorithm>
#include <array>

namespace BatchWorker {

namespace {

// Without loss the encoder's steps are farther apart: from 3 to 4 it takes five times as long, for files 2 to 12 %
// smaller.
constexpr std::array losslessEfforts{1, 1, 1, 2, 2, 3, 3, 3, 5, 7};

// The highest effort that takes little memory.
constexpr int leanEffort = 7;

// The same with alpha. It is always written without loss, and detailed alpha takes twice the time from 5 to 7, for
// files of the same size and quality.
constexpr int leanEffortWithAlpha = 5;

// Up to here the encoder may use all that it has: 1.1 GiB and some seconds. Its time and memory grow with the picture.
constexpr qint64 smallPixels = qint64(2048) * 2048;

// What one frame may take, even if there is more.
constexpr qint64 mostMemory = qint64(1280) << 20;

bool HasAlpha(const JxlPicture& picture)
{
    return picture.bands % 2 == 0;
}

int LeanEffort(const JxlPicture& picture, int wanted)
{
    return std::min(wanted, HasAlpha(picture) ? leanEffortWithAlpha : leanEffort);
}

// Bytes that libjxl 0.7 was seen to take for each pixel, and a tenth more.
qint64 BytesOfPixel(const JxlPicture& picture, const JxlPlan& plan)
{
    const int bytesOfInput = picture.bands * picture.bits / 8;
    if (picture.isLossless) {
        const int ofChannel = plan.effort > 3 ? 27 : 24;
        return bytesOfInput + picture.bands * ofChannel;
    }
    const int ofColours = plan.effort > leanEffort ? 300 : (plan.looksForRepeats ? 180 : 48);
    return bytesOfInput + ofColours + (HasAlpha(picture) ? 24 : 0);
}

// Rows that the encoder works on together.
int RoundedDown(qint64 rows)
{
    constexpr qint64 ofGroup = 256;
    constexpr qint64 ofBlock = 8;
    return int(rows >= ofGroup ? rows - rows % ofGroup : rows - rows % ofBlock);
}

// Equal strips of at most `most` rows.
int StripHeight(int height, int most)
{
    const int strips = (height + most - 1) / most;
    const int equal = (height + strips - 1) / strips;
    constexpr int ofGroup = 256;
    return std::min(most, (equal + ofGroup - 1) / ofGroup * ofGroup);
}

} // namespace

std::optional<JxlPlan> PlanJxl(const JxlPicture& picture, int effort, qint64 memory)
{
    const qint64 pixels = qint64(picture.width) * picture.height;
    const qint64 available = std::min(memory, mostMemory);
    JxlPlan plan;
    plan.frameHeight = picture.height;
    const int wanted = picture.isLossless ? losslessEfforts[std::size_t(effort)] : std::max(1, effort);
    const bool isSmall = pixels <= smallPixels;
    plan.effort = isSmall || picture.isLossless ? wanted : LeanEffort(picture, wanted);
    plan.looksForRepeats = isSmall && !picture.isLossless && wanted >= leanEffort;
    if (pixels * BytesOfPixel(picture, plan) <= available) {
        return plan;
    }
    plan.effort = picture.isLossless ? wanted : LeanEffort(picture, wanted);
    plan.looksForRepeats = false;
    const qint64 rows = available / BytesOfPixel(picture, plan) / picture.width;
    if (rows >= picture.height) {
        return plan;
    }
    const int most = RoundedDown(rows);
    if (most == 0) {
        return std::nullopt;
    }
    plan.frameHeight = StripHeight(picture.height, most);
    return plan;
}

} // namespace BatchWorker
