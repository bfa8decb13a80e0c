// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ServerLimits.h"

#include "job/tokens/TokenValues.h"
#include "job/values/PictureFacts.h"
#include "job/values/PolicyValues.h"
#include "job/values/Warning.h"

#include "ZTBatchMessage.h"

#include <QByteArray>
#include <QDataStream>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

/// The messages between a worker and its client, over the worker's standard input and output.
///
/// When it is ready, and before it reads anything, a worker sends a Report with the number workerIsReady. Then it gets
/// a Job, which confines it to the files of this job for the rest of its life, and tasks, and answers each task with
/// one Beginning and one Report. Both come in the order of the tasks, but a worker may begin a task before the previous
/// one is reported, while the result of that one is being flushed to disk. So the last Beginning of a worker that ends
/// names the task over which it ended. The client may send the next task before the last one is reported. The end of
/// its input ends a worker.
namespace BatchProtocol {

/// The number of a worker's first report. A worker that ends without it could not start, which is no picture's
/// fault.
constexpr qint32 workerIsReady = -1;

/// The exit code of a worker that runs out of memory and cannot report it.
constexpr int workerOutOfMemory = 10;

/// What a worker may write to standard error for one task, in bytes. A worker that writes more is ended.
constexpr qint64 mostErrorsOfTask = 16 << 20;

/// What a worker may open. Paths are absolute, and what is below a folder belongs to it.
struct WorkerRights
{
    QStringList readable;   ///< files and folders
    QStringList writable;   ///< folders; they can also be read
    bool usesFonts = false; ///< fonts of the user and of the system
};

/// The settings of all pictures of a run. A later job replaces the settings of the previous one. Its limits and rights
/// change nothing: what a worker has given up is gone.
struct Job
{
    QString document; ///< the XML text of the job without its inputs: output settings and style
    ServerLimits limits;
    WorkerRights rights;
};

/// Look at a file for the plan of a run. Nothing is written.
struct ProbeTask
{
    qint32 number = 0; ///< repeated in the answers
    QString inputFile;
};

/// Make the result of one file.
struct PictureTask
{
    qint32 number = 0; ///< repeated in the answers
    QString inputFile;
    QString outputFile;           ///< the final name; its folder exists
    QString outputRoot;           ///< no link below this folder is followed; empty: all are, see ResultFolder
    QString format;               ///< one of Formats(), never "Original"
    bool replaceExisting = false; ///< if not, a file of the final name is never touched, whenever it appeared
    qint64 fileNumber = 1;        ///< of the file in texts of the result, see OutputNaming::NumberOf()
    bool keepsPixels = false;     ///< the next task reads the same input: what is slow to decode is kept for it
    bool countsTwin = false;      ///< a file of the final name that has the very bytes of the result is the result
};

/// The worker begins a task.
struct Beginning
{
    qint32 number = 0;
};

struct Report
{
    qint32 number = 0;
    BatchJob::PolicyKind failure = BatchJob::PolicyKind::None; ///< the policy that decides; None: the task is done
    qint32 errorCode = ZTBatchMessage::NoError;                ///< a ZTBatchMessage::Error
    QString reason;                                            ///< for users: what is wrong, and where
    QString detail;                                            ///< for the log: what a library says of it; may be empty
    BatchJob::Warnings warnings;                               ///< of tasks that were done
    QString nearestFormat;                                     ///< for WriteToFormat, and of a probe: a format that can
                                                               ///< hold the picture, one of Formats()
    QString inputFormat;                                       ///< of a probe: as FormatOfFile() names it
    QDateTime captured;                                        ///< of a probe: what the file says, else the file's time
    BatchJob::PictureFacts facts;                              ///< of a picture that was written, but for the bytes;
                                                               ///< of a probe: the size of the input
    bool usedKeptPixels = false;                               ///< the input was not decoded: an earlier task has kept
                                                               ///< its pixels
    BatchJob::PictureTexts texts;                              ///< of a probe: for names
};

using ToWorker = std::variant<Job, ProbeTask, PictureTask>;
using FromWorker = std::variant<Beginning, Report>;

/// The frame of a message: the number of its bytes, 32 bits, big-endian, then the bytes.
QByteArray FrameToWorker(const ToWorker& message);
QByteArray FrameFromWorker(const FromWorker& message);

/// Reads messages from a stream that arrives in pieces of any size.
class FrameReader
{
public:
    /// Appends bytes that have arrived.
    void Append(const QByteArray& bytes);

    /// The next message. Nothing while it is incomplete, or once the stream is broken.
    std::optional<ToWorker> NextToWorker();
    std::optional<FromWorker> NextFromWorker();

    /// Whether the stream had an invalid message. Nothing more can be read from it then.
    bool IsBroken() const { return isBroken; }

private:
    template<typename AnyMessage>
    std::optional<AnyMessage> Next(quint32 maximum);
    std::optional<QByteArray> NextPayload(quint32 maximum);

    QByteArray buffer;
    bool isBroken = false;
};

} // namespace BatchProtocol
