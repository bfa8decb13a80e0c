// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatDefinitions.h"
#include "OptionSchemas.h"

#include "job/values/Phrase.h"

namespace BatchJob {

FormatSchema PngFormat()
{
    using namespace OptionSchemas;
    FormatSchema format;
    format.id = FormatId::Png;
    format.name = QStringLiteral("PNG");
    format.description = Phrase::English("every pixel as it is, with transparency; for graphics and for editing");
    format.extensions = QStringList{QStringLiteral("png")};
    format.signatures = {{{{0, "\x89PNG\r\n\x1A\n"}}}};
    format.holdsGrey = true;
    format.bitDepths = {8, 16};
    format.longestSide = 1'000'000;
    format.loss = FormatLoss::Never;
    format.metadata.reading = MetadataReading::FromChunks;
    format.metadata.isOrientationInDecoder = false;
    format.metadata.isExifRepeated = true;
    const ParameterSchema compressionLevel{QStringLiteral("compressionLevel"),
                                           ParameterType::Integer,
                                           6,
                                           Phrase::English("higher is slower and smaller"),
                                           0,
                                           9,
                                           {},
                                           {}};
    format.options = WithCommonOptions({compressionLevel, Progressive(), BitDepth(format.bitDepths)});
    return format;
}

} // namespace BatchJob
