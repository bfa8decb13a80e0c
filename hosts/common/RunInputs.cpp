#include "RunInputs.h"

#include "job/settings/JobFiles.h"

#include "ZTBatchDocument.h"

#include <QFileInfo>

namespace BatchHost {

RunInputs InputsOf(const ZTBatchDocument& job)
{
    RunInputs inputs;
    for (const BatchJob::JobFile& file : BatchJob::FilesOfJob(*job.GetInputModel())) {
        inputs.files.append(file.path);
        inputs.bytes.append(QFileInfo(file.path).size());
        inputs.allBytes += inputs.bytes.last();
    }
    return inputs;
}

} // namespace BatchHost
