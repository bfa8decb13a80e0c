// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatDefinitions.h"
#include "OptionSchemas.h"

#include "job/values/Phrase.h"

namespace BatchJob {

FormatSchema JpegXlFormat()
{
    using namespace OptionSchemas;
    FormatSchema format;
    format.id = FormatId::JpegXl;
    format.name = QStringLiteral("JPEG XL");
    format.description = Phrase::English("small files of photos in up to 16 bits, also without loss");
    format.extensions = QStringList{QStringLiteral("jxl")};
    format.signatures = {{{{0, "\xFF\x0A"}}}, {{{4, "JXL \r\n\x87\n"}}}};
    format.holdsGrey = true;
    format.bitDepths = {8, 16};
    format.longestSide = 1'000'000;
    format.pages = FormatPages::Frames;
    format.metadata.isProfileRewritten = true;
    format.metadata.reading = MetadataReading::FromBoxes;
    format.metadata.writing = MetadataWriting::BeforePixels;
    format.options = WithCommonOptions(WithByteLimit(
        {Quality(85), Lossless(Phrase::Marked("keep every pixel as it is")), Effort(7), BitDepth(format.bitDepths)}));
    return format;
}

} // namespace BatchJob
