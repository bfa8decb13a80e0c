// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ResultPlan.h"
#include "TaskWorker.h"

#include <QObject>

#include <memory>

namespace BatchDesktop {

/// One result on its way: the very file that a run would write, under another name. Deleting this object gives it up
/// and removes the file.
class ResultMaking : public QObject
{
    Q_OBJECT

public:
    struct Order
    {
        QString input;
        QString folder;
        QString name; ///< of the result, without extension; nothing else in `folder` has it
    };

    /// `plan` is of order.input and was not refused.
    ResultMaking(SpareWorkers& spares, const ResultPlan& plan, const Order& order);
    ~ResultMaking() override;

    void Start();

    /// Once it is made.
    QString File() const { return file; }
    QString Format() const { return format; }
    qint64 Bytes() const { return bytes; }

    qint64 InputBytes() const { return plan.inputBytes; }

Q_SIGNALS:
    /// One of these ends it. `reason` is what a run would say of the picture, in English.
    void Made(const BatchProtocol::Report& report);
    void Failed(const QString& reason);

private:
    void GiveResult();
    void OnReported(const BatchProtocol::Report& report);
    void TakeResult(const BatchProtocol::Report& report);
    void Fail(const QString& reason);
    void EndWorker();

    SpareWorkers& spares;
    ResultPlan plan;
    const Order order;
    std::unique_ptr<TaskWorker> worker;
    QString file;
    QString format; ///< empty as long as the picture is probed
    qint64 bytes = -1;
    int lastNumber = 0;
};

} // namespace BatchDesktop
