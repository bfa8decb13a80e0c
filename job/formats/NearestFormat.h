// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "FormatSchema.h"

#include <QSize>
#include <QString>

namespace BatchJob {

/// What a picture asks of the format that it is written in.
struct FormatNeeds
{
    bool isDeep = false; ///< more than 8 bits a channel
    bool hasAlpha = false;
    bool isCmyk = false;
    QSize size; ///< empty when it is not known
};

/// The format that results get in place of one that cannot be written or cannot hold the picture: TIFF for camera RAW,
/// for more than 8 bits a channel and for sides that the others do not hold; PNG with transparency; else JPEG. `input`
/// is the format of the input as FormatOfFile() names it. Without `needs` the answer is as good as it can be before
/// anybody has looked at the pixels.
const FormatSchema& NearestFormat(const QString& input, const FormatNeeds& needs = {});

} // namespace BatchJob
