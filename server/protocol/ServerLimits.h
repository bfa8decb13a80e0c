// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

namespace BatchProtocol {

/// A limit as a whole number in an environment variable.
struct ServerLimit
{
    const char* variable;
    int minimum;
    int maximum;

    /// Sets the variable for this process and those that it starts from now on.
    void Set(int value) const;
};

constexpr ServerLimit workersLimit{"VELKORA_BATCH_WORKERS", 1, 256};
constexpr ServerLimit megapixelsLimit{"VELKORA_BATCH_MAX_MEGAPIXELS", 1, 100'000};
constexpr ServerLimit workerMemoryLimit{"VELKORA_BATCH_WORKER_MIB", 128, 1 << 20};
constexpr ServerLimit pictureTimeLimit{"VELKORA_BATCH_PICTURE_SECONDS", 1, 86'400};
constexpr ServerLimit followLinksLimit{"VELKORA_BATCH_FOLLOW_LINKS", 0, 1};
constexpr ServerLimit inPlaceLimit{"VELKORA_BATCH_IN_PLACE", 0, 1};
constexpr ServerLimit normalPriorityLimit{"VELKORA_BATCH_NORMAL_PRIORITY", 0, 1};
constexpr ServerLimit sharedNamesLimit{"VELKORA_BATCH_REFUSE_SHARED_NAMES", 0, 1};

/// How much a run may take. The supervisor reads the limits from its environment once, when it starts, and passes them
/// on to its workers. A variable that is missing, not a number or out of range gives the default.
struct ServerLimits
{
    int workers = 0; ///< default: one for each core
    qint64 pixels = 400'000'000;
    qint64 workerMemory = qint64(2) << 30; ///< bytes
    int pictureSeconds = 300;              ///< time for one picture
    bool followsLinks = false; ///< results go through links to folders below the output folder; only for the supervisor
    bool replacesOriginals = false;  ///< results may take the places of their own originals; only for the supervisor
    bool isInBackground = true;      ///< workers give way to other programs, see ChildProcess::KeepInBackground()
    bool refusesSharedNames = false; ///< a job is refused if results would be skipped because others have their names;
                                     ///< only for the supervisor

    static ServerLimits FromEnvironment();

    /// The largest file that a worker may write, in bytes: four channels in floating point, in a temporary file.
    qint64 LargestFile() const
    {
        constexpr qint64 bytesOfPixel = 16;
        constexpr qint64 metadata = qint64(64) << 20;
        return pixels * bytesOfPixel + metadata;
    }
};

} // namespace BatchProtocol
