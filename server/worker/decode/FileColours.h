// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"
#include "server/worker/colour/CodedColours.h"
#include "server/worker/pixels/Picture.h"

#include <QByteArray>

#include <optional>

namespace BatchWorker {

/// What a file says of its colours where the imaging library does not tell.
struct FileColours
{
    QByteArray profile;            ///< an ICC profile, of the file or made from what it says
    std::optional<HdrColours> hdr; ///< PQ or HLG
    bool isSrgb = false;           ///< sRGB by numbers that count more than a profile
    bool isNarrow = false;         ///< values of television, where black and white lie within the range
    bool isUnusable = false;       ///< the file describes its colours, but in a damaged or unknown way
};

/// The colours that `coded` stands for. Those of sRGB need no profile.
FileColours ColoursOf(const CodedColours& coded);

/// `picture` as a library has decoded it, with the profile of `colours` if there is one. HDR becomes a picture for
/// common screens. A warning about that, or about colours that are not known, is appended once.
Picture WithColoursOfFile(const Picture& picture, const FileColours& colours, BatchJob::Warnings& warnings);

} // namespace BatchWorker
