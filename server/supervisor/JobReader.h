// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/settings/JobCheck.h"
#include "job/settings/JobFiles.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

namespace BatchSupervisor {

/// Reads the text of a job in a process of its own: a hostile text can make a document many times its size, or crash
/// its reader. Memory and crashes stay in that process.
namespace JobReader {

/// A job that was checked, or a bundle of them.
struct Job
{
    BatchJob::Refusal refusal;        ///< if there is one, the rest is empty
    QStringList settings;             ///< the documents without inputs: one, or those of the bundle in its order
    QVector<BatchJob::JobFile> files; ///< in the document's order
    QString folder;                   ///< of the bundle; empty for a job
};

/// With this argument the program is the reader's process.
constexpr char argument[] = "--read-job";

/// Reads `text`; blocks the calling thread, which needs no event loop. The job is empty when `isCancelled` became true.
Job Read(QString text, const std::function<bool()>& isCancelled);

/// The reader's process: reads the text from standard input, writes the job to standard output. Returns the exit code.
int RunProcess();

} // namespace JobReader

} // namespace BatchSupervisor
