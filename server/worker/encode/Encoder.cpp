// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Encoder.h"

#include "EncoderOptions.h"
#include "FormatEncoder.h"
#include "ResultTarget.h"

#include "job/formats/FormatOptions.h"
#include "server/worker/pixels/EmbeddedProfile.h"
#include "server/worker/pixels/FileCalls.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"

#include <QColor>

using namespace BatchJob;

namespace BatchWorker {

namespace {

void Operate(const FormatEncoder& encoder, const Picture& picture, const QJsonObject& options,
             const vips::VTarget& target)
{
    vips::VOption* arguments = Picture::option()->set("in", picture)->set("target", target);
    encoder.setArguments(arguments, options, picture);
    Picture::call(encoder.operation, arguments);
}

} // namespace

int ResultDepth(const FormatSchema& format, const QJsonObject& options, bool isDeep)
{
    if (BitDepthsFor(format, options).last() == 8) {
        return 8;
    }
    const QJsonValue wanted = options[QLatin1String("bitDepth")];
    const bool isDeepResult = wanted.isDouble() ? wanted.toInt() > 8 : isDeep;
    return isDeepResult ? 16 : 8;
}

Picture ReadyFor(const FormatSchema& format, const QJsonObject& options, const Picture& picture)
{
    Picture ready = picture;
    if (!format.holdsTransparency) {
        constexpr int opaqueColour = 7; // "#rrggbb"; what lies under everything has no use for an alpha
        ready = Flattened(ready, QColor(ChoiceOption(options, "background").left(opaqueColour)));
    }
    return WithDepth(ready, ResultDepth(format, options, HasSixteenBits(ready)));
}

void Encode(const Picture& picture, const FormatSchema& format, const QJsonObject& options, const QByteArray& before,
            int descriptor)
{
    const FormatEncoder& encoder = EncoderOf(format);
    const QByteArray profile = encoder.profileBytes ? ProfileOf(picture) : QByteArray();
    const AddedBytes start{encoder.write ? QByteArray() : before, 0};
    const ResultTarget result(descriptor, profile.isEmpty() ? start : encoder.profileBytes(profile));
    const Picture bare = profile.isEmpty() ? picture : WithProfile(picture, {});
    const auto checkFile = [&result] {
        if (result.Problem() != 0) {
            vips_error_clear();
            throw OutputFailed(FileProblem(result.Problem()));
        }
    };
    try {
        if (encoder.write) {
            encoder.write(picture, options, before, result.Target());
        } else {
            Operate(encoder, bare, options, result.Target());
        }
    } catch (const vips::VError&) {
        checkFile();
        throw;
    }
    checkFile();
}

} // namespace BatchWorker
