#include "JobRequirements.h"

#include "RequestError.h"

#include "job/settings/JobCheck.h"
#include "job/values/Phrase.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"

namespace BatchHost {

void RequireUsableSettings(const ZTBatchDocument& job)
{
    if (job.GetOutputSettings()->GetPath().isEmpty()) {
        throw RequestError{BatchJob::Phrase::English("no output folder"), RequestError::Kind::NoOutputFolder};
    }
    const BatchJob::CheckedSettings checked = BatchJob::CheckSettings(job);
    if (!checked.IsAccepted()) {
        throw RequestError{checked.refusal.message};
    }
}

void RequireRunnableJob(const ZTBatchDocument& job)
{
    if (job.GetInputModel()->GetFileNodesCount() == 0) {
        throw RequestError{BatchJob::Phrase::English("no pictures"), RequestError::Kind::NoPictures};
    }
    RequireUsableSettings(job);
}

} // namespace BatchHost
