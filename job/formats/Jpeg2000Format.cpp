// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatDefinitions.h"
#include "OptionSchemas.h"

#include "job/values/Phrase.h"

namespace BatchJob {

FormatSchema Jpeg2000Format()
{
    using namespace OptionSchemas;
    FormatSchema format;
    format.id = FormatId::Jpeg2000;
    format.name = QStringLiteral("JPEG 2000");
    format.description = Phrase::English("archives and films, in up to 16 bits, also without loss");
    format.extensions = QStringList{QStringLiteral("jp2"), QStringLiteral("j2k"), QStringLiteral("jpx"),
                                    QStringLiteral("jpf"), QStringLiteral("j2c"), QStringLiteral("jph")};
    format.signatures = {{{{4, "jP  \r\n\x87\n"}}}, {{{0, "\xFF\x4F\xFF\x51"}}}};
    format.holdsGrey = true;
    format.bitDepths = {8, 16};
    format.longestSide = 1'000'000;
    format.metadata.holdsIptc = true;
    format.metadata.reading = MetadataReading::FromIdentifiedBoxes;
    format.metadata.writing = MetadataWriting::AfterEncoding;
    format.metadata.isProfileInDecoder = false;
    format.options =
        WithCommonOptions(WithByteLimit({Quality(85), Lossless(Phrase::Marked("keep every pixel as it is")),
                                         ChromaSubsampling(), BitDepth(format.bitDepths)}));
    return format;
}

} // namespace BatchJob
