// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureMaker.h"

#include "CropPlan.h"
#include "EffectStage.h"
#include "FailureCause.h"
#include "FormatCheck.h"
#include "ResultCheck.h"
#include "ResultColours.h"

#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"
#include "job/formats/NearestFormat.h"
#include "job/values/Phrase.h"
#include "server/worker/colour/Colour.h"
#include "server/worker/colour/ColourProfile.h"
#include "server/worker/decode/PictureSource.h"
#include "server/worker/encode/Encoder.h"
#include "server/worker/framing/Framing.h"
#include "server/worker/geometry/Orientation.h"
#include "server/worker/geometry/Resampling.h"
#include "server/worker/metadata/GainMap.h"
#include "server/worker/metadata/Metadata.h"
#include "server/worker/metadata/MetadataCarrier.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"
#include "server/worker/pixels/RandomAccess.h"

#include <QFile>
#include <QJsonArray>

#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchWorker {

namespace {

QStringList KeptMetadata(const QJsonObject& options)
{
    QStringList keep;
    const QJsonArray kinds = options[QLatin1String("keep")].toArray();
    for (const QJsonValue& kind : kinds) {
        keep.append(kind.toString());
    }
    return keep;
}

/// The way of one picture through the stages.
class PictureRun
{
public:
    PictureRun(const JobSettings& job, const ServerLimits& limits, const PictureTask& task, const FormatSchema& format)
        : job(job)
        , limits(limits)
        , task(task)
        , format(format)
        , options(OptionsFor(format, job.formatOptions))
        , keep(KeptMetadata(options))
        , colours(job, format, keep)
        , source(task.inputFile, limits)
    {
        WarnOfOtherPages();
        metadata = Metadata::Of(task.inputFile, source, made.warnings);
        OrientBy(metadata, source);
        made.facts.inputSize = TurnedSize(source.StoredSize(), source.Orientation());
        made.facts.quality = QualityUsed(options);
        WarnOfGainMap();
        metadata.KeepOnly(keep, made.warnings);
    }

    MadePicture Make();

private:
    void MakeFile();
    void WarnOfOtherPages();
    void WarnOfGainMap();
    Picture Sized();
    void CheckResultSize(const QSize& size) const;
    Picture Decoded(int shrink);
    Picture Framed(const Picture& picture);
    void Write(const Picture& picture);
    void KeepFileTime() const;
    bool IsProcessed() const { return !job.effects.isEmpty() || job.framing.state; }

    const JobSettings& job;
    const ServerLimits& limits;
    const PictureTask& task;
    const FormatSchema& format;
    QJsonObject options;
    QStringList keep;
    ResultColours colours;
    PictureSource source;
    Metadata metadata;
    QByteArray profile; ///< of the result
    MadePicture made;
};

MadePicture PictureRun::Make()
{
    const Warnings ofReading = made.warnings;
    MakeFile();
    if (!profile.isEmpty() && !CarriesProfile(made.file->OpenPath(), profile, limits)) {
        made.warnings = ofReading;
        made.warnings.append(
            {WarningKind::ColoursConverted,
             Phrase::English("the colour profile does not fit into the %1 file; the result is sRGB").arg(format.name)});
        colours.ForgoProfile();
        MakeFile();
    }
    KeepFileTime();
    made.warnings += source.DecoderWarnings();
    return std::move(made);
}

void PictureRun::MakeFile()
{
    try {
        const Picture framed = Framed(WithEffects(Sized(), job.effects));
        const int bits = ResultDepth(format, options, HasSixteenBits(framed));
        const Picture ready = colours.Of(framed, bits, made.warnings);
        RequireFormatHolds(format, options, ready, source.Format().name);
        made.file = std::make_unique<TemporaryFile>(task.outputFile, task.outputRoot);
        if (!made.file->Create()) {
            throw OutputFailed(made.file->Error());
        }
        Write(ReadyFor(format, options, ready));
    } catch (const vips::VError& problem) {
        throw CauseOf(problem, source, IsProcessed(), format);
    }
}

void PictureRun::WarnOfOtherPages()
{
    const int pages = source.Pages();
    if (pages > 1) {
        const bool hasMain = source.Format().pages == FormatPages::Items;
        made.warnings.append(
            {WarningKind::OtherPages, (hasMain ? Phrase::English("it has %1 pages; only the main one is used")
                                               : Phrase::English("it has %1 pages; only the first is used"))
                                          .arg(pages)});
    }
}

void PictureRun::WarnOfGainMap()
{
    if (HasGainMap(task.inputFile)) {
        made.warnings.append({WarningKind::GainMapLost,
                              Phrase::English("it has a gain map, which the result lacks: highlights are no longer "
                                              "brighter on HDR screens")});
    }
}

// Pixels are turned upright last, when they are fewer: only then they have to be in memory.
Picture PictureRun::Sized()
{
    const int orientation = source.Orientation();
    const QSize upright = TurnedSize(source.StoredSize(), orientation);
    const Geometry geometry = PlannedGeometry(source, job.crop, job.imageSize);
    CheckResultSize(geometry.ResultSize());
    const double reduction = std::min(double(geometry.part.width()) / geometry.scaledSize.width(),
                                      double(geometry.part.height()) / geometry.scaledSize.height());
    const Picture decoded = Decoded(source.PossibleShrink(reduction));
    const Picture loaded = InWorkingColours(decoded, colours.KeepsInks(), made.warnings);
    const Picture sized = Resampled(loaded, source.StoredSize(), StoredGeometry(geometry, upright, orientation));
    const bool isReadInOrder = orientation <= 2;
    const double perMillimetre = std::max(1, job.imageSize.resolution) / 25.4;
    return TurnedUpright(isReadInOrder ? sized : WithRandomAccess(sized), orientation)
        .copy(Picture::option()->set("xres", perMillimetre)->set("yres", perMillimetre));
}

void PictureRun::CheckResultSize(const QSize& size) const
{
    if (qint64(size.width()) * size.height() > limits.pixels) {
        throw TooLarge(Phrase::English("the result of %1 x %2 pixels would be above the limit of %3 megapixels")
                           .arg(size.width())
                           .arg(size.height())
                           .arg(limits.pixels / 1'000'000));
    }
}

// With the profile that the metadata hold, where the decoder knows of none.
Picture PictureRun::Decoded(int shrink)
{
    const Picture loaded = source.Load(shrink);
    const Picture decoded = metadata.Profile().isEmpty() ? loaded : WithProfile(loaded, metadata.Profile());
    colours.NoteSource(decoded);
    return decoded;
}

Picture PictureRun::Framed(const Picture& picture)
{
    return job.framing.state ? FramePicture(picture, job.framing, limits, made.warnings) : picture;
}

void PictureRun::Write(const Picture& picture)
{
    profile = ProfileOf(picture);
    made.facts.outputSize = QSize(picture.width(), picture.height());
    metadata.DescribeResult(made.facts.outputSize, std::max(1, job.imageSize.resolution),
                            profile.isEmpty() || IsSrgb(profile));
    const Picture carrier = WithMetadata(picture, format, metadata, made.warnings);
    Encode(carrier, format, options, BytesBefore(format, metadata), made.file->Descriptor());
    CompleteFile(made.file->OpenPath(), format, metadata, profile, made.warnings);
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

} // namespace

MadePicture MakePicture(const JobSettings& job, const ServerLimits& limits, const PictureTask& task)
{
    const FormatSchema* format = FindFormat(task.format);
    if (!format) {
        throw FormatCannotHold(Phrase::English("the format \"%1\" is unknown").arg(task.format),
                               NearestFormat({}).name);
    }
    BeginMemoryAccount();
    return PictureRun(job, limits, task, *format).Make();
}

} // namespace BatchWorker
