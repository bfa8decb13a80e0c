// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobFiles.h"

#include "JobCheck.h"
#include "OutputNaming.h"

#include "job/values/JobValues.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"
#include "ZTStyle.h"

#include <QJsonDocument>
#include <QJsonObject>

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

struct StyleEffect
{
    QString id;
    QByteArray parameters;
    bool isEnabled = false;
};

/// `data`, the parameters of the effect `id`, with other files. The same bytes if they name none, or no other.
QByteArray MovedParameters(const QString& id, const QByteArray& data,
                           const std::function<QString(const QString& path)>& here)
{
    const EffectSchema* const schema = FindEffect(id);
    QJsonObject values = QJsonDocument::fromJson(data).object();
    bool isMoved = false;
    for (const ParameterSchema& parameter : schema ? schema->parameters : QVector<ParameterSchema>()) {
        const QString path = values.value(parameter.name).toString();
        if (parameter.type == ParameterType::File && !path.isEmpty() && here(path) != path) {
            values.insert(parameter.name, here(path));
            isMoved = true;
        }
    }
    return isMoved ? QJsonDocument(values).toJson(QJsonDocument::Compact) : data;
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

void MoveFilesOfSettings(ZTBatchDocument& job, const std::function<QString(const QString& path)>& here)
{
    ZTStyle& style = *job.GetStyle();
    QVector<StyleEffect> effects;
    bool isMoved = false;
    for (int i = 0; i < style.GetEffectCount(); ++i) {
        const QByteArray before = style.DataAt(i);
        effects.append({style.EffectAt(i), MovedParameters(style.EffectAt(i), before, here), style.IsEnabled(i)});
        isMoved = isMoved || effects.last().parameters != before;
    }
    if (isMoved) {
        style.Clear();
        for (const StyleEffect& effect : qAsConst(effects)) {
            style.AppendEffect(effect.id, effect.parameters, effect.isEnabled);
        }
    }
    ZTBatchOutputSettings::Transformation framing = job.GetOutputSettings()->GetTransformationSettings();
    if (!framing.backgroundImage.isEmpty()) {
        framing.backgroundImage = here(framing.backgroundImage);
        job.GetOutputSettings()->SetTransformationSettings(framing);
    }
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
