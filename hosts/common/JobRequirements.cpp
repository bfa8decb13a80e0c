#include "JobRequirements.h"

#include "RequestError.h"

#include "job/settings/JobCheck.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"

namespace BatchHost {

void RequireUsableSettings(const ZTBatchDocument& job)
{
    if (job.GetOutputSettings()->GetPath().isEmpty()) {
        throw RequestError{QStringLiteral("no output folder"), RequestError::Kind::NoOutputFolder};
    }
    const BatchJob::CheckedSettings checked = BatchJob::CheckSettings(job);
    if (!checked.IsAccepted()) {
        throw RequestError{checked.refusal.message};
    }
}

void RequireRunnableJob(const ZTBatchDocument& job)
{
    if (job.GetInputModel()->GetFileNodesCount() == 0) {
        throw RequestError{QStringLiteral("no pictures"), RequestError::Kind::NoPictures};
    }
    RequireUsableSettings(job);
}

} // namespace BatchHost
