#include "EncoderTrial.h"

#include "Encoder.h"
#include "FormatEncoder.h"

#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"
#include "server/worker/pixels/PixelForms.h"

#include <QHash>
#include <QPair>

#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

using namespace BatchJob;

namespace BatchWorker {

namespace {

constexpr int plainBits = 8;

/// What the trials of encoders have shown, by the name of the format and the bits of a channel.
using DeepEncoders = QHash<QPair<QString, int>, bool>;

// A library that is there may still lack the codec behind it; writing a few pixels tells.
bool TryToWrite(const FormatSchema& format, const QJsonObject& options, bool isDeep)
{
    try {
        const Picture black = Picture::black(64, 64, Picture::option()->set("bands", 3))
                                  .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
        const Picture ready = WithDepth(black, isDeep ? 16 : 8);
        const FormatEncoder& encoder = EncoderOf(format);
        vips::VOption* arguments = Picture::option()->set("in", ready)->set("target", vips::VTarget::new_to_memory());
        encoder.setArguments(arguments, options, ready);
        Picture::call(encoder.operation, arguments);
        return true;
    } catch (const vips::VError&) {
        vips_error_clear();
        return false;
    }
}

// The same for a deep picture in a process of its own, which an encoder may end.
bool TryToWriteElsewhere(const FormatSchema& format, const QJsonObject& options)
{
    constexpr int longest = 20; // seconds
    const pid_t child = fork();
    if (child == 0) {
        alarm(longest);
        close(STDERR_FILENO);
        _exit(TryToWrite(format, options, true) ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = 0;
    const bool hasEnded = child > 0 && waitpid(child, &status, 0) == child;
    return hasEnded && WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

// All of them before the first is used: their libraries keep threads, which a fork of the process lacks and would wait
// for.
DeepEncoders TryCrashingEncoders()
{
    DeepEncoders found;
    for (const FormatSchema& format : Formats()) {
        for (const int bits : format.bitDepths) {
            if (bits > plainBits && EncoderOf(format).mayCrashWhenDeep) {
                const QJsonObject options = OptionsFor(format, {{QStringLiteral("bitDepth"), bits}});
                found.insert({format.name, bits}, TryToWriteElsewhere(format, options));
            }
        }
    }
    return found;
}

} // namespace

bool CanWrite(const FormatSchema& format, const QJsonObject& options, bool isDeep)
{
    static DeepEncoders deepEncoders;
    static QHash<QString, bool> plainEncoders;
    if (EncoderOf(format).mayCrashWhenDeep) {
        if (deepEncoders.isEmpty()) {
            deepEncoders = TryCrashingEncoders();
        }
        if (ResultDepth(format, options, isDeep) > plainBits) {
            const int bits = options[QLatin1String("bitDepth")].toInt(format.bitDepths.last());
            return deepEncoders.value({format.name, bits});
        }
    }
    if (!plainEncoders.contains(format.name)) {
        plainEncoders.insert(format.name, TryToWrite(format, OptionsFor(format, {}), false));
    }
    return plainEncoders.value(format.name);
}

} // namespace BatchWorker
