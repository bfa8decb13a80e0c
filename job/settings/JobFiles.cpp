// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobFiles.h"

#include "JobCheck.h"
#include "OutputNaming.h"

#include "job/values/JobValues.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"

namespace BatchJob {

namespace {

struct OpenFolder
{
    QModelIndex index;
    QString path; ///< as in JobFile
    int nextRow = 0;
};

QString NameOfFolder(const BatchNodeData& folder)
{
    const QString path = folder.fileName.endsWith(QLatin1Char('/')) ? folder.fileName.chopped(1) : folder.fileName;
    return FolderName(path.mid(path.lastIndexOf(QLatin1Char('/')) + 1));
}

} // namespace

QVector<JobFile> FilesOfJob(const ZTBatchInputModel& input)
{
    QVector<JobFile> files;
    QVector<OpenFolder> open{OpenFolder()};
    while (!open.isEmpty()) {
        OpenFolder& folder = open.last();
        if (folder.nextRow == input.rowCount(folder.index)) {
            open.removeLast();
            continue;
        }
        const QModelIndex index = input.index(folder.nextRow++, 0, folder.index);
        const BatchNodeData& node = *input.getNodeData(index);
        if (node.type == Folder) {
            const QString name = NameOfFolder(node);
            open.append({index, folder.path.isEmpty() ? name : folder.path + QLatin1Char('/') + name});
        } else {
            files.append({node.fileName, folder.path});
        }
    }
    return files;
}

QStringList FilesOfSettings(const JobSettings& settings)
{
    QStringList files;
    for (const JobEffect& effect : settings.effects) {
        for (const ParameterSchema& parameter : effect.schema->parameters) {
            if (parameter.type == ParameterType::File) {
                files.append(effect.parameters.value(parameter.name).toString());
            }
        }
    }
    const ZTBatchOutputSettings::Transformation& framing = settings.framing;
    if (framing.state && framing.backgroundType == int(BackgroundType::Image)) {
        files.append(framing.backgroundImage);
    }
    return files;
}

QString SettingsTextOf(const ZTBatchDocument& job)
{
    ZTBatchDocument settings;
    settings.Deserialize(job.Serialize(nullptr));
    return TakeSettingsText(settings);
}

QString TakeSettingsText(ZTBatchDocument& job)
{
    job.GetInputModel()->removeRows(0, job.GetInputModel()->rowCount());
    return job.Serialize(nullptr);
}

} // namespace BatchJob
