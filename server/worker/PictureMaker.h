#pragma once

#include "JobSettings.h"
#include "TemporaryFile.h"
#include "WorkerMessages.h"

#include <QStringList>

#include <memory>

namespace BatchServer {

/// A result that is complete but for its name.
struct MadePicture
{
    std::unique_ptr<TemporaryFile> file;
    qint64 bytes = 0;
    QStringList warnings;
};

/// Makes the result of `task` in a temporary file: decode, upright, crop, size, effects, framing, colour, encode.
/// Throws PictureFailure; nothing is left behind then.
MadePicture MakePicture(const JobSettings& job, const PictureTask& task);

} // namespace BatchServer
