// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ByteSum.h"
#include "SampleChoice.h"

#include "hosts/desktop/making/MakingFolder.h"
#include "hosts/desktop/making/ResultMaking.h"

#include <QObject>
#include <QThreadPool>
#include <QTimer>

#include <atomic>
#include <memory>
#include <optional>

namespace BatchDesktop {

/// How many bytes the results of a job will have. Some of them are made, one at a time and by a worker of its own, as
/// long as nothing else needs the machine. Nothing here waits; needs an event loop.
class SizeEstimate : public QObject
{
    Q_OBJECT

public:
    /// Results are made by `program`.
    SizeEstimate(const QString& program, const BatchProtocol::ServerLimits& limits, QObject* parent = nullptr);

    /// With the installed worker and the limits of the environment.
    explicit SizeEstimate(QObject* parent = nullptr);
    ~SizeEstimate() override;

    /// Estimates the results of `files` with `settings`, a moment after the last call. What was known is forgotten.
    void Ask(const QStringList& files, const Settings& settings);

    /// Nothing is wanted any more.
    void Stop();

    /// While it is held nothing is made; what is being made begins again later.
    void Hold(bool isOn);

    /// Nothing as long as too few results are known.
    const std::optional<ByteSum>& Sum() const { return sum; }

    /// Of the disk with the output folder, when the samples were chosen; negative if it is not known.
    qint64 FreeBytes() const { return freeBytes; }

    /// Whether Changed() may follow, if it is not held.
    bool IsWorking() const { return isWorking; }

Q_SIGNALS:
    void Changed();

private:
    void Choose();
    void TakeChoice(const SampleChoice& newChoice, qint64 newFreeBytes);
    void Next();
    void Make(const ResultPlan& plan);
    void Settle(qint64 bytes);
    void Forget();

    /// What a thread does is wanted as long as this is not set.
    using Cancelled = std::shared_ptr<std::atomic<bool>>;
    Cancelled NewWork();

    const MakingFolder folder;
    SpareWorkers spares;
    QThreadPool threads; ///< for what waits for the file system
    Cancelled isCancelled;
    QTimer delay;
    QStringList files;
    Settings settings;
    SampleChoice choice;
    QMap<int, qint64> made; ///< bytes by place; 0 for a picture without result
    std::unique_ptr<ResultMaking> making;
    std::optional<ByteSum> sum;
    qint64 freeBytes = -1;
    int lastNumber = 0;
    bool isHeld = false;
    bool isWorking = false;
};

} // namespace BatchDesktop
