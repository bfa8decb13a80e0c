#include "PictureMaker.h"

#include "BatchValues.h"
#include "Effects.h"
#include "Encoder.h"
#include "Framing.h"
#include "Orientation.h"
#include "PictureFailure.h"
#include "PictureSource.h"
#include "PixelForms.h"
#include "Resampling.h"
#include "VipsText.h"
#include "WorkingForm.h"

#include <sys/stat.h>

namespace BatchServer {

namespace {

// What is left for the resize filter, which is better than that of the loader: a factor of two hides the loader's.
constexpr double roomForFilter = 2.0;

Picture Sized(const PictureSource& source, const JobSettings& job)
{
    const int orientation = source.Orientation();
    const QSize upright = TurnedSize(source.StoredSize(), orientation);
    const Geometry geometry = PlanGeometry(upright, job.crop, job.imageSize);
    const qint64 pixels = qint64(geometry.ResultSize().width()) * geometry.ResultSize().height();
    if (pixels > job.limits.pixels) {
        throw TooLarge(QStringLiteral("the result of %1 x %2 pixels would be above the limit of %3 megapixels")
                           .arg(geometry.ResultSize().width())
                           .arg(geometry.ResultSize().height())
                           .arg(job.limits.pixels / 1'000'000));
    }
    const double reduction = std::min(double(geometry.part.width()) / geometry.scaledSize.width(),
                                      double(geometry.part.height()) / geometry.scaledSize.height());
    const Picture loaded = InWorkingForm(source.Load(source.PossibleShrink(reduction / roomForFilter)));
    const Geometry stored = StoredGeometry(geometry, upright, orientation);
    const Picture sized = Resampled(loaded, source.StoredSize(), stored);
    return TurnedUpright(orientation > 2 ? WithRandomAccess(sized) : sized, orientation);
}

Picture Processed(const Picture& sized, const JobSettings& job)
{
    Picture picture = sized;
    for (const JobEffect& effect : job.effects) {
        try {
            picture = ApplyEffect(effect.id, effect.parameters, picture);
        } catch (const EffectError& problem) {
            throw ProcessingFailed(
                QStringLiteral("effect \"%1\": %2").arg(effect.id, QString::fromUtf8(problem.what())));
        } catch (const vips::VError& problem) {
            throw ProcessingFailed(QStringLiteral("effect \"%1\": %2").arg(effect.id, TextOf(problem)));
        }
    }
    return picture;
}

void CheckFormat(const FormatSchema& format, const PictureSource& source, const Picture& picture)
{
    const QSize size(picture.width(), picture.height());
    const QString nearest = NearestFormat(source.Format(), HasSixteenBits(picture), picture.has_alpha(), size);
    if (!CanWrite(format)) {
        throw FormatCannotHold(QStringLiteral("this installation has no encoder for %1").arg(format.name), nearest);
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

qint64 SizeOf(int descriptor)
{
    struct stat status;
    return fstat(descriptor, &status) == 0 ? qint64(status.st_size) : 0;
}

} // namespace

MadePicture MakePicture(const JobSettings& job, const PictureTask& task)
{
    const FormatSchema* format = FindFormat(task.format);
    if (!format) {
        throw FormatCannotHold(QStringLiteral("the format \"%1\" is unknown").arg(task.format), QStringLiteral("JPEG"));
    }
    const QJsonObject options = OptionsFor(*format, job.formatOptions);
    const PictureSource source(task.inputFile, job.limits.pixels);
    MadePicture made;
    try {
        const Picture picture = Processed(Sized(source, job), job);
        CheckFormat(*format, source, picture);
        made.file = std::make_unique<TemporaryFile>(task.outputFile);
        if (!made.file->Create()) {
            throw OutputFailed(made.file->Error());
        }
        Encode(ReadyFor(*format, options, picture), *format, options, made.file->Descriptor());
    } catch (const vips::VError& problem) {
        const QString text = TextOf(problem);
        throw IsOutOfMemory(text) ? TooLarge(text) : DamagedFile(text);
    }
    made.bytes = SizeOf(made.file->Descriptor());
    return made;
}

} // namespace BatchServer
