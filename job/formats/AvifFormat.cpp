// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatDefinitions.h"
#include "OptionSchemas.h"

#include "job/values/Phrase.h"

namespace BatchJob {

FormatSchema AvifFormat()
{
    using namespace OptionSchemas;
    FormatSchema format;
    format.id = FormatId::Avif;
    format.name = QStringLiteral("AVIF");
    format.description = Phrase::English("very small files for the web in up to 12 bits, slow to write");
    format.extensions = QStringList{QStringLiteral("avif"), QStringLiteral("avifs")};
    format.signatures = {{{{4, "ftypavif"}}}, {{{4, "ftypavis"}}}};
    format.bitDepths = {8, 10, 12};
    format.longestSide = 16'384;
    format.isSlowToDecode = true;
    format.pages = FormatPages::Items;
    format.metadata.reading = MetadataReading::FromDecoder;
    format.metadata.hasXmpWrapper = false;
    format.options = WithCommonOptions(
        WithByteLimit({Quality(65), Lossless(Phrase::Marked("keep every pixel, but for a last step of rounding")),
                       Effort(2), ChromaSubsampling(), BitDepth(format.bitDepths)}));
    return format;
}

} // namespace BatchJob
