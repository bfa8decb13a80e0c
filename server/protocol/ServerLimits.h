#pragma once

#include <QtGlobal>

namespace BatchProtocol {

/// How much a run may take. The supervisor reads them from its environment once, at its start, and sets them for its
/// workers. A variable that is missing, no number or out of range gives the default.
struct ServerLimits
{
    int workers = 0;                       ///< VELKORA_BATCH_WORKERS, 1 to 256; default: one for each core
    qint64 pixels = 400'000'000;           ///< VELKORA_BATCH_MAX_MEGAPIXELS, 1 to 100000, in millions of pixels
    qint64 workerMemory = qint64(2) << 30; ///< VELKORA_BATCH_WORKER_MIB, 128 to 1048576, in MiB; bytes here
    int pictureSeconds = 300;              ///< VELKORA_BATCH_PICTURE_SECONDS, 1 to 86400: time for one picture

    static ServerLimits FromEnvironment();
};

} // namespace BatchProtocol
