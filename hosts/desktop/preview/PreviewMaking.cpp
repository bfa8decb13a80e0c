// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PreviewMaking.h"

#include "job/values/Phrase.h"
#include "server/protocol/TemporaryFile.h"

#include <QFile>
#include <QImageReader>
#include <QPointer>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchDesktop {

namespace {

Job OfWorker(const WorkerJob& job, const ServerLimits& limits)
{
    return {job.document, limits, job.rightsToMake};
}

/// The user waits for a preview, unlike for a run.
ServerLimits InForeground(ServerLimits limits)
{
    limits.isInBackground = false;
    return limits;
}

/// The picture in a form that is drawn fast. Only for files that the display's worker has made.
QImage PictureIn(const QString& file)
{
    QImage picture = QImageReader(file, "png").read();
    QFile::remove(file);
    return picture.hasAlphaChannel() ? picture.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                                     : picture.convertToFormat(QImage::Format_RGB32);
}

} // namespace

PreviewWorkshop::PreviewWorkshop(const QString& program, const ServerLimits& limits, const QByteArray& displayProfile)
    : place{folder.Path(), displayProfile}
    , spares(program, InForeground(limits), folder.TemporaryPath())
    , display(spares, OfWorker(DisplayJob(place), limits))
{
    // More than there are cores: one that waits for a slow disk must not stop the others.
    constexpr int mostThreads = 8;
    threads.setMaxThreadCount(mostThreads);
}

PreviewMaking::PreviewMaking(PreviewWorkshop& workshop, const Order& order)
    : workshop(workshop)
    , order(order)
{
}

PreviewMaking::~PreviewMaking()
{
    EndWorker();
    for (const QString& file : {beforeFile, afterFile}) {
        if (!file.isEmpty()) {
            QFile::remove(file);
        }
    }
}

void PreviewMaking::Start()
{
    QObject* const home = &workshop.spares; // lives until all threads have ended
    const auto work = [home, self = QPointer<PreviewMaking>(this), order = order, place = workshop.place] {
        TemporaryFile::Sweep(place.folder); // what workers that were ended have left
        const PreviewPlan made = PreviewPlan::Of(order.file, order.settings, place);
        const auto next = [self, made] {
            if (self) {
                self->OnPlanned(made);
            }
        };
        QMetaObject::invokeMethod(home, next, Qt::QueuedConnection);
    };
    workshop.threads.start(work);
}

void PreviewMaking::OnPlanned(const PreviewPlan& newPlan)
{
    plan = newPlan;
    if (plan.result.refusal.code != ZTBatchMessage::NoError) {
        Fail(plan.result.refusal.message);
        return;
    }
    pictures.input = order.file;
    const QString name = QStringLiteral("result-%1").arg(workshop.NextNumber());
    result = std::make_unique<ResultMaking>(workshop.spares, plan.result,
                                            ResultMaking::Order{order.file, workshop.place.folder, name});
    connect(result.get(), &ResultMaking::Made, this, &PreviewMaking::TakeResult);
    connect(result.get(), &ResultMaking::Failed, this, &PreviewMaking::Fail);
    MakeBefore();
    result->Start();
}

void PreviewMaking::TakeResult(const Report& report)
{
    pictures.result = result->File();
    pictures.format = result->Format();
    pictures.inputBytes = result->InputBytes();
    pictures.bytes = result->Bytes();
    pictures.inputSize = report.facts.inputSize;
    pictures.size = report.facts.outputSize;
    pictures.warnings = report.warnings;
    if (!pictures.IsShown()) {
        beforeWorker.reset();
        hasBefore = true;
        pictures.before = {};
        TakeAfter({});
        return;
    }
    displayTask = workshop.NextNumber();
    afterFile = workshop.folder.FilePath(QStringLiteral("after-%1.png").arg(displayTask));
    connect(&workshop.display, &TaskWorker::Reported, this, &PreviewMaking::OnDisplayReported);
    workshop.display.Give(
        PictureTask{displayTask, pictures.result, afterFile, workshop.place.folder, DisplayFormat(), false});
}

void PreviewMaking::OnDisplayReported(const Report& report)
{
    if (report.number != displayTask) {
        return; // It belongs to a preview that was given up.
    }
    if (report.failure == PolicyKind::None) {
        ReadPicture(afterFile, &PreviewMaking::TakeAfter);
    } else {
        Fail(report.reason);
    }
}

void PreviewMaking::MakeBefore()
{
    if (workshop.beforeKey == plan.beforeKey) {
        pictures.before = workshop.before;
        hasBefore = true;
        return;
    }
    beforeWorker = std::make_unique<TaskWorker>(workshop.spares, OfWorker(plan.before, workshop.spares.Limits()));
    connect(beforeWorker.get(), &TaskWorker::Reported, this, &PreviewMaking::OnBeforeReported);
    const int number = workshop.NextNumber();
    beforeFile = workshop.folder.FilePath(QStringLiteral("before-%1.png").arg(number));
    beforeWorker->Give(PictureTask{number, order.file, beforeFile, workshop.place.folder, DisplayFormat(), false});
}

/// A result without a picture before is still worth to be shown.
void PreviewMaking::OnBeforeReported(const Report& report)
{
    if (report.failure == PolicyKind::None && PreviewPictures::CanShow(report.facts.outputSize)) {
        ReadPicture(beforeFile, &PreviewMaking::TakeBefore);
    } else {
        TakeBefore({});
    }
}

void PreviewMaking::ReadPicture(const QString& file, void (PreviewMaking::*next)(const QImage&))
{
    QObject* const home = &workshop.spares;
    const auto work = [home, self = QPointer<PreviewMaking>(this), file, next] {
        const QImage picture = PictureIn(file);
        const auto take = [self, picture, next] {
            if (self) {
                (self->*next)(picture);
            }
        };
        QMetaObject::invokeMethod(home, take, Qt::QueuedConnection);
    };
    workshop.threads.start(work);
}

void PreviewMaking::TakeBefore(const QImage& picture)
{
    if (!picture.isNull()) {
        workshop.before = picture;
        workshop.beforeKey = plan.beforeKey;
    }
    pictures.before = picture;
    hasBefore = true;
    FinishWhenComplete();
}

void PreviewMaking::TakeAfter(const QImage& picture)
{
    if (picture.isNull() && pictures.IsShown()) {
        Fail(Phrase::English("the picture that was made for the screen cannot be read"));
        return;
    }
    pictures.after = picture;
    hasAfter = true;
    FinishWhenComplete();
}

void PreviewMaking::FinishWhenComplete()
{
    if (hasBefore && hasAfter) {
        pictures.seconds = double(order.since.nsecsElapsed()) / 1e9;
        EndWorker();
        Q_EMIT Made(pictures);
    }
}

void PreviewMaking::Fail(const QString& reason)
{
    EndWorker();
    Q_EMIT Failed(reason);
}

/// It may be the caller. That of the result ends itself.
void PreviewMaking::EndWorker()
{
    disconnect(&workshop.display, nullptr, this, nullptr);
    if (beforeWorker) {
        beforeWorker->disconnect(this);
        beforeWorker.release()->deleteLater();
    }
}

} // namespace BatchDesktop
