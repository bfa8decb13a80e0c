// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EncoderTrial.h"

#include "Encoder.h"
#include "FormatEncoder.h"

#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"
#include "server/worker/pixels/PixelForms.h"

#include <QHash>
#include <QPair>

using namespace BatchJob;

namespace BatchWorker {

namespace {

// A library that is there may still lack the codec behind it; writing a few pixels tells.
bool TryToWrite(const FormatSchema& format, const QJsonObject& options, bool isDeep)
{
    try {
        const Picture black = Picture::black(64, 64, Picture::option()->set("bands", 3))
                                  .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
        const Picture ready = WithDepth(black, isDeep ? 16 : 8);
        const FormatEncoder& encoder = EncoderOf(format);
        const vips::VTarget target = vips::VTarget::new_to_memory();
        if (encoder.write) {
            encoder.write(ready, options, {}, target);
            return true;
        }
        vips::VOption* arguments = Picture::option()->set("in", ready)->set("target", target);
        encoder.setArguments(arguments, options, ready);
        Picture::call(encoder.operation, arguments);
        return true;
    } catch (const vips::VError&) {
        vips_error_clear();
        return false;
    }
}

bool CanWriteDepth(const FormatSchema& format, int bits)
{
    const auto allows = EncoderOf(format).canWriteDepth;
    return (!allows || allows(bits)) &&
           TryToWrite(format, OptionsFor(format, {{QStringLiteral("bitDepth"), bits}}), bits > 8);
}

} // namespace

bool CanWrite(const FormatSchema& format, const QJsonObject& options, bool isDeep)
{
    const bool isPlain = ResultDepth(format, options, isDeep) == 8;
    const int bits = isPlain ? 8 : options[QLatin1String("bitDepth")].toInt(format.bitDepths.last());
    static QHash<QPair<QString, int>, bool> answers;
    const auto known = answers.constFind({format.name, bits});
    if (known != answers.constEnd()) {
        return *known;
    }
    const bool answer = CanWriteDepth(format, bits);
    answers.insert({format.name, bits}, answer);
    return answer;
}

} // namespace BatchWorker
