// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/settings/JobCheck.h"
#include "job/values/PictureFacts.h"
#include "job/values/Warning.h"
#include "server/protocol/TemporaryFile.h"
#include "server/protocol/WorkerMessages.h"

#include <memory>

namespace BatchWorker {

class KeptPixels;

/// A result that is complete but for its name.
struct MadePicture
{
    std::unique_ptr<BatchProtocol::TemporaryFile> file;
    BatchJob::PictureFacts facts; ///< without bytes and time
    BatchJob::Warnings warnings;
};

/// Makes the result of `task` in a temporary file: decode, upright, crop, size, effects, framing, colour, encode.
/// Throws PictureFailure; nothing is left behind then. For `kept` see PictureSource.
MadePicture MakePicture(const BatchJob::JobSettings& job, const BatchProtocol::ServerLimits& limits,
                        const BatchProtocol::PictureTask& task, KeptPixels* kept = nullptr);

} // namespace BatchWorker
