// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatDefinitions.h"
#include "OptionSchemas.h"

#include "job/values/Phrase.h"

namespace BatchJob {

FormatSchema GifFormat()
{
    using namespace OptionSchemas;
    FormatSchema format;
    format.id = FormatId::Gif;
    format.name = QStringLiteral("GIF");
    format.description = Phrase::English("at most 256 colours, each pixel opaque or transparent");
    format.extensions = QStringList{QStringLiteral("gif")};
    format.signatures = {{{{0, "GIF87a"}}}, {{{0, "GIF89a"}}}};
    format.longestSide = 65'535;
    format.loss = FormatLoss::Always;
    format.pages = FormatPages::Frames;
    format.metadata.holdsExif = false;
    format.metadata.holdsXmp = false;
    format.metadata.holdsProfile = false;
    format.metadata.reading = MetadataReading::FromDecoder;
    format.metadata.writing = MetadataWriting::None;
    format.options = WithCommonOptions({Effort(7)});
    return format;
}

} // namespace BatchJob
