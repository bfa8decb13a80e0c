// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunInputs.h"

#include "job/settings/JobBundle.h"
#include "job/settings/JobFiles.h"
#include "job/values/FileStamp.h"

#include "ZTBatchDocument.h"

#include <algorithm>

namespace BatchHost {

RunInputs InputsOf(const ZTBatchDocument& job, const QVector<RunVariant>& variants)
{
    const int results = std::max(1, variants.size());
    RunInputs inputs;
    inputs.variants = variants;
    for (const BatchJob::JobFile& file : BatchJob::FilesOfJob(*job.GetInputModel())) {
        const qint64 bytes = BatchJob::StampOf(file.path).value_or(BatchJob::FileStamp()).bytes;
        for (int i = 0; i < results; ++i) {
            inputs.files.append(file.path);
            inputs.bytes.append(bytes);
            inputs.allBytes += std::max<qint64>(0, bytes);
        }
    }
    return inputs;
}

QString RunInputs::VariantAt(int index) const
{
    return variants.isEmpty() ? QString() : variants.at(index % variants.size()).name;
}

QString RunInputs::VariantOf(const QString& output) const
{
    const RunVariant* nearest = nullptr;
    for (const RunVariant& variant : variants) {
        if (BatchJob::IsWithin(output, variant.folder) &&
            (nearest == nullptr || variant.folder.size() > nearest->folder.size())) {
            nearest = &variant;
        }
    }
    return nearest == nullptr ? QString() : nearest->name;
}

} // namespace BatchHost
