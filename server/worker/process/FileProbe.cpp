// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileProbe.h"

#include "server/worker/decode/PictureSource.h"
#include "server/worker/geometry/Orientation.h"
#include "server/worker/metadata/Metadata.h"

using namespace BatchProtocol;

namespace BatchWorker {

Report ProbeFile(const ProbeTask& task, const ServerLimits& limits)
{
    PictureSource source(task.inputFile, limits);
    Report report;
    report.inputFormat = source.Format().name;
    report.nearestFormat = BatchJob::NearestFormat(source.Format().name, NeedsOf(source)).name;
    BatchJob::Warnings warnings; // reported when the picture is made
    const Metadata metadata = Metadata::Of(task.inputFile, source, warnings);
    OrientBy(metadata, source);
    report.facts.inputSize = TurnedSize(source.StoredSize(), source.Orientation());
    report.captured = CapturedOrChanged(metadata, task.inputFile);
    report.texts = metadata.Texts();
    return report;
}

} // namespace BatchWorker
