#include "FileProbe.h"

#include "server/worker/decode/PictureSource.h"
#include "server/worker/metadata/Metadata.h"

#include <QDateTime>
#include <QFileInfo>

using namespace BatchProtocol;

namespace BatchWorker {

Report ProbeFile(const ProbeTask& task, const ServerLimits& limits)
{
    const PictureSource source(task.inputFile, limits);
    Report report;
    report.inputFormat = source.Format().name;
    report.nearestFormat = BatchJob::NearestFormat(source.Format().name, NeedsOf(source)).name;
    BatchJob::Warnings warnings; // reported when the picture is made
    report.captured = Metadata::Of(task.inputFile, source, warnings).Captured();
    if (!report.captured.isValid()) {
        report.captured = QFileInfo(task.inputFile).lastModified();
    }
    return report;
}

} // namespace BatchWorker
