#pragma once

#include "job/settings/JobCheck.h"
#include "job/settings/JobFiles.h"

#include <QString>
#include <QVector>

#include <functional>

namespace BatchSupervisor {

/// Reads the text of a job in a process of its own. A text can be made so that it takes a multiple of its size as a
/// document; the memory goes with that process, and so does whatever else happens there.
namespace JobReader {

/// What is left of a job after its check.
struct Job
{
    BatchJob::Refusal refusal;        ///< when there is one, the rest is empty
    QString settings;                 ///< the document without its inputs
    QVector<BatchJob::JobFile> files; ///< in the document's order
};

/// The argument that makes this program the reader's process.
constexpr char argument[] = "--read-job";

/// Reads `text`; blocks the calling thread, which needs no event loop. Nothing when `isCancelled` became true.
Job Read(QString text, const std::function<bool()>& isCancelled);

/// The reader's process: text from standard input, job to standard output. Returns the exit code.
int RunProcess();

} // namespace JobReader

} // namespace BatchSupervisor
