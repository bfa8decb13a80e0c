#pragma once

#include "ServerLimits.h"

#include "job/values/PolicyValues.h"

#include "ZTBatchMessage.h"

#include <QByteArray>
#include <QDataStream>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

/// What the supervisor and its workers tell each other, over the worker's standard input and output.
///
/// A worker says that it is ready with one Report of number workerIsReady, before it reads anything. Then it gets a Job
/// and tasks, and answers each task with one Beginning and one Report. Each of the two comes in the tasks' order, but a
/// worker may begin a task before the one before is reported: that one's result is on its way to the disk. So a worker
/// that ends tells by its last Beginning over which task. A supervisor may hand over the next task before the last is
/// reported. The end of its input ends a worker.
namespace BatchProtocol {

/// The number of the first report of a worker. A worker that ends before it could not start: no picture is to blame.
constexpr qint32 workerIsReady = -1;

/// The exit code of a worker that has no memory left to report that: the picture in work takes more than it may.
constexpr int workerOutOfMemory = 10;

/// What holds for every picture of a run. A later job replaces the one before.
struct Job
{
    QString document; ///< the XML text of the job without its inputs: output settings and style
    ServerLimits limits;
};

/// Read what the plan of a run needs to know of a file, and write nothing.
struct ProbeTask
{
    qint32 number = 0; ///< comes back in the report
    QString inputFile;
};

/// Make the result of one file.
struct PictureTask
{
    qint32 number = 0; ///< comes back in the report
    QString inputFile;
    QString outputFile;           ///< the final name; its folder exists
    QString format;               ///< one of Formats(), never "Original"
    bool replaceExisting = false; ///< else a file of the final name is left alone, whenever it appeared
};

using Case = BatchJob::PolicyKind;

/// The worker turns to a task.
struct Beginning
{
    qint32 number = 0;
};

struct Report
{
    qint32 number = 0;
    BatchJob::PolicyKind failure = BatchJob::PolicyKind::None; ///< the policy that decides; None: the task is done
    qint32 errorCode = ZTBatchMessage::NoError;                ///< a ZTBatchMessage::Error
    QString reason;                                            ///< for the log: what was wrong, and where
    QStringList warnings;                                      ///< for the log, of tasks that were done nonetheless
    QString nearestFormat;                                     ///< for WriteToFormat, and of a probe: a format that can
                                                               ///< hold the picture, one of Formats()
    QString inputFormat;                                       ///< of a probe: as FormatOfFile() names it
    QDateTime captured;                                        ///< of a probe: EXIF original time, else the file's time
    qint64 outputBytes = 0;                                    ///< of a picture that was written
};

using ToWorker = std::variant<Job, ProbeTask, PictureTask>;
using FromWorker = std::variant<Beginning, Report>;

/// The frame of a message: its bytes behind their count, 32 bits, big-endian.
QByteArray FrameToWorker(const ToWorker& message);
QByteArray FrameFromWorker(const FromWorker& message);

/// Takes messages out of whatever pieces of a stream arrive.
class FrameReader
{
public:
    /// Appends what has arrived.
    void Append(const QByteArray& bytes);

    /// The next message; nothing as long as it is incomplete, and from then on when the stream is broken.
    std::optional<ToWorker> NextToWorker();
    std::optional<FromWorker> NextFromWorker();

    /// Whether the stream held what no message is: nothing more can be read from it.
    bool IsBroken() const { return isBroken; }

private:
    template<typename AnyMessage>
    std::optional<AnyMessage> Next(quint32 maximum);
    std::optional<QByteArray> NextPayload(quint32 maximum);

    QByteArray buffer;
    bool isBroken = false;
};

} // namespace BatchProtocol
