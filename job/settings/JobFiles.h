// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

class ZTBatchDocument;
class ZTBatchInputModel;

namespace BatchJob {

struct JobSettings;

/// A file of a job.
struct JobFile
{
    QString path;

    /// The path of its folder within the job: cleaned folder names joined with "/"; empty at the top.
    QString folder;
};

/// The files of a job in the document's order: from top to bottom of the tree with all folders expanded. Trees of any
/// depth are walked without recursion.
QVector<JobFile> FilesOfJob(const ZTBatchInputModel& input);

/// The files that every result needs: those of the effects and of the framing.
QStringList FilesOfSettings(const JobSettings& settings);

/// Has the settings of `job` name the files `here(path)` instead of those that they name.
void MoveFilesOfSettings(ZTBatchDocument& job, const std::function<QString(const QString& path)>& here);

/// The text of `job` without its inputs.
QString SettingsTextOf(const ZTBatchDocument& job);

/// The same of a job that was read from its text; removes its inputs.
QString TakeSettingsText(ZTBatchDocument& job);

} // namespace BatchJob
