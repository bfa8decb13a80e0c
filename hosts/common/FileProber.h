// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/protocol/WorkerMessages.h"

#include <QString>
#include <QVector>

#include <functional>

namespace BatchHost {

/// Has worker processes look at files: when they were taken, and what they are. Nothing is written.
class FileProber
{
public:
    struct File
    {
        int number;
        QString path;
    };

    /// Called once for each file, in any order. A file that could not be probed comes with a failure.
    using ReportHandler = std::function<void(const BatchProtocol::Report&)>;

    /// Probes `files` and returns when all are reported. `settings` is the text of the job without inputs. Throws
    /// RequestError when no worker can be started.
    static void Probe(const QVector<File>& files, const QString& settings, const ReportHandler& onReport);
};

} // namespace BatchHost
