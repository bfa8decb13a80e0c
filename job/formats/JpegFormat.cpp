// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatDefinitions.h"
#include "OptionSchemas.h"

#include "job/values/Phrase.h"

namespace BatchJob {

FormatSchema JpegFormat()
{
    using namespace OptionSchemas;
    FormatSchema format;
    format.id = FormatId::Jpeg;
    format.name = QStringLiteral("JPEG");
    format.description = Phrase::English("small files of photos, which every program reads");
    format.extensions = QStringList{QStringLiteral("jpg"), QStringLiteral("jpeg"), QStringLiteral("jpe"),
                                    QStringLiteral("jfif"), QStringLiteral("mpo")};
    format.signatures = {{{{0, "\xFF\xD8\xFF"}}}};
    format.holdsTransparency = false;
    format.holdsCmyk = true;
    format.holdsGrey = true;
    format.longestSide = 65'500;
    format.loss = FormatLoss::Always;
    format.pages = FormatPages::Listed;
    format.metadata.holdsIptc = true;
    format.metadata.longestBlock = 65'000; // what one segment holds, less its headers
    format.metadata.shortestProfile = 128; // the header of a profile
    format.options = WithCommonOptions(WithByteLimit({Quality(85), Progressive(), ChromaSubsampling()}));
    return format;
}

} // namespace BatchJob
