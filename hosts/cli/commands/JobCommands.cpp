#include "CommandFunctions.h"
#include "JobBuilder.h"
#include "JobListing.h"

#include "hosts/cli/terminal/Console.h"
#include "hosts/common/JobFile.h"
#include "hosts/common/UsageError.h"
#include "job/settings/JobCheck.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"

using namespace BatchHost;

namespace BatchCli {

namespace {

void CheckOutput(const ZTBatchDocument& job)
{
    if (job.GetOutputSettings()->GetPath().isEmpty()) {
        throw UsageError{QStringLiteral("where do results go? --output DIR says it")};
    }
    const BatchJob::CheckedSettings checked = BatchJob::CheckSettings(job);
    if (!checked.IsAccepted()) {
        throw UsageError{checked.refusal.message};
    }
}

QString PicturesText(int count)
{
    switch (count) {
    case 0:
        return QStringLiteral("a job without pictures; run and plan take them behind its name");
    case 1:
        return QStringLiteral("a job of 1 picture");
    default:
        return QStringLiteral("a job of %1 pictures").arg(count);
    }
}

} // namespace

void CheckJob(const ZTBatchDocument& job)
{
    if (job.GetInputModel()->GetFileNodesCount() == 0) {
        throw UsageError{QStringLiteral("there is no picture: name files, or folders with files that can be read")};
    }
    CheckOutput(job);
}

ExitCode CreateJob(const ParsedArguments& arguments)
{
    QStringList inputs = arguments.inputs;
    if (inputs.isEmpty()) {
        throw UsageError{
            QStringLiteral("the name of the job's file is missing: velkora-batch create JOB.xml INPUT...")};
    }
    const QString path = inputs.takeFirst();
    if (path != QLatin1String("-") && !path.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive)) {
        throw UsageError{
            QStringLiteral("the job's file comes first and its name ends with .xml, unlike \"%1\"").arg(path)};
    }
    ZTBatchDocument job;
    const int problems = BuildJob(job, arguments, arguments.Value(QStringLiteral("--from")), inputs);
    // A job may be made for pictures that come later, but not by a slip in the names of those that are given.
    if (inputs.isEmpty()) {
        CheckOutput(job);
    } else {
        CheckJob(job);
    }
    if (path == QLatin1String("-")) {
        WriteOut(job.Serialize(nullptr));
    } else {
        SaveJob(job, path, arguments.Has(QStringLiteral("--force")));
    }
    if (!arguments.Has(QStringLiteral("--quiet")) && path != QLatin1String("-")) {
        WriteErrorLine(QStringLiteral("%1: %2.").arg(path, PicturesText(job.GetInputModel()->GetFileNodesCount())));
    }
    return problems == 0 ? ExitCode::Done : ExitCode::Incomplete;
}

ExitCode ShowJob(const ParsedArguments& arguments)
{
    QStringList inputs = arguments.inputs;
    const QString savedJob = TakeSavedJob(inputs);
    ZTBatchDocument job;
    const int problems = BuildJob(job, arguments, savedJob, inputs);
    WriteOut(JobListing(job));
    return problems == 0 ? ExitCode::Done : ExitCode::Incomplete;
}

} // namespace BatchCli
