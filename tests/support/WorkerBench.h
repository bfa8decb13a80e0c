// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "TestPictures.h"
#include "WorkerProcess.h"

#include <QJsonObject>

#include <memory>

/// A folder of pictures with a worker, for tests that look at results.
class WorkerBench
{
public:
    WorkerBench();

    /// The absolute path of `name` in the folder.
    QString Path(const QString& name) const { return folder.filePath(name); }

    void WriteBytes(const QString& name, const QByteArray& bytes) const;
    QByteArray Bytes(const QString& name) const;

    /// What stands in the folder, hidden files too, sorted.
    QStringList Names() const;

    /// Has the worker make `output` of `input` in `format`; both are names in the folder.
    BatchProtocol::Report Make(const QString& input, const QString& output, const QString& format,
                               const QJsonObject& options = {},
                               const std::function<void(ZTBatchOutputSettings&)>& edit = {});

    /// The same for a whole job.
    BatchProtocol::Report Make(const QString& input, const QString& output, const QString& format,
                               const BatchProtocol::Job& job);

    /// Has the worker look at `input`, a name in the folder.
    BatchProtocol::Report Probe(const QString& input);

    WorkerProcess& Worker() { return worker; }

private:
    QTemporaryDir folder;
    WorkerProcess worker;
};
