// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EncoderOptions.h"
#include "FormatEncoder.h"
#include "HeifWriter.h"

#include <QThread>

/// The library's own operation lets the encoder take smooth photos for screenshots. It then looks for parts that
/// repeat, which takes 80 bytes of memory more for each pixel and ten times as long, and finds next to nothing.
namespace BatchWorker {

namespace {

// As measured with libaom 3.6, and a little more.
constexpr EncoderMemory memory{44, 27, 8, 5};

void Write(const Picture& picture, const QJsonObject& options, const QByteArray&, const vips::VTarget& target)
{
    constexpr int fastest = 9;
    HeifSettings settings = HeifSettingsOf(options, picture);
    settings.formatName = "AVIF";
    settings.compression = heif_compression_AV1;
    settings.parameters = {{"speed", QByteArray::number(fastest - IntegerOption(options, "effort"))},
                           {"threads", QByteArray::number(QThread::idealThreadCount())},
                           {"aom:enable-intrabc", "0"}};
    settings.memory = memory;
    WriteHeif(picture, settings, target);
}

// libheif 1.15 announces a profile that does not fit 10 bits, over which libaom ends the process.
bool CanWriteDepth(int bits)
{
    constexpr quint32 broken = 0x010f; // 1.15; the whole number has the patch level and a zero behind it
    return bits != 10 || heif_get_version_number() >> 16U != broken;
}

} // namespace

FormatEncoder AvifEncoder()
{
    FormatEncoder encoder;
    encoder.write = Write;
    encoder.canWriteDepth = CanWriteDepth;
    return encoder;
}

} // namespace BatchWorker
