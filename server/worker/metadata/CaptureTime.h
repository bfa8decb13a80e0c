// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "MetadataReader.h"

#include <QDateTime>

namespace BatchWorker {

/// When a picture was taken, by the clock of the camera where that is known; invalid if nothing says it. Sources in
/// their order: EXIF DateTimeOriginal, DateTimeDigitized, DateTime; XMP exif:DateTimeOriginal, photoshop:DateCreated,
/// xmp:CreateDate; IPTC date and time of creation; MetadataBlocks::created. A source whose date does
/// not exist, such as "0000:00:00 00:00:00", counts as absent.
QDateTime CaptureTime(const MetadataBlocks& blocks);

} // namespace BatchWorker
