// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JxlPlan.h"

#include "server/worker/pixels/Picture.h"

#include <QByteArray>

#include <cstdint>
#include <functional>
#include <memory>
#include <vector>

struct JxlEncoderStruct;
struct JxlEncoderFrameSettingsStruct;

namespace BatchWorker {

/// Encodes one picture, which arrives in frames from top to bottom. Everything throws vips::VError when the encoder
/// fails.
class JxlWriter
{
public:
    /// Takes the bytes of the file in their order.
    using Output = std::function<void(const QByteArray& bytes)>;

    /// `profile` is an ICC profile, or empty for sRGB. `distance` says how far results may be from the picture; 0 is
    /// lossless.
    JxlWriter(const JxlPicture& picture, const JxlPlan& plan, const QByteArray& profile, double distance,
              Output output);
    ~JxlWriter();

    /// Adds the next `rows` of the picture, line by line, the channels of a pixel together. All frames but the last
    /// have plan.frameHeight rows.
    void AddFrame(const std::vector<std::uint8_t>& samples, int rows);

    /// Encodes what was added. To be called after each AddFrame(), when the samples are no longer needed.
    void Flush();

private:
    Q_DISABLE_COPY(JxlWriter)

    void Check(int status, const char* step) const;
    void SetPicture(const QByteArray& profile);
    void SetPlace(JxlEncoderFrameSettingsStruct* settings, int rows) const;

    JxlPicture picture;
    JxlPlan plan;
    double distance;
    Output output;
    int rowsAdded = 0;
    std::unique_ptr<JxlEncoderStruct, void (*)(JxlEncoderStruct*)> encoder;
};

} // namespace BatchWorker
