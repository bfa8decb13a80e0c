#pragma once

#include <QString>
#include <QVector>

class ZTBatchInputModel;

namespace BatchJob {

/// A file of a job.
struct JobFile
{
    QString path;

    /// Where its folder stands in the job: the names of the folders above, cleaned, with "/" between; empty at the top.
    QString folder;
};

/// The files of a job in the document's order: as the tree shows them from top to bottom with all folders open. Trees
/// of any depth are walked without recursion.
QVector<JobFile> FilesOfJob(const ZTBatchInputModel& input);

} // namespace BatchJob
