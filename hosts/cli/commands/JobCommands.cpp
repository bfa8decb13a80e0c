#include "CommandFunctions.h"
#include "JobBuilder.h"
#include "JobListing.h"

#include "hosts/cli/terminal/Console.h"
#include "hosts/common/JobFile.h"
#include "hosts/common/JobRequirements.h"
#include "hosts/common/RequestError.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

using namespace BatchHost;

namespace BatchCli {

namespace {

/// What the job has, and what is still to be given.
QString JobText(const ZTBatchDocument& job)
{
    const int count = job.GetInputModel()->GetFileNodesCount();
    const bool hasFolder = !job.GetOutputSettings()->GetPath().isEmpty();
    if (count == 0) {
        return hasFolder ? QStringLiteral("a job without pictures; give them to run or plan, after the job")
                         : QStringLiteral("a job without pictures and output folder; give them to run or plan");
    }
    const QString pictures =
        count == 1 ? QStringLiteral("a job of 1 picture") : QStringLiteral("a job of %1 pictures").arg(count);
    return hasFolder ? pictures : pictures + QStringLiteral(", without an output folder; give --output to run or plan");
}

} // namespace

ExitCode CreateJob(const ParsedArguments& arguments)
{
    QStringList inputs = arguments.inputs;
    if (inputs.isEmpty()) {
        throw RequestError{QStringLiteral("no file name for the job: velkora-batch create JOB.xml INPUT...")};
    }
    const QString path = inputs.takeFirst();
    if (path != QLatin1String("-") && !path.endsWith(QLatin1String(".xml"), Qt::CaseInsensitive)) {
        throw RequestError{
            QStringLiteral(
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
        WriteErrorLine(QStringLiteral("%1: %2.").arg(path, JobText(job)));
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
