// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EncoderOptions.h"
#include "FormatEncoder.h"
#include "HeifWriter.h"

#include <array>

/// The library's own operation cannot say how hard the encoder tries, which takes ten times as long as it need.
namespace BatchWorker {

namespace {

// What x265 calls its efforts; "placebo" is left out, which takes far longer for nothing that can be seen.
constexpr std::array presets{"ultrafast", "superfast", "veryfast", "faster", "fast",
                             "medium",    "slow",      "slow",     "slower", "veryslow"};

// As measured with x265 3.5, and a little more.
constexpr EncoderMemory memory{25, 18, 10, 4};

void Write(const Picture& picture, const QJsonObject& options, const QByteArray&, const vips::VTarget& target)
{
    HeifSettings settings = HeifSettingsOf(options, picture);
    settings.formatName = "HEIF";
    settings.compression = heif_compression_HEVC;
    settings.parameters = {{"preset", presets.at(std::size_t(IntegerOption(options, "effort")))}};
    settings.memory = memory;
    WriteHeif(picture, settings, target);
}

} // namespace

FormatEncoder HeifEncoder()
{
    FormatEncoder encoder;
    encoder.write = Write;
    return encoder;
}

} // namespace BatchWorker
