// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WorkerStreams.h"

namespace BatchProtocol {

class WorkerStreams::Private
{
public:
    QProcess& process;
};

WorkerStreams::WorkerStreams(QProcess& process)
    : d(new Private{process})
{
    connect(&process, &QProcess::readyReadStandardOutput, this, &WorkerStreams::OutputArrived);
    connect(&process, &QProcess::readyReadStandardError, this, &WorkerStreams::ErrorsArrived);
}

WorkerStreams::~WorkerStreams() = default;

void WorkerStreams::AfterLaunch() {}

QByteArray WorkerStreams::TakeOutput()
{
    return d->process.readAllStandardOutput();
}

QByteArray WorkerStreams::TakeErrors()
{
    return d->process.readAllStandardError();
}

QByteArray WorkerStreams::TakeRestOfOutput()
{
    return TakeOutput();
}

QByteArray WorkerStreams::TakeRestOfErrors()
{
    return TakeErrors();
}

} // namespace BatchProtocol
