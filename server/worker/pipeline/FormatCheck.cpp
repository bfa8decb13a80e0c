// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatCheck.h"

#include "job/formats/NearestFormat.h"
#include "job/values/Phrase.h"
#include "server/worker/colour/Colour.h"
#include "server/worker/encode/EncoderTrial.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"

#include <algorithm>

namespace BatchWorker {

namespace {

QString NoEncoder(const BatchJob::FormatSchema& format, const QJsonObject& options)
{
    const QString compression = options[QLatin1String("compression")].toString();
    if (compression.isEmpty()) {
        return BatchJob::Phrase::English("this installation has no encoder for %1, or not for this depth")
            .arg(format.name);
    }
    return BatchJob::Phrase::English("this installation has no encoder for %1 with the compression %2")
        .arg(format.name, compression);
}

} // namespace

void RequireFormatHolds(const BatchJob::FormatSchema& format, const QJsonObject& options, const Picture& picture,
                        const QString& inputFormat)
{
    const bool isDeep = HasSixteenBits(picture);
    const QSize size(picture.width(), picture.height());
    const QString nearest =
        BatchJob::NearestFormat(inputFormat, {isDeep, picture.has_alpha(), IsCmyk(picture), size}).name;
    if (!CanWrite(format, options, isDeep)) {
        throw FormatCannotHold(NoEncoder(format, options), nearest);
    }
    if (IsCmyk(picture) && !format.holdsCmyk) {
        throw FormatCannotHold(
            BatchJob::Phrase::English("%1 cannot hold CMYK, which the job's colour profile asks for").arg(format.name),
            nearest);
    }
    if (std::max(size.width(), size.height()) > format.longestSide) {
        throw FormatCannotHold(BatchJob::Phrase::English("%1 x %2 pixels: %3 holds at most %4 on a side")
                                   .arg(size.width())
                                   .arg(size.height())
                                   .arg(format.name)
                                   .arg(format.longestSide),
                               nearest);
    }
}

} // namespace BatchWorker
