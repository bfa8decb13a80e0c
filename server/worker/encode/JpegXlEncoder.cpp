// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EncoderOptions.h"
#include "FormatEncoder.h"
#include "JxlPlan.h"
#include "JxlWriter.h"
#include "RowReader.h"

#include "job/values/Phrase.h"

#include "server/worker/pixels/EmbeddedProfile.h"
#include "server/worker/pixels/FreeMemory.h"
#include "server/worker/pixels/PictureFailure.h"
#include "server/worker/pixels/PixelForms.h"

#include <algorithm>
#include <cstring>
#include <vector>

/// The library's own operation takes five times the memory and cannot divide a picture.
namespace BatchWorker {

namespace {

// The distance of a quality, as the encoder's own command line has it: 90 is 1, which can hardly be seen.
double DistanceOf(int quality)
{
    return quality >= 30 ? 0.1 + (100 - quality) * 0.09 : 53.0 / 3000.0 * quality * quality - 1.15 * quality + 25.0;
}

/// Joins what comes before the pixels with what the encoder writes.
class JxlJoint
{
public:
    JxlJoint(const QByteArray& before, const vips::VTarget& target)
        : before(before)
        , target(target)
    {
    }

    void Add(const QByteArray& bytes)
    {
        if (isJoined || before.isEmpty()) {
            Write(bytes);
            return;
        }
        start += bytes;
        if (start.size() >= containerStart) {
            Join();
        }
    }

    void Finish()
    {
        if (!isJoined && !before.isEmpty()) {
            Join();
        }
    }

private:
    // The encoder writes bare pixels, or, where a decoder has to be able to do more than usual, a container: its
    // signature, its type and its level, then the pixels. `before` begins with signature and type, too, and ends with
    // the header of a box of pixels.
    void Join()
    {
        isJoined = true;
        const bool isContainer = start.startsWith(before.left(signatureAndType));
        if (isContainer) {
            Write(start.left(containerStart));
            Write(before.mid(signatureAndType, before.size() - signatureAndType - boxHeader));
            Write(start.mid(containerStart));
        } else {
            Write(before);
            Write(start);
        }
    }

    void Write(const QByteArray& bytes) const
    {
        if (vips_target_write(target.get_target(), bytes.constData(), std::size_t(bytes.size())) != 0) {
            throw vips::VError();
        }
    }

    static constexpr int boxHeader = 8;
    static constexpr int signatureAndType = 32;
    static constexpr int containerStart = signatureAndType + boxHeader + 1;

    QByteArray before;
    vips::VTarget target;
    QByteArray start;
    bool isJoined = false;
};

// The next `rows` of a picture, line by line.
std::vector<std::uint8_t> NextSamples(RowReader& reader, const Picture& picture, int rows)
{
    const std::size_t lineSize = VIPS_IMAGE_SIZEOF_LINE(picture.get_image());
    std::vector<std::uint8_t> samples(lineSize * std::size_t(rows));
    std::uint8_t* place = samples.data();
    reader.Next(rows, [&place, lineSize](int, const std::uint8_t* line) {
        std::memcpy(place, line, lineSize);
        place += lineSize;
    });
    return samples;
}

JxlPlan PlanFor(const JxlPicture& picture, int effort)
{
    // The pipeline before the encoder takes some, too.
    constexpr qint64 ofPipeline = qint64(128) << 20;
    const std::optional<JxlPlan> plan = PlanJxl(picture, effort, FreeMemory() - ofPipeline);
    if (!plan) {
        throw TooLarge(
            BatchJob::Phrase::English("writing %1 x %2 pixels as JPEG XL needs more memory than a worker may use")
                .arg(picture.width)
                .arg(picture.height));
    }
    return *plan;
}

void WriteJpegXl(const Picture& picture, const QJsonObject& options, const QByteArray& before,
                 const vips::VTarget& target)
{
    const JxlPicture shape{picture.width(), picture.height(), picture.bands(), HasSixteenBits(picture) ? 16 : 8,
                           TruthOption(options, "lossless")};
    const JxlPlan plan = PlanFor(shape, IntegerOption(options, "effort"));
    const QByteArray profile = ProfileOf(picture);
    JxlJoint joint(before, target);
    JxlWriter writer(shape, plan, profile, DistanceOf(IntegerOption(options, "quality")),
                     [&joint](const QByteArray& bytes) { joint.Add(bytes); });
    RowReader reader(picture);
    for (int row = 0; row < shape.height; row += plan.frameHeight) {
        const int rows = std::min(plan.frameHeight, shape.height - row);
        writer.AddFrame(NextSamples(reader, picture, rows), rows);
        writer.Flush();
    }
    joint.Finish();
    if (vips_target_end(target.get_target()) != 0) {
        throw vips::VError();
    }
}

} // namespace

FormatEncoder JpegXlEncoder()
{
    FormatEncoder encoder;
    encoder.write = WriteJpegXl;
    return encoder;
}

} // namespace BatchWorker
