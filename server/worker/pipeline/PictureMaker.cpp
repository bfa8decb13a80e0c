// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureMaker.h"

#include "CropPlan.h"
#include "EffectStage.h"
#include "FailureCause.h"
#include "FormatCheck.h"
#include "ResultCheck.h"
#include "ResultColours.h"

#include "job/formats/ByteLimit.h"
#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"
#include "job/formats/NearestFormat.h"
#include "job/values/Phrase.h"
#include "server/worker/colour/Colour.h"
#include "server/worker/colour/ColourProfile.h"
#include "server/worker/decode/PictureSource.h"
#include "server/worker/encode/Encoder.h"
#include "server/worker/encode/QualitySearch.h"
#include "server/worker/framing/Framing.h"
#include "server/worker/geometry/Orientation.h"
#include "server/worker/geometry/Resampling.h"
#include "server/worker/metadata/Companions.h"
#include "server/worker/metadata/Metadata.h"
#include "server/worker/metadata/MetadataCarrier.h"
#include "server/worker/metadata/MetadataTexts.h"
#include "server/worker/pixels/FileCalls.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"
#include "server/worker/pixels/RandomAccess.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

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
    PictureRun(const JobSettings& job, const ServerLimits& limits, const PictureTask& task, const FormatSchema& format,
               KeptPixels* kept)
        : job(job)
        , limits(limits)
        , task(task)
        , format(format)
        , options(OptionsFor(format, job.formatOptions))
        , limit(ByteLimit::Of(options))
        , keep(KeptMetadata(options))
        , colours(job, format, keep)
        , source(task.inputFile, limits, kept)
    {
        const Companions companions = CompanionsOf(task.inputFile);
        WarnOfOtherPages(std::max(source.Pages(), companions.pictures));
        metadata = Metadata::Of(task.inputFile, source, made.warnings);
        OrientBy(metadata, source);
        made.facts.inputSize = TurnedSize(source.StoredSize(), source.Orientation());
        WarnOf(companions);
        effects = WithTokens(job.effects, Tokens());
        metadata.KeepOnly(keep, made.warnings);
        SetMetadata();
    }

    MadePicture Make();

private:
    void MakeFile();
    void WarnOfOtherPages(int pages);
    void WarnOf(const Companions& companions);
    TokenValues Tokens() const;
    void SetMetadata();
    Picture Sized();
    void CheckResultSize(const QSize& size) const;
    Picture Decoded(int shrink);
    Picture Framed(const Picture& picture);
    void Write(const Picture& picture);
    qint64 WriteAt(int quality, const Picture& picture);
    void WriteWithin(const ByteLimit& limit, const Picture& picture);
    void WriteSmaller(const ByteLimit& limit, const Picture& picture, qint64 bytes);
    void KeepFileTime() const;
    bool IsProcessed() const { return ChangePixels(effects) || job.framing.state; }

    const JobSettings& job;
    const ServerLimits& limits;
    const PictureTask& task;
    const FormatSchema& format;
    QJsonObject options;
    const std::optional<ByteLimit> limit;
    QStringList keep;
    ResultColours colours;
    PictureSource source;
    Metadata metadata;
    QVector<JobEffect> effects; ///< with the texts of this picture
    QByteArray profile;         ///< of the result
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
        const Picture framed = Framed(WithEffects(Sized(), effects));
        const int bits = ResultDepth(format, options, HasSixteenBits(framed));
        const Picture ready = colours.Of(framed, bits, made.warnings);
        RequireFormatHolds(format, options, ready, source.Format().name);
        const Picture last = ReadyFor(format, options, ready);
        if (limit) {
            WriteWithin(*limit, WithRandomAccess(last));
        } else {
            Write(last);
        }
    } catch (const vips::VError& problem) {
        throw CauseOf(problem, source, IsProcessed(), format);
    }
}

void PictureRun::WarnOfOtherPages(int pages)
{
    if (pages > 1) {
        const bool hasMain = source.Format().pages == FormatPages::Items;
        made.warnings.append(
            {WarningKind::OtherPages, (hasMain ? Phrase::English("it has %1 pages; only the main one is used")
                                               : Phrase::English("it has %1 pages; only the first is used"))
                                          .arg(pages)});
    }
}

void PictureRun::WarnOf(const Companions& companions)
{
    if (companions.hasGainMap) {
        made.warnings.append({WarningKind::GainMapLost,
                              Phrase::English("it has a gain map, which the result lacks: highlights are no longer "
                                              "brighter on HDR screens")});
    }
    if (companions.hasDepth) {
        made.warnings.append({WarningKind::DepthLost, Phrase::English("it has a depth map, which the result lacks")});
    }
    if (companions.hasFilm) {
        made.warnings.append({WarningKind::FilmLost, Phrase::English("it has a film, which the result lacks")});
    }
    if (companions.hasAudio) {
        made.warnings.append({WarningKind::AudioLost, Phrase::English("it has audio, which the result lacks")});
    }
}

/// Of the original, before anything is removed from its metadata.
TokenValues PictureRun::Tokens() const
{
    TokenValues values = ValuesOfFile(task.inputFile, task.fileNumber);
    values.captured = CapturedOrChanged(metadata, task.inputFile);
    values.size = made.facts.inputSize;
    values.texts = metadata.Texts();
    return values;
}

void PictureRun::SetMetadata()
{
    for (const JobEffect& effect : qAsConst(effects)) {
        if (effect.schema->kind == EffectKind::SetMetadata) {
            metadata.Set(MetadataTexts::Of(effect.parameters));
        }
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
    made.file = std::make_unique<TemporaryFile>(task.outputFile, task.outputRoot);
    if (!made.file->Create()) {
        throw OutputFailed(made.file->Error());
    }
    profile = ProfileOf(picture);
    made.facts.outputSize = QSize(picture.width(), picture.height());
    made.facts.quality = QualityUsed(options);
    metadata.DescribeResult(made.facts.outputSize, std::max(1, job.imageSize.resolution),
                            profile.isEmpty() || IsSrgb(profile));
    const Picture carrier = WithMetadata(picture, format, metadata, made.warnings);
    Encode(carrier, format, options, BytesBefore(format, metadata), made.file->Descriptor());
    CompleteFile(made.file->OpenPath(), format, metadata, profile, made.warnings);
}

/// The bytes of the whole file.
qint64 PictureRun::WriteAt(int quality, const Picture& picture)
{
    options.insert(QStringLiteral("quality"), quality);
    Write(picture);
    return std::max<qint64>(SizeOfFile(made.file->Descriptor()), 0);
}

/// `picture` is read once for each attempt. Two files exist meanwhile: the best one so far is not written again.
void PictureRun::WriteWithin(const ByteLimit& limit, const Picture& picture)
{
    MadePicture best;
    const Warnings ofPixels = made.warnings;
    qint64 smallest = 0;
    QualitySearch search(limit.leastQuality, limit.quality);
    while (const std::optional<int> quality = search.Next()) {
        made.warnings = ofPixels;
        const qint64 bytes = WriteAt(*quality, picture);
        search.Note(bytes <= limit.bytes);
        smallest = bytes;
        if (bytes <= limit.bytes) {
            best = std::move(made);
            made.facts = best.facts;
        }
    }
    if (best.file) {
        made = std::move(best);
        return;
    }
    made.warnings = ofPixels;
    WriteSmaller(limit, picture, smallest);
}

/// `bytes` are those of the file in full size with the least quality.
void PictureRun::WriteSmaller(const ByteLimit& limit, const Picture& picture, qint64 bytes)
{
    // A tenth less on each side is a fifth less to write.
    constexpr double step = 0.9;
    const QSize size(picture.width(), picture.height());
    const Warnings ofPixels = made.warnings;
    QSize smaller = size;
    int steps = 0;
    while (limit.mayShrink && bytes > limit.bytes && smaller.width() > 1 && smaller.height() > 1) {
        const double wanted = std::log(double(limit.bytes) / double(bytes)) / (2.0 * std::log(step));
        steps += std::max(1, int(wanted));
        const double scale = std::pow(step, steps);
        smaller = QSize(std::max(1, int(std::lround(size.width() * scale))),
                        std::max(1, int(std::lround(size.height() * scale))));
        made.warnings = ofPixels;
        bytes = WriteAt(limit.leastQuality, Resampled(picture, size, {QRect({}, size), smaller, QRect({}, smaller)}));
    }
    if (bytes > limit.bytes) {
        throw FormatCannotHold(
            Phrase::English("the file would have %1 bytes with quality %2 and %3 x %4 pixels; at most "
                            "%5 bytes are wanted")
                .arg(bytes)
                .arg(limit.leastQuality)
                .arg(smaller.width())
                .arg(smaller.height())
                .arg(limit.bytes),
            QString());
    }
}

void PictureRun::KeepFileTime() const
{
    if (options[QLatin1String("keepFileTime")].toBool()) {
        CopyTimes(task.inputFile, made.file->Descriptor());
    }
}

} // namespace

MadePicture MakePicture(const JobSettings& job, const ServerLimits& limits, const PictureTask& task, KeptPixels* kept)
{
    const FormatSchema* format = FindFormat(task.format);
    if (!format) {
        throw FormatCannotHold(Phrase::English("the format \"%1\" is unknown").arg(task.format),
                               NearestFormat({}).name);
    }
    BeginMemoryAccount();
    return PictureRun(job, limits, task, *format, kept).Make();
}

} // namespace BatchWorker
