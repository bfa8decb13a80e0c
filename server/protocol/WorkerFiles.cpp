// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WorkerFiles.h"

#include "job/values/JobValues.h"

#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

using namespace BatchJob;

namespace BatchProtocol {

namespace {

// More single files than these are allowed by their folders: each takes some microseconds in each worker.
constexpr int mostSingleFiles = 256;

QString FolderOf(const QString& path)
{
    return QFileInfo(path).absolutePath();
}

// The folders without those that are below another one, sorted.
QStringList Outermost(const QSet<QString>& folders)
{
    QStringList sorted = folders.values();
    const auto withEnd = [](const QString& folder) {
        return folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/');
    };
    std::sort(sorted.begin(), sorted.end(),
              [&withEnd](const QString& left, const QString& right) { return withEnd(left) < withEnd(right); });
    QStringList outermost;
    for (const QString& folder : qAsConst(sorted)) {
        if (outermost.isEmpty() || !withEnd(folder).startsWith(withEnd(outermost.last()))) {
            outermost.append(folder);
        }
    }
    return outermost;
}

QStringList FilesOfEffects(const QVector<JobEffect>& effects)
{
    QStringList files;
    for (const JobEffect& effect : effects) {
        for (const ParameterSchema& parameter : effect.schema->parameters) {
            if (parameter.type == ParameterType::File) {
                files.append(effect.parameters[parameter.name].toString());
            }
        }
    }
    return files;
}

bool UsesFonts(const QVector<JobEffect>& effects)
{
    return std::any_of(effects.begin(), effects.end(),
                       [](const JobEffect& effect) { return effect.schema->usesFonts; });
}

/// Where `folder`, of which only the beginning may exist, really is.
QString RealPlace(QString folder)
{
    while (!QFileInfo::exists(folder) && !QDir(folder).isRoot()) {
        folder = FolderOf(folder);
    }
    return QFileInfo(folder).canonicalFilePath();
}

QString BackgroundOf(const ZTBatchOutputSettings::Transformation& framing)
{
    const bool hasPicture = framing.state && framing.backgroundType == int(BackgroundType::Image);
    return hasPicture ? framing.backgroundImage : QString();
}

} // namespace

WorkerRights RightsToRead(const JobSettings& settings, const QVector<JobFile>& files)
{
    QSet<QString> folders;
    QSet<QString> single;
    for (const JobFile& file : files) {
        if (file.folder.isEmpty()) {
            single.insert(file.path);
        } else {
            folders.insert(FolderOf(file.path));
        }
        // What a link leads to need not be in the folder.
        const QFileInfo info(file.path);
        if (info.isSymLink()) {
            single.insert(info.canonicalFilePath());
        }
    }
    if (single.size() > mostSingleFiles) {
        for (const QString& file : qAsConst(single)) {
            folders.insert(FolderOf(file));
        }
        single.clear();
    }
    WorkerRights rights;
    rights.readable = Outermost(folders) + single.values() + FilesOfEffects(settings.effects);
    rights.readable.append(BackgroundOf(settings.framing));
    rights.readable.removeAll(QString());
    rights.usesFonts = UsesFonts(settings.effects);
    return rights;
}

WorkerRights RightsToWrite(const WorkerRights& rightsToRead, const JobSettings& settings)
{
    WorkerRights rights = rightsToRead;
    rights.writable.append(settings.outputFolder);
    return rights;
}

QStringList LinkedFolders(const OutputPlan& plan)
{
    QSet<QString> folders;
    for (int file = 0; file < plan.Count(); ++file) {
        folders.insert(plan.Folder(file));
    }
    const QString root = RealPlace(plan.OutputFolder());
    QSet<QString> outside;
    for (const QString& folder : qAsConst(folders)) {
        const QString place = RealPlace(folder);
        if (place != root && !place.startsWith(root + QLatin1Char('/'))) {
            outside.insert(place);
        }
    }
    return Outermost(outside);
}

} // namespace BatchProtocol
