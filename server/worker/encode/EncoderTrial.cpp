#include "EncoderTrial.h"

#include "Encoder.h"
#include "FormatEncoder.h"

#include "job/formats/FormatCatalog.h"
#include "job/formats/FormatOptions.h"
#include "server/worker/pixels/PixelForms.h"

#include <QHash>
#include <QPair>

#include <csignal>
#include <cstdlib>
#include <optional>
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

// Seconds after which a trial is given up. The imaging library ends its idle threads after 15.
constexpr unsigned longestTrial = 20;

// The same for a deep picture in a process of its own, which an encoder may end. Nothing when it gave no answer in
// time.
std::optional<bool> TryToWriteElsewhere(const FormatSchema& format, const QJsonObject& options)
{
    const pid_t child = fork();
    if (child == 0) {
        alarm(longestTrial);
        close(STDERR_FILENO);
        _exit(TryToWrite(format, options, true) ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = 0;
    const bool hasEnded = child > 0 && waitpid(child, &status, 0) == child;
    if (hasEnded && WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM) {
        return std::nullopt;
    }
    return hasEnded && WIFEXITED(status) && WEXITSTATUS(status) == EXIT_SUCCESS;
}

// The fork has none of the imaging library's threads, but waits for those that were idle when it was made. A second
// trial comes after these have ended.
bool TryTwiceToWriteElsewhere(const FormatSchema& format, const QJsonObject& options)
{
    const std::optional<bool> first = TryToWriteElsewhere(format, options);
    return first ? *first : TryToWriteElsewhere(format, options).value_or(false);
}

// All of them before the first is used: their libraries keep threads, too, which a fork lacks and would wait for.
DeepEncoders TryCrashingEncoders()
{
    DeepEncoders found;
    for (const FormatSchema& format : Formats()) {
        for (const int bits : format.bitDepths) {
            if (bits > plainBits && EncoderOf(format).mayCrashWhenDeep) {
                const QJsonObject options = OptionsFor(format, {{QStringLiteral("bitDepth"), bits}});
                found.insert({format.name, bits}, TryTwiceToWriteElsewhere(format, options));
            }
        }
    }
    return found;
}

const DeepEncoders& CrashingEncoders()
{
    static const DeepEncoders encoders = TryCrashingEncoders();
    return encoders;
}

} // namespace

void PrepareEncoder(const FormatSchema& format)
{
    if (EncoderOf(format).mayCrashWhenDeep) {
        CrashingEncoders();
    }
}

bool CanWrite(const FormatSchema& format, const QJsonObject& options, bool isDeep)
{
    PrepareEncoder(format);
    if (EncoderOf(format).mayCrashWhenDeep && ResultDepth(format, options, isDeep) > plainBits) {
        const int bits = options[QLatin1String("bitDepth")].toInt(format.bitDepths.last());
        return CrashingEncoders().value({format.name, bits});
    }
    static QHash<QString, bool> plainEncoders;
    if (!plainEncoders.contains(format.name)) {
        plainEncoders.insert(format.name, TryToWrite(format, OptionsFor(format, {}), false));
    }
    return plainEncoders.value(format.name);
}

} // namespace BatchWorker
