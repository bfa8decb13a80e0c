// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobBundles.h"

#include "JobRequirements.h"
#include "RequestError.h"

#include "job/settings/JobFiles.h"
#include "job/settings/OutputNaming.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchOutputSettings.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

using namespace BatchJob;

namespace BatchHost {

namespace {

/// The names of the folders, in the order of `jobs`.
QStringList FolderNames(const QVector<NamedJob>& jobs)
{
    QStringList folders;
    QHash<QString, QString> names; // by the key of the folder
    for (const NamedJob& one : jobs) {
        const QString folder = FolderName(one.name);
        const auto other = names.constFind(NameKey(folder));
        if (other != names.constEnd()) {
            throw RequestError{*other == one.name
                                   ? Phrase::English("\"%1\" is given twice; remove one of them").arg(one.name)
                                   : Phrase::English("the results of \"%1\" and \"%2\" would go to one folder, \"%3\"; "
                                                     "give one of them another name")
                                         .arg(*other, one.name, folder)};
        }
        names.insert(NameKey(folder), one.name);
        folders.append(folder);
    }
    return folders;
}

} // namespace

QString NameOfJobFile(const QString& path)
{
    const QFileInfo info(path);
    const bool isXml = info.suffix().compare(QLatin1String("xml"), Qt::CaseInsensitive) == 0;
    return isXml ? info.completeBaseName() : info.fileName();
}

int ReadFirstJob(ZTBatchDocument& job, const QString& text)
{
    if (!JobBundle::IsIn(text)) {
        return job.Deserialize(text) ? 1 : 0;
    }
    QString problem;
    const JobBundle bundle = JobBundle::Read(text, problem);
    return !bundle.IsEmpty() && job.Deserialize(bundle.parts.first().document) ? bundle.parts.size() : 0;
}

JobBundle BundleOf(const QVector<NamedJob>& jobs, const QString& folder)
{
    const QStringList folders = FolderNames(jobs);
    if (jobs.size() > JobBundle::mostParts) {
        throw RequestError{Phrase::English("at most %1 results can be made of one picture").arg(JobBundle::mostParts)};
    }
    JobBundle bundle;
    bundle.folder = folder;
    for (int i = 0; i < jobs.size(); ++i) {
        ZTBatchDocument& job = *jobs.at(i).job;
        const QString own = QDir(folder).filePath(folders.at(i));
        job.GetOutputSettings()->SetPath(own);
        try {
            RequireUsableSettings(job);
        } catch (const RequestError& error) {
            throw error.In(jobs.at(i).name);
        }
        bundle.parts.append({jobs.at(i).name, i == 0 ? QString() : TakeSettingsText(job), own});
    }
    return bundle;
}

} // namespace BatchHost
