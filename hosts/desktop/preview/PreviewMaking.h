// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PreviewPictures.h"
#include "PreviewPlan.h"

#include "hosts/desktop/making/MakingFolder.h"
#include "hosts/desktop/making/ResultMaking.h"

#include <QElapsedTimer>
#include <QObject>
#include <QThreadPool>

#include <memory>

namespace BatchDesktop {

/// What the previews of one window share.
struct PreviewWorkshop
{
    PreviewWorkshop(const QString& program, const BatchProtocol::ServerLimits& limits,
                    const QByteArray& displayProfile);

    /// A number that no other file and no other task has.
    int NextNumber() { return ++lastNumber; }

    const MakingFolder folder;
    const PreviewPlace place;
    SpareWorkers spares;
    TaskWorker display;   ///< makes results ready to be shown
    QByteArray beforeKey; ///< of `before`
    QImage before;        ///< the last picture before; it often stays the same
    QThreadPool threads;  ///< for what waits for the file system, or decodes what a worker has made
    int lastNumber = 0;
};

/// One preview on its way. Deleting it gives it up: its workers are ended.
class PreviewMaking : public QObject
{
    Q_OBJECT

public:
    /// What is to be made.
    struct Order
    {
        QString file;
        Settings settings;
        QElapsedTimer since; ///< it was asked for
    };

    PreviewMaking(PreviewWorkshop& workshop, const Order& order);
    ~PreviewMaking() override;

    void Start();

Q_SIGNALS:
    /// One of these ends it.
    void Made(const BatchDesktop::PreviewPictures& pictures);
    void Failed(const QString& reason);

private:
    void OnPlanned(const PreviewPlan& newPlan);
    void TakeResult(const BatchProtocol::Report& report);
    void MakeBefore();
    void OnBeforeReported(const BatchProtocol::Report& report);
    void OnDisplayReported(const BatchProtocol::Report& report);
    void ReadPicture(const QString& file, void (PreviewMaking::*next)(const QImage&));
    void TakeBefore(const QImage& picture);
    void TakeAfter(const QImage& picture);
    void FinishWhenComplete();
    void Fail(const QString& reason);
    void EndWorker();

    PreviewWorkshop& workshop;
    const Order order;
    PreviewPlan plan;
    PreviewPictures pictures;
    std::unique_ptr<ResultMaking> result;
    std::unique_ptr<TaskWorker> beforeWorker;
    QString beforeFile;
    QString afterFile;
    int displayTask = 0;
    bool hasBefore = false;
    bool hasAfter = false;
};

} // namespace BatchDesktop
