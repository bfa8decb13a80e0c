// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatDefinitions.h"
#include "OptionSchemas.h"

#include "job/values/Phrase.h"

namespace BatchJob {

FormatSchema WebpFormat()
{
    using namespace OptionSchemas;
    FormatSchema format;
    format.id = FormatId::Webp;
    format.name = QStringLiteral("WebP");
    format.description = Phrase::English("small files for the web, with transparency");
    format.extensions = QStringList{QStringLiteral("webp")};
    format.signatures = {{{{0, "RIFF"}, {8, "WEBP"}}}};
    format.longestSide = 16'383;
    format.pages = FormatPages::Frames;
    format.metadata.reading = MetadataReading::FromDecoder;
    format.metadata.exifRemoval = ExifRemoval::CutOut;
    format.options = WithCommonOptions(
        WithByteLimit({Quality(80), Lossless(Phrase::Marked("keep every pixel that can be seen")), Effort(4)}));
    return format;
}

} // namespace BatchJob
