// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

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
        const QFileInfo info(file.path);
        inputs.bytes.append(info.exists() ? info.size() : -1);
        inputs.allBytes += info.size();
    }
    return inputs;
}

} // namespace BatchHost
