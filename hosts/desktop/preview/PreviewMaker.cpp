// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PreviewMaker.h"

#include "job/values/Phrase.h"
#include "server/protocol/WorkerProgram.h"

#include <QColorSpace>

#include <chrono>

using namespace std::chrono_literals;

namespace BatchDesktop {

namespace {

/// A slider that moves asks for a preview with each step: all but the first wait for the end of the movement.
constexpr auto delayTime = 120ms;

/// One for the result, one for the picture before.
constexpr int spareWorkers = 2;

} // namespace

PreviewMaker::PreviewMaker(const QString& program, const BatchProtocol::ServerLimits& limits,
                           const QByteArray& displayProfile, QObject* parent)
    : QObject(parent)
    , workshop(program, limits, displayProfile)
{
    delay.setSingleShot(true);
    connect(&delay, &QTimer::timeout, this, &PreviewMaker::BeginWhenPossible);
    connect(&workshop.spares, &SpareWorkers::Changed, this, &PreviewMaker::BeginWhenPossible);
    workshop.spares.Prepare(spareWorkers);
}

PreviewMaker::PreviewMaker(QObject* parent)
    : PreviewMaker(BatchProtocol::WorkerProgram(), BatchProtocol::ServerLimits::FromEnvironment(),
                   QColorSpace(QColorSpace::SRgb).iccProfile(), parent)
{
}

PreviewMaker::~PreviewMaker() = default;

void PreviewMaker::Show(const QString& file, const Settings& settings)
{
    next = PreviewMaking::Order{file, settings, {}};
    next->since.start();
    delay.start(isMaking || delay.isActive() ? delayTime : 0ms);
    if (!isUpdating) {
        isUpdating = true;
        Q_EMIT Updating();
    }
}

void PreviewMaker::Stop()
{
    delay.stop();
    next.reset();
    making.reset();
    isMaking = false;
    isUpdating = false;
    workshop.spares.Prepare(spareWorkers);
    Q_EMIT Stopped();
}

/// A preview that nobody wants any more is ended as soon as another worker can begin at once, or it ends by itself.
void PreviewMaker::BeginWhenPossible()
{
    if (!next || delay.isActive()) {
        return;
    }
    if (isMaking && !workshop.spares.HasReady()) {
        workshop.spares.Prepare(1);
        return;
    }
    Begin();
}

void PreviewMaker::Begin()
{
    if (!workshop.folder.Error().isEmpty()) {
        next.reset();
        OnFailed(
            BatchJob::Phrase::English("no private folder can be made for previews: %1").arg(workshop.folder.Error()));
        return;
    }
    making = std::make_unique<PreviewMaking>(workshop, *next);
    next.reset();
    connect(making.get(), &PreviewMaking::Made, this, &PreviewMaker::OnMade);
    connect(making.get(), &PreviewMaking::Failed, this, &PreviewMaker::OnFailed);
    isMaking = true;
    making->Start();
}

void PreviewMaker::OnMade(const PreviewPictures& pictures)
{
    Finish();
    if (!next) {
        isUpdating = false;
        Q_EMIT Made(pictures);
    }
}

void PreviewMaker::OnFailed(const QString& reason)
{
    Finish();
    if (!next) {
        isUpdating = false;
        Q_EMIT Failed(reason);
    }
}

void PreviewMaker::Finish()
{
    isMaking = false;
    workshop.spares.Prepare(spareWorkers);
    if (next) {
        QMetaObject::invokeMethod(this, &PreviewMaker::BeginWhenPossible, Qt::QueuedConnection);
    }
}

} // namespace BatchDesktop
