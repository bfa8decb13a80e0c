// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InPlaceOutput.h"

#include "RequestError.h"

#include "job/settings/JobFiles.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace BatchJob;

namespace BatchHost {

namespace {

QString FolderOf(const QString& path)
{
    return QFileInfo(path).path();
}

/// The folder that holds every input that the user named.
QString FolderOfInputs(const ZTBatchInputModel& input)
{
    const QString first = FolderOf(input.getNodeData(input.index(0, 0))->fileName);
    for (int row = 1; row < input.rowCount(); ++row) {
        if (FolderOf(input.getNodeData(input.index(row, 0))->fileName) != first) {
            throw RequestError{
                Phrase::English("the inputs do not lie in one folder: use --in-place for one folder after "
                                "the other, or name the folder of the results with --output")};
        }
    }
    return first;
}

} // namespace

void SetOutputInPlace(ZTBatchDocument& job)
{
    const QVector<JobFile> files = FilesOfJob(*job.GetInputModel());
    if (files.isEmpty()) {
        return;
    }
    ZTBatchOutputSettings& output = *job.GetOutputSettings();
    const QString folder = FolderOf(files.first().path);
    const bool isOneFolder = std::all_of(files.begin(), files.end(),
                                         [&folder](const JobFile& file) { return FolderOf(file.path) == folder; });
    if (isOneFolder) {
        output.SetPath(folder);
        output.SetFolderStructure(ZTBatchOutputSettings::StructureFlat);
        return;
    }
    const QDir root(FolderOfInputs(*job.GetInputModel()));
    for (const JobFile& file : files) {
        // Names of folders are cleaned for every file system.
        if (QDir::cleanPath(root.filePath(file.folder)) != FolderOf(file.path)) {
            throw RequestError{Phrase::English("the result of %1 would not go to the folder of its original; name the "
                                               "folder of the results with --output")
                                   .arg(file.path)};
        }
    }
    output.SetPath(root.path());
    output.SetFolderStructure(ZTBatchOutputSettings::StructureAsInput);
}

} // namespace BatchHost
