#include "CommandFunctions.h"
#include "Console.h"
#include "JobBuilder.h"
#include "JobFile.h"
#include "JobListing.h"
#include "UsageError.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"

#include <JobCheck.h>

namespace BatchCli {

void CheckJob(const ZTBatchDocument& job)
{
    if (job.GetInputModel()->GetFileNodesCount() == 0) {
        throw UsageError{QStringLiteral("there is no picture: name files, or folders with files that can be read")};
    }
    if (job.GetOutputSettings()->GetPath().isEmpty()) {
        throw UsageError{QStringLiteral("where do results go? --output DIR says it")};
    }
    const BatchServer::CheckedSettings checked = BatchServer::CheckSettings(job);
    if (!checked.IsAccepted()) {
        throw UsageError{checked.refusal.message};
    }
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
    CheckJob(job);
    SaveJob(job, path, arguments.Has(QStringLiteral("--force")));
    if (!arguments.Has(QStringLiteral("--quiet")) && path != QLatin1String("-")) {
        const int count = job.GetInputModel()->GetFileNodesCount();
        WriteErrorLine(QStringLiteral("%1: a job of %2 %3.")
                           .arg(path, QString::number(count),
                                count == 1 ? QStringLiteral("picture") : QStringLiteral("pictures")));
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
