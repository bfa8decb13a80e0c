// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatDefinitions.h"
#include "OptionSchemas.h"

#include "job/values/Phrase.h"

namespace BatchJob {

FormatSchema HeifFormat()
{
    using namespace OptionSchemas;
    FormatSchema format;
    format.id = FormatId::Heif;
    format.name = QStringLiteral("HEIF");
    format.description = Phrase::English("small files of photos in up to 12 bits, as phones write them");
    format.extensions = QStringList{QStringLiteral("heic"), QStringLiteral("heif"), QStringLiteral("hif")};
    for (const char* brand : {"heic", "heix", "hevc", "hevx", "heim", "heis", "mif1", "msf1"}) {
        format.signatures.append({{{4, QByteArray("ftyp") + brand}}});
    }
    format.bitDepths = {8, 10, 12};
    format.longestSide = 16'384;
    format.isSlowToDecode = true;
    format.pages = FormatPages::Items;
    format.metadata.reading = MetadataReading::FromDecoder;
    format.metadata.hasXmpWrapper = false;
    format.options = WithCommonOptions(WithByteLimit(
        {Quality(80), Lossless(Phrase::Marked("keep every pixel, but for a last step of rounding")),
         Effort(0, Phrase::Marked("higher is slower and better")), ChromaSubsampling(), BitDepth(format.bitDepths)}));
    return format;
}

} // namespace BatchJob
