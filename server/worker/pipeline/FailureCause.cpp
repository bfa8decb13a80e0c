#include "FailureCause.h"

#include "job/formats/NearestFormat.h"
#include "server/worker/pixels/VipsText.h"

#include <optional>

namespace BatchWorker {

namespace {

// Nothing when the source can be read to its end.
std::optional<QString> ProblemOf(PictureSource& source)
{
    try {
        source.Load().avg();
        return std::nullopt;
    } catch (const vips::VError& problem) {
        return TextOf(problem);
    } catch (const PictureFailure& problem) {
        return problem.reason;
    }
}

} // namespace

PictureFailure CauseOf(const vips::VError& problem, PictureSource& source, bool isProcessed,
                       const BatchJob::FormatSchema& format)
{
    const QString text = TextOf(problem);
    if (IsOutOfMemory(text)) {
        return TooLarge(text);
    }
    if (const std::optional<QString> damage = ProblemOf(source)) {
        return IsOutOfMemory(*damage) ? TooLarge(*damage) : DamagedFile(*damage);
    }
    if (isProcessed) {
        return ProcessingFailed(text);
    }
    return FormatCannotHold(QStringLiteral("the encoder for %1 failed: %2").arg(format.name, text),
                            BatchJob::NearestFormat(source.Format().name, NeedsOf(source)).name);
}

} // namespace BatchWorker
