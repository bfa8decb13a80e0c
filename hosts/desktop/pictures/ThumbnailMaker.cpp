// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ThumbnailMaker.h"

#include "hosts/common/JobDefaults.h"
#include "job/settings/JobCheck.h"
#include "job/settings/JobFiles.h"
#include "job/values/JobValues.h"
#include "server/protocol/WorkerFiles.h"
#include "server/protocol/WorkerProgram.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

#include <QFileInfo>

#include <algorithm>

using namespace BatchProtocol;

namespace BatchDesktop {

namespace {

/// Of the longer side, for twice the size of a cell on a screen of double density.
constexpr int thumbnailSize = 256;

ServerLimits LimitsOfThumbnails()
{
    constexpr int longestTime = 60; // s
    ServerLimits limits = ServerLimits::FromEnvironment();
    limits.workers = 1;
    limits.pictureSeconds = std::min(limits.pictureSeconds, longestTime);
    return limits;
}

void SetThumbnailJob(ZTBatchDocument& job, const QString& folder)
{
    BatchHost::SetJobDefaults(job);
    ZTBatchOutputSettings& output = *job.GetOutputSettings();
    output.SetPath(folder);
    output.SetFormat(QStringLiteral("PNG"), R"({"bitDepth":8,"compressionLevel":1,"keep":["icc"]})");
    ZTBatchOutputSettings::ImageSize size = output.GetImageSizeSettings();
    size.restriction = int(BatchJob::SizeRestriction::ReduceOnly);
    size.side = int(BatchJob::SizeSide::LongSide);
    size.unit = int(BatchJob::SizeUnit::Pixels);
    size.size = thumbnailSize;
    output.SetImageSizeSettings(size);
}

} // namespace

bool ThumbnailMaker::Reach::Covers(const QString& path) const
{
    const QFileInfo info(path);
    return files.contains(path) || (!info.isSymLink() && folders.contains(info.absolutePath()));
}

ThumbnailMaker::ThumbnailMaker(const QString& folder, QObject* parent)
    : QObject(parent)
    , folder(folder)
{
}

ThumbnailMaker::~ThumbnailMaker() = default;

void ThumbnailMaker::Make(const QString& source, const QString& target, const QStringList& others)
{
    if (!pool) {
        pool = std::make_unique<WorkerPool>(WorkerProgram(), LimitsOfThumbnails());
        connect(pool.get(), &WorkerPool::RoomMade, this, &ThumbnailMaker::HandOut, Qt::QueuedConnection);
        connect(pool.get(), &WorkerPool::Reported, this, [this](const Assignment& task, const Report& report) {
            Finish(task, report.failure == BatchJob::PolicyKind::None);
        });
        connect(pool.get(), &WorkerPool::Lost, this, [this](const Assignment& task) { Finish(task, false); });
        connect(pool.get(), &WorkerPool::Returned, this, [this](const Assignment& task) { waiting.prepend(task); });
        connect(pool.get(), &WorkerPool::Broken, this, [this] {
            waiting.clear();
            targets.clear();
            Q_EMIT Unable();
        });
        pool->Start();
    }
    if (!reach.Covers(source)) {
        Extend(source, others);
    }
    PictureTask picture;
    picture.number = ++lastNumber;
    picture.inputFile = source;
    picture.outputFile = target;
    picture.outputRoot = folder;
    picture.format = QStringLiteral("PNG");
    picture.replaceExisting = true;
    Assignment task;
    task.file = picture.number;
    task.job = reach.job;
    task.task = picture;
    waiting.append(task);
    targets.insert(task.file, target);
    HandOut();
}

/// The next worker may read `source` and `others`.
void ThumbnailMaker::Extend(const QString& source, const QStringList& others)
{
    reach = {};
    QVector<BatchJob::JobFile> files;
    for (const QString& path : QStringList(source) + others) {
        reach.files.insert(path);
        reach.folders.insert(QFileInfo(path).absolutePath());
        files.append({path, QStringLiteral("folder")}); // So that all of its folder can be read.
    }
    ZTBatchDocument job;
    SetThumbnailJob(job, folder);
    const BatchJob::JobSettings settings = BatchJob::CheckSettings(job).settings;
    reach.job = FrameToWorker(BatchProtocol::Job{BatchJob::SettingsTextOf(job), LimitsOfThumbnails(),
                                                 RightsToWrite(RightsToRead(settings, files), settings)});
}

void ThumbnailMaker::HandOut()
{
    while (!waiting.isEmpty()) {
        const Assignment& task = waiting.first();
        pool->Serve({task.job});
        const bool hasRoom = task.isSecondTry ? pool->HasIdleWorker(task.job) : pool->HasRoom(task.job, waiting.size());
        if (!hasRoom) {
            return;
        }
        pool->Give(waiting.takeFirst());
    }
}

void ThumbnailMaker::Finish(const Assignment& task, bool isThere)
{
    const QString target = targets.take(task.file);
    if (!target.isEmpty()) {
        Q_EMIT Made(target, isThere);
    }
}

} // namespace BatchDesktop
