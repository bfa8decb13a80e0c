// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/protocol/WorkerMessages.h"
#include "server/worker/pipeline/PictureMaker.h"

#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace BatchWorker {

/// What a result does about a file that has its final name.
struct Placing
{
    bool replacesExisting = false;
    bool countsTwin = false; ///< a file of the same bytes is the result
};

/// Sends reports in order. The report on a result is sent once the result is complete on disk under its final name;
/// that happens on a thread of its own, while the next picture is being made. The thread starts with the first report
/// that is queued.
class ReportQueue
{
public:
    /// Writes to the open file `output`, which stays the caller's.
    explicit ReportQueue(int output);

    /// Sends what is still queued.
    ~ReportQueue();

    /// Sends `message` at once, ahead of queued reports.
    void SendNow(const BatchProtocol::FromWorker& message);

    /// Sends `report` after those before it. Waits while two reports are queued already: a slow disk slows the work
    /// down, instead of filling the memory.
    void Send(const BatchProtocol::Report& report);

    /// Gives `made` its final name, then sends `report`; on failure, the reason instead.
    void FinishAndSend(MadePicture made, const Placing& placing, const BatchProtocol::Report& report);

private:
    Q_DISABLE_COPY(ReportQueue)

    struct Item
    {
        BatchProtocol::Report report;
        std::optional<MadePicture> made;
        Placing placing;
    };

    void Append(Item item);
    std::optional<Item> Next();
    void SendAll();

    int output;
    std::mutex outputMutex;
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Item> items;
    bool isEnding = false;
    std::thread thread; ///< last: it uses the others
};

} // namespace BatchWorker
