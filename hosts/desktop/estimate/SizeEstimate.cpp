// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SizeEstimate.h"

#include "hosts/desktop/making/FreeBytes.h"
#include "server/protocol/TemporaryFile.h"
#include "server/protocol/WorkerProgram.h"

#include <QDir>
#include <QFileInfo>

#include <chrono>
#include <utility>

using namespace BatchProtocol;
using namespace std::chrono_literals;

namespace BatchDesktop {

namespace {

constexpr auto quietTime = 800ms;

/// With an interval like this half of the samples is enough.
constexpr int narrowPercent = 10;

/// The folder may have to be made by the run.
qint64 FreeBytesFor(const QString& folder)
{
    if (folder.isEmpty()) {
        return -1;
    }
    QString existing = QDir::cleanPath(folder);
    while (!QFileInfo::exists(existing) && QFileInfo(existing).path() != existing) {
        existing = QFileInfo(existing).path();
    }
    return FreeBytes(existing);
}

} // namespace

SizeEstimate::SizeEstimate(const QString& program, const ServerLimits& limits, QObject* parent)
    : QObject(parent)
    , spares(program, limits, folder.TemporaryPath())
{
    delay.setSingleShot(true);
    delay.setInterval(quietTime);
    connect(&delay, &QTimer::timeout, this, &SizeEstimate::Choose);
}

SizeEstimate::SizeEstimate(QObject* parent)
    : SizeEstimate(WorkerProgram(), ServerLimits::FromEnvironment(), parent)
{
}

SizeEstimate::~SizeEstimate()
{
    Forget();
    threads.waitForDone();
}

void SizeEstimate::Ask(const QStringList& newFiles, const Settings& newSettings)
{
    Forget();
    files = newFiles;
    settings = newSettings;
    if (!files.isEmpty()) {
        isWorking = true;
        delay.start();
    }
}

void SizeEstimate::Stop()
{
    Forget();
    files.clear();
}

void SizeEstimate::Forget()
{
    delay.stop();
    if (isCancelled) {
        *isCancelled = true;
    }
    making.reset();
    choice = {};
    made.clear();
    sum.reset();
    isWorking = false;
}

void SizeEstimate::Hold(bool isOn)
{
    if (isHeld == isOn) {
        return;
    }
    isHeld = isOn;
    if (isHeld) {
        making.reset();
    } else {
        Next();
    }
}

SizeEstimate::Cancelled SizeEstimate::NewWork()
{
    if (isCancelled) {
        *isCancelled = true;
    }
    isCancelled = std::make_shared<std::atomic<bool>>(false);
    return isCancelled;
}

void SizeEstimate::Choose()
{
    const auto work = [this, flag = NewWork(), files = files, target = settings.outputFolder] {
        const SampleChoice chosen = SampleChoice::Of(files, [flag] { return flag->load(); });
        const qint64 room = FreeBytesFor(target);
        const auto take = [this, flag, chosen, room] {
            if (!*flag) {
                TakeChoice(chosen, room);
            }
        };
        QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
    };
    threads.start(work); // All of it ends before this object.
}

void SizeEstimate::TakeChoice(const SampleChoice& newChoice, qint64 newFreeBytes)
{
    choice = newChoice;
    freeBytes = newFreeBytes;
    isWorking = folder.Error().isEmpty();
    Q_EMIT Changed();
    Next();
}

/// Makes the next sample that is not known.
void SizeEstimate::Next()
{
    if (isHeld || !isWorking || choice.samples.isEmpty()) {
        return;
    }
    const QString file = choice.samples[made.size()].file;
    const auto work = [this, flag = NewWork(), file, settings = settings, place = folder.Path()] {
        TemporaryFile::Sweep(place);
        const ResultPlan plan = ResultPlan::Of(file, settings, place);
        const auto take = [this, flag, plan] {
            if (!*flag && !isHeld) {
                Make(plan);
            }
        };
        QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
    };
    threads.start(work);
}

void SizeEstimate::Make(const ResultPlan& plan)
{
    if (plan.refusal.code != ZTBatchMessage::NoError) {
        isWorking = false; // It is refused for the other pictures too.
        return;
    }
    const ResultMaking::Order order{choice.samples[made.size()].file, folder.Path(),
                                    QStringLiteral("sample-%1").arg(++lastNumber)};
    making = std::make_unique<ResultMaking>(spares, plan, order);
    // Settling deletes the sender.
    const auto settle = [this, flag = isCancelled](qint64 bytes) {
        const auto take = [this, flag, bytes] {
            if (!*flag && making) {
                Settle(bytes);
            }
        };
        QMetaObject::invokeMethod(this, take, Qt::QueuedConnection);
    };
    connect(making.get(), &ResultMaking::Made, this, [this, settle] { settle(making->Bytes()); });
    connect(making.get(), &ResultMaking::Failed, this, [settle] { settle(0); });
    making->Start();
}

void SizeEstimate::Settle(qint64 bytes)
{
    making.reset();
    made.insert(choice.samples[made.size()].place, bytes);
    const int half = (choice.samples.size() + 1) / 2;
    const bool isComplete = made.size() == choice.samples.size();
    if (made.size() == half || isComplete) {
        sum = ByteSum::Of(made, choice.files);
        const bool isExact = choice.files == choice.samples.size(); // once all are made
        isWorking = !isComplete && (isExact || !sum || sum->Percent() > narrowPercent);
        Q_EMIT Changed();
    }
    Next();
}

} // namespace BatchDesktop
