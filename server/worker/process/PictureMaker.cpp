#include "PictureMaker.h"

#include "PixelSearch.h"

#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"
#include "job/formats/NearestFormat.h"
#include "job/values/JobValues.h"
#include "server/worker/colour/Colour.h"
#include "server/worker/colour/ColourProfile.h"
#include "server/worker/decode/PictureSource.h"
#include "server/worker/effects/Effects.h"
#include "server/worker/encode/Encoder.h"
#include "server/worker/encode/EncoderTrial.h"
#include "server/worker/framing/Framing.h"
#include "server/worker/geometry/Orientation.h"
#include "server/worker/geometry/Resampling.h"
#include "server/worker/metadata/Metadata.h"
#include "server/worker/metadata/MetadataCarrier.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"
#include "server/worker/pixels/VipsText.h"

#include <QFile>
#include <QJsonArray>

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchWorker {

namespace {

/// The way of one picture through the stages.
class PictureRun
{
public:
    PictureRun(const JobSettings& job, const PictureTask& task, const FormatSchema& format)
        : job(job)
        , task(task)
        , format(format)
        , options(OptionsFor(format, job.formatOptions))
        , source(task.inputFile, job.limits)
    {
        TellOfOtherPages();
        metadata = Metadata::Of(task.inputFile, source, made.warnings);
        const QJsonArray kinds = options[QLatin1String("keep")].toArray();
        for (const QJsonValue& kind : kinds) {
            keep.append(kind.toString());
        }
    }

    MadePicture Make();

private:
    void TellOfOtherPages();
    bool KeepsInks() const;
    bool KeepsProfile() const { return keep.contains(QLatin1String("icc")) && format.metadata.holdsProfile; }
    Geometry PlannedGeometry(const QSize& upright);
    Picture Sized();
    Picture Processed(Picture picture) const;
    Picture Framed(const Picture& picture);
    Picture InOutputColours(const Picture& picture);
    void CheckFormat(const Picture& picture) const;
    void Write(const Picture& picture);
    void KeepFileTime() const;
    PictureFailure Explained(const vips::VError& problem);
    bool IsSourceDamaged(QString& text);

    const JobSettings& job;
    const PictureTask& task;
    const FormatSchema& format;
    QJsonObject options;
    QStringList keep;
    PictureSource source;
    Metadata metadata;
    QByteArray inks; ///< the profile of a source of inks
    MadePicture made;
};

MadePicture PictureRun::Make()
{
    try {
        const Picture ready = InOutputColours(Framed(Processed(Sized())));
        CheckFormat(ready);
        made.file = std::make_unique<TemporaryFile>(task.outputFile);
        if (!made.file->Create()) {
            throw OutputFailed(made.file->Error());
        }
        Write(ReadyFor(format, options, ready));
    } catch (const vips::VError& problem) {
        throw Explained(problem);
    }
    KeepFileTime();
    struct stat status;
    made.bytes = fstat(made.file->Descriptor(), &status) == 0 ? qint64(status.st_size) : 0;
    return std::move(made);
}

void PictureRun::TellOfOtherPages()
{
    const int pages = source.Pages();
    if (pages > 1) {
        const bool hasMain = source.Format().pages == FormatPages::Items;
        made.warnings.append(QStringLiteral("it has %1 pages; only the %2 is used")
                                 .arg(pages)
                                 .arg(hasMain ? QStringLiteral("main one") : QStringLiteral("first")));
    }
}

// Inks that nothing touches but crop and size stay what they are. To go by RGB would turn black into a mix of all four.
bool PictureRun::KeepsInks() const
{
    return job.effects.isEmpty() && !job.framing.state && job.profile.isEmpty() && format.holdsCmyk && KeepsProfile();
}

Geometry PictureRun::PlannedGeometry(const QSize& upright)
{
    const int orientation = source.Orientation();
    QRect found;
    if (job.crop.type == int(BatchJob::CropType::Trim)) {
        found = UprightRect(FrameWithoutBorder(source), source.StoredSize(), orientation);
    } else if (job.crop.type == int(BatchJob::CropType::Interesting)) {
        found = UprightRect(FrameOfInterest(source, TurnedSize(job.crop.size, orientation)), source.StoredSize(),
                            orientation);
    }
    return PlanGeometry(upright, job.crop, job.imageSize, found);
}

// Pixels are turned upright last, when they are fewer: only then they have to stand in memory.
Picture PictureRun::Sized()
{
    const int orientation = source.Orientation();
    const QSize upright = TurnedSize(source.StoredSize(), orientation);
    const Geometry geometry = PlannedGeometry(upright);
    const QSize result = geometry.ResultSize();
    if (qint64(result.width()) * result.height() > job.limits.pixels) {
        throw TooLarge(QStringLiteral("the result of %1 x %2 pixels would be above the limit of %3 megapixels")
                           .arg(result.width())
                           .arg(result.height())
                           .arg(job.limits.pixels / 1'000'000));
    }
    const double reduction = std::min(double(geometry.part.width()) / geometry.scaledSize.width(),
                                      double(geometry.part.height()) / geometry.scaledSize.height());
    Picture decoded = source.Load(source.PossibleShrink(reduction));
    if (!metadata.Profile().isEmpty()) {
        decoded = WithProfile(decoded, metadata.Profile());
    }
    inks = source.IsCmyk() ? ProfileOf(decoded) : QByteArray();
    const Picture loaded = InWorkingColours(decoded, KeepsInks(), made.warnings);
    const Picture sized = Resampled(loaded, source.StoredSize(), StoredGeometry(geometry, upright, orientation));
    const bool isReadInOrder = orientation <= 2;
    const double perMillimetre = std::max(1, job.imageSize.resolution) / 25.4;
    return TurnedUpright(isReadInOrder ? sized : WithRandomAccess(sized), orientation)
        .copy(Picture::option()->set("xres", perMillimetre)->set("yres", perMillimetre));
}

Picture PictureRun::Processed(Picture picture) const
{
    for (const JobEffect& effect : job.effects) {
        const auto failed = [&effect](const QString& text) {
            return ProcessingFailed(QStringLiteral("effect \"%1\": %2").arg(effect.id, text));
        };
        if (NeedsRandomAccess(effect.id, effect.parameters)) {
            picture = WithRandomAccess(picture);
        }
        try {
            picture = ApplyEffect(effect.id, effect.parameters, picture);
        } catch (const EffectError& problem) {
            throw failed(QString::fromUtf8(problem.what()));
        } catch (const vips::VError& problem) {
            throw failed(TextOf(problem));
        }
    }
    return picture;
}

Picture PictureRun::Framed(const Picture& picture)
{
    if (!job.framing.state) {
        return picture;
    }
    try {
        return FramePicture(picture, job.framing, job.limits, made.warnings);
    } catch (const FramingError& problem) {
        throw ProcessingFailed(QString::fromUtf8(problem.what()));
    }
}

Picture PictureRun::InOutputColours(const Picture& picture)
{
    if (!job.profile.isEmpty()) {
        if (!format.metadata.holdsProfile) {
            made.warnings.append(
                QStringLiteral("%1 files cannot hold a colour profile; the result is sRGB").arg(format.name));
            return InPlainSrgb(picture, made.warnings);
        }
        return ConvertedTo(job.profile, picture, made.warnings);
    }
    if (source.IsCmyk() && !IsCmyk(picture)) {
        if (format.holdsCmyk && KeepsProfile() && !picture.has_alpha()) {
            return AsCmyk(inks, picture, made.warnings);
        }
        made.warnings.append(QStringLiteral("the result is sRGB instead of CMYK"));
    }
    return KeepsProfile() ? picture : InPlainSrgb(picture, made.warnings);
}

void PictureRun::CheckFormat(const Picture& picture) const
{
    const QSize size(picture.width(), picture.height());
    const QString nearest =
        NearestFormat(source.Format().name, {HasSixteenBits(picture), picture.has_alpha(), IsCmyk(picture), size}).name;
    if (!CanWrite(format, options, HasSixteenBits(picture))) {
        throw FormatCannotHold(
            QStringLiteral("this installation has no encoder for %1, or not for this depth").arg(format.name), nearest);
    }
    if (IsCmyk(picture) && !format.holdsCmyk) {
        throw FormatCannotHold(
            QStringLiteral("%1 cannot hold CMYK, which the job's colour profile asks for").arg(format.name), nearest);
    }
    if (std::max(size.width(), size.height()) > format.longestSide) {
        throw FormatCannotHold(QStringLiteral("%1 x %2 pixels: %3 holds at most %4 on a side")
                                   .arg(size.width())
                                   .arg(size.height())
                                   .arg(format.name)
                                   .arg(format.longestSide),
                               nearest);
    }
}

void PictureRun::Write(const Picture& picture)
{
    const QByteArray profile = ProfileOf(picture);
    metadata.KeepOnly(keep);
    metadata.DescribeResult(QSize(picture.width(), picture.height()), std::max(1, job.imageSize.resolution),
                            profile.isEmpty() || IsSrgb(profile));
    const Picture carrier = WithMetadata(picture, format, metadata, made.warnings);
    Encode(carrier, format, options, BytesBefore(format, metadata), metadata.GoWithoutExif(), made.file->Descriptor());
    CompleteFile(made.file->FileName(), format, metadata, profile, made.warnings);
}

void PictureRun::KeepFileTime() const
{
    struct stat status;
    if (options[QLatin1String("keepFileTime")].toBool() &&
        stat(QFile::encodeName(task.inputFile).constData(), &status) == 0) {
        const timespec times[2] = {status.st_atim, status.st_mtim};
        futimens(made.file->Descriptor(), times);
    }
}

// The library reports everything that goes wrong while pixels flow at the end of the pipeline. Reading the source once
// more tells whether it was the beginning.
PictureFailure PictureRun::Explained(const vips::VError& problem)
{
    QString text = TextOf(problem);
    if (IsOutOfMemory(text)) {
        return TooLarge(text);
    }
    if (IsSourceDamaged(text)) {
        return IsOutOfMemory(text) ? TooLarge(text) : DamagedFile(text);
    }
    const bool isProcessed = !job.effects.isEmpty() || job.framing.state;
    if (isProcessed) {
        return ProcessingFailed(text);
    }
    return FormatCannotHold(QStringLiteral("the encoder for %1 failed: %2").arg(format.name, text),
                            NearestFormat(source.Format().name, NeedsOf(source)).name);
}

bool PictureRun::IsSourceDamaged(QString& text)
{
    try {
        source.Load().avg();
        return false;
    } catch (const vips::VError& problem) {
        text = TextOf(problem);
    } catch (const PictureFailure& problem) {
        text = problem.reason;
    }
    return true;
}

} // namespace

MadePicture MakePicture(const JobSettings& job, const PictureTask& task)
{
    const FormatSchema* format = FindFormat(task.format);
    if (!format) {
        throw FormatCannotHold(QStringLiteral("the format \"%1\" is unknown").arg(task.format), NearestFormat({}).name);
    }
    PrepareEncoder(*format);
    BeginMemoryAccount();
    return PictureRun(job, task, *format).Make();
}

} // namespace BatchWorker
