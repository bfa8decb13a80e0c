// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CommandCopy.h"

#include "JobSnapshot.h"

#include "hosts/common/InputCollector.h"
#include "hosts/common/JobFile.h"
#include "hosts/common/JobRequirements.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"
#include "hosts/common/options/CommandOptions.h"
#include "hosts/desktop/job/EditedJob.h"
#include "job/settings/JobFiles.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QSaveFile>

#include <algorithm>

using namespace BatchHost;

namespace BatchDesktop {

namespace {

/// A file in `folder` with this content; one content has one file, however often it is needed.
QString FileWith(const QByteArray& content, const QString& folder, const QString& extension)
{
    const QByteArray hash = QCryptographicHash::hash(content, QCryptographicHash::Sha256).toHex().left(16);
    const QString path = QDir(folder).filePath(QString::fromLatin1(hash) + extension);
    QSaveFile file(path);
    if (!QDir().mkpath(folder) || !file.open(QIODevice::WriteOnly) || file.write(content) != content.size() ||
        !file.commit()) {
        throw RequestError{BatchJob::Phrase::English("%1 cannot be written: %2")
                               .arg(QDir::toNativeSeparators(path), file.errorString())};
    }
    return path;
}

/// Whether a command finds the inputs of `job` in `paths`, in their order.
bool AreFoundIn(const QStringList& paths, const ZTBatchDocument& job, const QString& outputFolder)
{
    InputFilter filter;
    filter.outputFolder = outputFolder;
    ZTBatchDocument found;
    try {
        InputCollector(found, filter).Add(paths);
    } catch (const RequestError&) {
        return false;
    }
    const auto wanted = BatchJob::FilesOfJob(*job.GetInputModel());
    const auto files = BatchJob::FilesOfJob(*found.GetInputModel());
    return std::equal(wanted.begin(), wanted.end(), files.begin(), files.end(),
                      [](const BatchJob::JobFile& left, const BatchJob::JobFile& right) {
                          return left.path == right.path && left.folder == right.folder;
                      });
}

QStringList ArgumentsFor(const JobSnapshot& snapshot, const QString& folder)
{
    const QStringList start{QStringLiteral("velkora-batch"), QStringLiteral("run")};
    const std::unique_ptr<ZTBatchDocument> job = snapshot.ToJob();
    RequireRunnableJob(*job);
    const QStringList paths = snapshot.inputs.TopPaths();
    constexpr int mostPaths = 100; // Longer lines are neither read nor taken by every system.
    if (paths.size() <= mostPaths && AreFoundIn(paths, *job, snapshot.settings.outputFolder)) {
        try {
            const QByteArray& profile = snapshot.settings.profile;
            const QString profileFile =
                profile.isEmpty() ? QString() : FileWith(profile, folder, QStringLiteral(".icc"));
            return start + CommandOptions(*job, snapshot.settings.policies, profileFile) + paths;
        } catch (const RequestError&) {
            // Options cannot say it; a file can.
        }
    }
    const QString file = FileWith(job->Serialize(nullptr).toUtf8(), folder, QStringLiteral(".vbatch.xml"));
    return start + CommandOptions(snapshot.settings.policies) + QStringList{file};
}

} // namespace

struct CommandCopy::Outcome
{
    QStringList arguments;
    QString problem;
};

CommandCopy::CommandCopy(const EditedJob& job, const QString& folder)
    : job(job)
    , folder(QDir(folder).filePath(QStringLiteral("commands")))
{
    connect(&work, &BackgroundWork::Done, this, [this] {
        if (outcome->problem.isEmpty()) {
            Q_EMIT Made(outcome->arguments);
        } else {
            Q_EMIT Failed(Translated(outcome->problem));
        }
    });
}

void CommandCopy::Make()
{
    outcome = std::make_shared<Outcome>();
    const auto snapshot = std::make_shared<const JobSnapshot>(job);
    work.Start([snapshot, folder = folder, outcome = outcome](const BackgroundWork::Cancelled&) {
        try {
            outcome->arguments = ArgumentsFor(*snapshot, folder);
        } catch (const RequestError& error) {
            outcome->problem = error.text;
        }
    });
}

} // namespace BatchDesktop
