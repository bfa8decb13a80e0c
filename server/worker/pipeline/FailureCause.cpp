// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FailureCause.h"

#include "job/formats/NearestFormat.h"
#include "job/values/Phrase.h"
#include "server/worker/pixels/CarriedFailure.h"
#include "server/worker/pixels/VipsText.h"

#include <memory>
#include <optional>

namespace BatchWorker {

namespace {

constexpr int allPercent = 100;

/// Reads `picture` from its top, line by line. `lines` counts those that could be read. Throws vips::VError at the
/// first that cannot.
void ReadLines(const Picture& picture, int& lines)
{
    const std::unique_ptr<VipsRegion, decltype(&g_object_unref)> region(vips_region_new(picture.get_image()),
                                                                        &g_object_unref);
    for (lines = 0; lines < picture.height(); ++lines) {
        const VipsRect line{0, lines, picture.width(), 1};
        if (vips_region_prepare(region.get(), &line) != 0) {
            throw vips::VError();
        }
    }
}

// Nothing when the source can be read to its end.
std::optional<PictureFailure> ProblemOf(PictureSource& source)
{
    int lines = 0;
    try {
        ReadLines(source.Load(), lines);
        return std::nullopt;
    } catch (const vips::VError& problem) {
        return source.Damage(TextOf(problem), int(qint64(lines) * allPercent / source.StoredSize().height()));
    } catch (const PictureFailure& problem) {
        return problem;
    }
}

} // namespace

PictureFailure CauseOf(const vips::VError& problem, PictureSource& source, bool isProcessed,
                       const BatchJob::FormatSchema& format)
{
    const QString text = TextOf(problem);
    if (const std::optional<PictureFailure> carried = TakeCarriedFailure()) {
        return *carried;
    }
    if (IsOutOfMemory(text)) {
        return NotEnoughMemory(text);
    }
    if (const std::optional<PictureFailure> damage = ProblemOf(source)) {
        return *damage;
    }
    if (isProcessed) {
        return ProcessingFailed(BatchJob::Phrase::English("an effect or the frame cannot be applied to the picture"),
                                text);
    }
    return FormatCannotHold(BatchJob::Phrase::English("the encoder for %1 failed").arg(format.name),
                            BatchJob::NearestFormat(source.Format().name, NeedsOf(source)).name, text);
}

} // namespace BatchWorker
