// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/FileStamp.h"
#include "job/values/FixedName.h"
#include "job/values/PolicyValues.h"
#include "job/values/Versions.h"

#include <QByteArray>
#include <QCryptographicHash>
#include <QMap>
#include <QPair>
#include <QSaveFile>
#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>
#include <optional>

/// A job that is cut into parts, which never collide: every name is made beforehand, for the whole job.
/// docs/reference/parts.md describes the file.
namespace BatchJob {

/// A result of a file, as it is planned.
struct PlannedResult
{
    FixedName name; ///< its path is relative to the output folder
    int code = 0;   ///< a ZTBatchMessage::Error; 0 if the result is to be made
    QString reason; ///< and why it is not

    bool IsLeftOut() const { return code != 0; }
};

struct PlannedFile
{
    QString input;                  ///< absolute
    FileStamp stamp;                ///< without a number; no bytes for a file that did not exist
    QVector<PlannedResult> results; ///< one for each job
};

/// Everything but the files of the parts.
struct PartPlan
{
    struct Job
    {
        QString name;     ///< empty if it is the only one
        QString document; ///< without inputs
        QString outputFolder;
    };

    struct Part
    {
        int files = 0;
        qint64 inputBytes = 0;

        // Where its lines are in the file, and what they are.
        qint64 offset = 0; ///< known when the plan was read
        qint64 size = 0;
        QByteArray checksum;
    };

    QString id;     ///< tells this plan from others; known when it was written or read
    QString folder; ///< of all results; absolute
    QVector<Job> jobs;
    QVector<Part> parts;
    PolicyValues policies{};     ///< none of them asks
    QMap<QString, QString> said; ///< the policies that the command which has split the job has named, by their options
    Versions makers;             ///< what the job was split with
    QVector<QPair<QString, FileStamp>> sources; ///< files that every result needs

    int FileCount() const;
};

/// How many files of the sizes `bytes`, one after the other, each of `count` parts takes, so that their sizes are as
/// equal as the order permits. Each part gets one at least. `count` is not greater than the number of files. The size
/// of a file that does not exist is negative.
QVector<int> CutIntoParts(const QVector<qint64>& bytes, int count);

/// Writes a plan file by file. The plan is whole or absent.
class PlanWriter
{
public:
    /// Parts of `plan` take as many files as `counts` says. `plan` must outlive this object.
    PlanWriter(const QString& path, PartPlan& plan, const QVector<int>& counts);

    /// The next file, in the document's order.
    void Add(const PlannedFile& planned);

    /// To be called after the last file. Fills in the parts of the plan and its id. False if it could not be written;
    /// `problem` then says why, for users.
    bool Commit(QString& problem);

private:
    QSaveFile file;
    PartPlan& plan;
    int headerSize = 0; ///< what it may take, in bytes
    int part = 0;       ///< of which files come now
    int filesOfPart = 0;
    std::optional<QString> folder; ///< of the file before
    QByteArray lines;              ///< that are not written yet
    QCryptographicHash hash;
};

/// Reads the plan `path` without its files. Returns nothing if the file is not a plan that can
/// be used; `problem` then says why, for users.
std::optional<PartPlan> ReadPlan(const QString& path, QString& problem);

/// Reads the files of the part `index`, from 0, and gives them to `take` one after the other. False if they are
/// damaged: what was given then means nothing.
bool ReadPart(const QString& path, const PartPlan& plan, int index,
              const std::function<void(const PlannedFile&)>& take);

} // namespace BatchJob
