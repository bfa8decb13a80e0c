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

/// Sends reports in order. A result's report waits until the result stands whole on disk under its name; that happens
/// on a thread of its own, while the next picture is being made.
class ReportQueue
{
public:
    /// Writes to the open file `output`, which stays the caller's.
    explicit ReportQueue(int output);

    /// Sends what still waits.
    ~ReportQueue();

    /// Says at once, ahead of the reports that wait, that the worker turns to the task `number`.
    void Begin(qint32 number);

    /// Sends `report` after those before it. Waits while two results are unfinished already: a slow disk slows the
    /// work down, instead of filling the memory.
    void Send(const BatchProtocol::Report& report);

    /// Gives `made` its final name, then sends `report`, or what went wrong in its place.
    void FinishAndSend(MadePicture made, bool replaceExisting, const BatchProtocol::Report& report);

private:
    Q_DISABLE_COPY(ReportQueue)

    struct Item
    {
        BatchProtocol::Report report;
        std::optional<MadePicture> made;
        bool replaceExisting = false;
    };

    void Append(Item item);
    std::optional<Item> Next();
    void SendAll();
    void Write(const BatchProtocol::FromWorker& message);

    int output;
    std::mutex outputMutex;
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Item> items;
    bool isEnding = false;
    std::thread thread; ///< last: it uses the others
};

} // namespace BatchWorker
