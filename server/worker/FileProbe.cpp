#include "FileProbe.h"

#include "Encoder.h"
#include "Metadata.h"
#include "PictureSource.h"

#include <QDateTime>
#include <QFileInfo>

namespace BatchServer {

Report ProbeFile(const ProbeTask& task, const ServerLimits& limits)
{
    const PictureSource source(task.inputFile, limits);
    Report report;
    report.inputFormat = source.Format();
    report.nearestFormat = NearestFormat(source.Format(), source.IsDeep(), source.HasAlpha(), source.StoredSize());
    QStringList warnings; // those of metadata come with the picture
    report.captured = Metadata::Of(task.inputFile, source, warnings).Captured();
    if (!report.captured.isValid()) {
        report.captured = QFileInfo(task.inputFile).lastModified();
    }
    return report;
}

} // namespace BatchServer
