// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ReportQueue.h"

#include <cerrno>
#include <unistd.h>

using namespace BatchProtocol;

namespace BatchWorker {

namespace {

constexpr std::size_t longestQueue = 2;

// A supervisor that has ended needs no report; the worker's input ends soon after.
void WriteAll(int output, const QByteArray& bytes)
{
    const char* rest = bytes.constData();
    qint64 count = bytes.size();
    while (count > 0) {
        const ssize_t written = write(output, rest, std::size_t(count));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return;
        }
        rest += written;
        count -= written;
    }
}

TemporaryFile::Placement PlaceOrFind(TemporaryFile& file, const Placing& placing)
{
    const TemporaryFile::Placement placement = file.Place(placing.replacesExisting);
    if (placement != TemporaryFile::Placement::NameTaken || !placing.countsTwin) {
        return placement;
    }
    if (file.RemovePlaceholder()) {
        file.Place(false); // Else another run of the part has just placed the result.
    }
    return file.HasTwin() ? TemporaryFile::Placement::Done : placement;
}

void Place(const MadePicture& made, const Placing& placing, Report& report)
{
    switch (PlaceOrFind(*made.file, placing)) {
    case TemporaryFile::Placement::Done:
        return;
    case TemporaryFile::Placement::NameTaken:
        report.failure = BatchJob::PolicyKind::Naming;
        report.errorCode = ZTBatchMessage::FileNameAlreadyExists;
        break;
    case TemporaryFile::Placement::Failed:
        report.failure = BatchJob::PolicyKind::Output;
        report.errorCode = ZTBatchMessage::WriteOutputFormatError;
        break;
    }
    report.reason = made.file->Error();
    report.facts = {};
}

} // namespace

ReportQueue::ReportQueue(int output)
    : output(output)
{
}

ReportQueue::~ReportQueue()
{
    {
        const std::lock_guard<std::mutex> lock(mutex);
        isEnding = true;
    }
    changed.notify_all();
    if (thread.joinable()) {
        thread.join();
    }
}

void ReportQueue::SendNow(const FromWorker& message)
{
    const QByteArray bytes = FrameFromWorker(message);
    const std::lock_guard<std::mutex> lock(outputMutex);
    WriteAll(output, bytes);
}

void ReportQueue::Send(const Report& report)
{
    Append({report, std::nullopt, {}});
}

void ReportQueue::FinishAndSend(MadePicture made, const Placing& placing, const Report& report)
{
    Append({report, std::move(made), placing});
}

void ReportQueue::Append(Item item)
{
    if (!thread.joinable()) {
        thread = std::thread([this] { SendAll(); });
    }
    std::unique_lock<std::mutex> lock(mutex);
    changed.wait(lock, [this] { return items.size() < longestQueue; });
    items.push_back(std::move(item));
    changed.notify_all();
}

std::optional<ReportQueue::Item> ReportQueue::Next()
{
    std::unique_lock<std::mutex> lock(mutex);
    changed.wait(lock, [this] { return isEnding || !items.empty(); });
    if (items.empty()) {
        return std::nullopt;
    }
    Item item = std::move(items.front());
    items.pop_front();
    changed.notify_all();
    return item;
}

void ReportQueue::SendAll()
{
    while (std::optional<Item> item = Next()) {
        if (item->made) {
            Place(*item->made, item->placing, item->report);
            item->made.reset();
        }
        SendNow(item->report);
    }
}

} // namespace BatchWorker
