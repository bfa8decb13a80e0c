// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CommandFunctions.h"
#include "JobBuilder.h"
#include "JobListing.h"

#include "hosts/cli/terminal/Console.h"
#include "hosts/common/JobFile.h"
#include "hosts/common/JobRequirements.h"
#include "hosts/common/Language.h"
#include "hosts/common/RequestError.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

using namespace BatchHost;

namespace BatchCli {

namespace {

/// That the job was saved at `path`: what it has, and what is still to be given.
QString SavedText(const QString& path, const ZTBatchDocument& job)
{
    const int count = job.GetInputModel()->GetFileNodesCount();
    const bool hasFolder = !job.GetOutputSettings()->GetPath().isEmpty();
    if (count == 0) {
        return (hasFolder ? Messages::tr("%1: a job without pictures; give them to run or plan, after the job.")
                          : Messages::tr("%1: a job without pictures and output folder; give them to run or plan."))
            .arg(path);
    }
    const QString ofOne =
        hasFolder ? Messages::tr("%1: a job of 1 picture.")
                  : Messages::tr("%1: a job of 1 picture, without an output folder; give --output to run or plan.");
    const QString ofMany =
        hasFolder ? Messages::tr("%1: a job of %2 pictures.")
                  : Messages::tr("%1: a job of %2 pictures, without an output folder; give --output to run or plan.");
    return count == 1 ? ofOne.arg(path) : ofMany.arg(path, QString::number(count));
}

} // namespace

ExitCode CreateJob(const ParsedArguments& arguments)
{
    QStringList inputs = arguments.inputs;
    if (inputs.isEmpty()) {
        throw RequestError{
            BatchJob::Phrase::English("no file name for the job: velkora-batch create JOB.xml INPUT...")};
    }
    const QString path = inputs.takeFirst();
    if (path != QLatin1String("-") && !path.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive)) {
        throw RequestError{
            BatchJob::Phrase::English(
                "the first argument must be the file of the job, with a name that ends with .xml, but is \"%1\"")
                .arg(path)};
    }
    ZTBatchDocument job;
    const InputLosses losses = BuildJob(job, arguments, arguments.Value(QStringLiteral("--from")), inputs);
    TellLeftOut(losses.leftOut, arguments);
    // A job without inputs may be meant for pictures to come; inputs without a picture are a mistake.
    if (!inputs.isEmpty() || arguments.Has(QStringLiteral("--files-from"))) {
        HasPictures(job, arguments, inputs);
    }
    RequireUsableSettingsButFolder(job);
    if (path == QLatin1String("-")) {
        WriteOut(job.Serialize(nullptr));
    } else {
        SaveJob(job, path, arguments.Has(QStringLiteral("--force")));
    }
    if (!arguments.Has(QStringLiteral("--quiet")) && path != QLatin1String("-")) {
        WriteErrorLine(SavedText(path, job));
    }
    return losses.problems == 0 ? ExitCode::Done : ExitCode::Incomplete;
}

ExitCode ShowJob(const ParsedArguments& arguments)
{
    QStringList inputs = arguments.inputs;
    const QString savedJob = TakeSavedJob(inputs);
    ZTBatchDocument job;
    const InputLosses losses = BuildJob(job, arguments, savedJob, inputs);
    TellLeftOut(losses.leftOut, arguments);
    WriteOut(JobListing(job));
    return losses.problems == 0 ? ExitCode::Done : ExitCode::Incomplete;
}

} // namespace BatchCli
