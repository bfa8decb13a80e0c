// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatDefinitions.h"
#include "OptionSchemas.h"

#include "job/values/Phrase.h"

namespace BatchJob {

FormatSchema TiffFormat()
{
    using namespace OptionSchemas;
    FormatSchema format;
    format.id = FormatId::Tiff;
    format.name = QStringLiteral("TIFF");
    format.description =
        Phrase::English("every pixel as it is, also CMYK and very large; for printing and for archives");
    format.extensions = QStringList{QStringLiteral("tif"), QStringLiteral("tiff")};
    constexpr int length = 4;
    for (const char* start : {"II*\0", "MM\0*", "II+\0", "MM\0+"}) {
        format.signatures.append({{{0, QByteArray(start, length)}}});
    }
    format.holdsCmyk = true;
    format.holdsGrey = true;
    format.bitDepths = {8, 16};
    format.longestSide = 10'000'000;
    format.pages = FormatPages::Directories;
    format.metadata.holdsIptc = true;
    format.metadata.writing = MetadataWriting::AfterEncoding;
    const ParameterSchema compression{QStringLiteral("compression"),
                                      ParameterType::Choice,
                                      QStringLiteral("lzw"),
                                      Phrase::English("how the pixels are compressed"),
                                      0,
                                      0,
                                      {},
                                      {QStringLiteral("none"), QStringLiteral("lzw"), QStringLiteral("deflate"),
                                       QStringLiteral("zstd"), QStringLiteral("jpeg")}};
    format.options = WithCommonOptions({compression, Quality(85), BitDepth(format.bitDepths)});
    return format;
}

} // namespace BatchJob
