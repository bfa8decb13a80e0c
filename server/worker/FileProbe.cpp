#include "FileProbe.h"

#include "Encoder.h"
#include "Orientation.h"
#include "PictureSource.h"
#include "PixelForms.h"

#include <QDateTime>
#include <QFileInfo>

namespace BatchServer {

namespace {

// "2024:05:31 17:08:09", without a time zone: the clock of the camera.
QDateTime ExifTime(const Picture& header)
{
    constexpr const char* field = "exif-ifd2-DateTimeOriginal";
    if (header.get_typeof(field) == 0) {
        return {};
    }
    constexpr int length = 19;
    const QString text = QString::fromUtf8(header.get_string(field)).left(length);
    return QDateTime::fromString(text, QStringLiteral("yyyy:MM:dd HH:mm:ss"));
}

} // namespace

Report ProbeFile(const ProbeTask& task, qint64 pixelLimit)
{
    const PictureSource source(task.inputFile, pixelLimit);
    Report report;
    report.number = task.number;
    report.inputFormat = source.Format();
    report.nearestFormat = NearestFormat(source.Format(), HasSixteenBits(source.Header()), source.Header().has_alpha(),
                                         source.StoredSize());
    report.captured = ExifTime(source.Header());
    if (!report.captured.isValid()) {
        report.captured = QFileInfo(task.inputFile).lastModified();
    }
    return report;
}

} // namespace BatchServer
