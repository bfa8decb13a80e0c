#pragma once

#include "WorkerMessages.h"

#include <QByteArray>

/// A task on its way to a worker.
struct Assignment
{
    quint64 run = 0;            ///< whose task it is
    int file = -1;              ///< the file's number in the plan of the run
    QByteArray job;             ///< the framed Job of the run; all its assignments share one
    BatchServer::ToWorker task; ///< a ProbeTask or PictureTask with the number `file`
};
