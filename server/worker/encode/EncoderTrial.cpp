// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EncoderTrial.h"

#include "Encoder.h"
#include "FormatEncoder.h"

#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"
#include "server/worker/pixels/PixelForms.h"

#include <QHash>

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

/// What an installation may lack an encoder for; other options it takes or refuses by their values.
struct Demand
{
    QString format;
    int bits = 0;
    QString compression; ///< empty where the format has no choice

    bool operator==(const Demand& other) const
    {
        return format == other.format && bits == other.bits && compression == other.compression;
    }
};

uint qHash(const Demand& demand, uint seed)
{
    return qHash(demand.format, seed) ^ qHash(demand.compression, ~seed) ^ uint(demand.bits);
}

bool CanMeet(const Demand& demand, const FormatSchema& format)
{
    const auto allows = EncoderOf(format).canWriteDepth;
    QJsonObject options{{QStringLiteral("bitDepth"), demand.bits}};
    if (!demand.compression.isEmpty()) {
        options.insert(QStringLiteral("compression"), demand.compression);
    }
    return (!allows || allows(demand.bits)) && TryToWrite(format, OptionsFor(format, options), demand.bits > 8);
}

} // namespace

bool CanWrite(const FormatSchema& format, const QJsonObject& options, bool isDeep)
{
    const bool isPlain = ResultDepth(format, options, isDeep) == 8;
    const int bits = isPlain ? 8 : options[QLatin1String("bitDepth")].toInt(format.bitDepths.last());
    const Demand demand{format.name, bits, options[QLatin1String("compression")].toString()};
    static QHash<Demand, bool> answers;
    const auto known = answers.constFind(demand);
    return known != answers.constEnd() ? *known : *answers.insert(demand, CanMeet(demand, format));
}

} // namespace BatchWorker
