// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JxlWriter.h"

#include <jxl/encode.h>

#include <utility>

namespace BatchWorker {

namespace {

bool HasAlpha(const JxlPicture& picture)
{
    return picture.bands % 2 == 0;
}

} // namespace

JxlWriter::JxlWriter(const JxlPicture& picture, const JxlPlan& plan, const QByteArray& profile, double distance,
                     Output output)
    : picture(picture)
    , plan(plan)
    , distance(distance)
    , output(std::move(output))
    , encoder(JxlEncoderCreate(nullptr), JxlEncoderDestroy)
{
    Check(encoder ? JXL_ENC_SUCCESS : JXL_ENC_ERROR, "start");
    SetPicture(profile);
}

JxlWriter::~JxlWriter() = default;

void JxlWriter::Check(int status, const char* step) const
{
    if (status != JXL_ENC_SUCCESS) {
        const int reason = encoder ? JxlEncoderGetError(encoder.get()) : JXL_ENC_ERR_OOM;
        if (reason == JXL_ENC_ERR_OOM) {
            vips_error("JPEG XL", "out of memory");
        } else {
            vips_error("JPEG XL", "the encoder refuses the %s (%d)", step, reason);
        }
        throw vips::VError();
    }
}

void JxlWriter::SetPicture(const QByteArray& profile)
{
    JxlBasicInfo info;
    JxlEncoderInitBasicInfo(&info);
    info.xsize = std::uint32_t(picture.width);
    info.ysize = std::uint32_t(picture.height);
    info.bits_per_sample = std::uint32_t(picture.bits);
    info.num_color_channels = picture.bands < 3 ? 1 : 3;
    if (HasAlpha(picture)) {
        info.num_extra_channels = 1;
        info.alpha_bits = info.bits_per_sample;
    }
    info.uses_original_profile = picture.isLossless ? JXL_TRUE : JXL_FALSE;
    Check(JxlEncoderSetBasicInfo(encoder.get(), &info), "size");
    if (profile.isEmpty()) {
        JxlColorEncoding srgb;
        JxlColorEncodingSetToSRGB(&srgb, info.num_color_channels == 1 ? JXL_TRUE : JXL_FALSE);
        Check(JxlEncoderSetColorEncoding(encoder.get(), &srgb), "colours");
    } else {
        const auto* bytes = reinterpret_cast<const std::uint8_t*>(profile.constData());
        Check(JxlEncoderSetICCProfile(encoder.get(), bytes, std::size_t(profile.size())), "colour profile");
    }
}

// Frames without a duration are layers of one picture. Each replaces its part of what those before have made.
void JxlWriter::SetPlace(JxlEncoderFrameSettingsStruct* settings, int rows) const
{
    constexpr std::uint32_t canvas = 1; // the number under which a layer finds what is below it
    JxlFrameHeader header;
    JxlEncoderInitFrameHeader(&header);
    header.layer_info.have_crop = JXL_TRUE;
    header.layer_info.crop_y0 = rowsAdded;
    header.layer_info.xsize = std::uint32_t(picture.width);
    header.layer_info.ysize = std::uint32_t(rows);
    header.layer_info.blend_info.blendmode = JXL_BLEND_REPLACE;
    header.layer_info.blend_info.source = canvas;
    header.layer_info.save_as_reference = canvas;
    Check(JxlEncoderSetFrameHeader(settings, &header), "strip");
    if (HasAlpha(picture)) {
        JxlBlendInfo ofAlpha;
        JxlEncoderInitBlendInfo(&ofAlpha);
        ofAlpha.blendmode = JXL_BLEND_REPLACE;
        ofAlpha.source = canvas;
        Check(JxlEncoderSetExtraChannelBlendInfo(settings, 0, &ofAlpha), "strip");
    }
}

void JxlWriter::AddFrame(const std::vector<std::uint8_t>& samples, int rows)
{
    JxlEncoderFrameSettings* const settings = JxlEncoderFrameSettingsCreate(encoder.get(), nullptr);
    const auto set = [this, settings](JxlEncoderFrameSettingId option, int value) {
        Check(JxlEncoderFrameSettingsSetOption(settings, option, value), "options");
    };
    set(JXL_ENC_FRAME_SETTING_EFFORT, plan.effort);
    if (!plan.looksForRepeats) {
        set(JXL_ENC_FRAME_SETTING_PATCHES, 0);
        set(JXL_ENC_FRAME_SETTING_DOTS, 0);
    }
    if (picture.isLossless) {
        Check(JxlEncoderSetFrameLossless(settings, JXL_TRUE), "options");
    } else {
        Check(JxlEncoderSetFrameDistance(settings, float(distance)), "quality");
    }
    if (plan.frameHeight < picture.height) {
        SetPlace(settings, rows);
    }
    const JxlPixelFormat form{std::uint32_t(picture.bands), picture.bits == 8 ? JXL_TYPE_UINT8 : JXL_TYPE_UINT16,
                              JXL_NATIVE_ENDIAN, 0};
    Check(JxlEncoderAddImageFrame(settings, &form, samples.data(), samples.size()), "pixels");
    rowsAdded += rows;
    if (rowsAdded == picture.height) {
        JxlEncoderCloseInput(encoder.get());
    }
}

void JxlWriter::Flush()
{
    QByteArray piece(1 << 20, Qt::Uninitialized);
    JxlEncoderStatus status = JXL_ENC_NEED_MORE_OUTPUT;
    while (status == JXL_ENC_NEED_MORE_OUTPUT) {
        auto* place = reinterpret_cast<std::uint8_t*>(piece.data());
        std::size_t room = std::size_t(piece.size());
        status = JxlEncoderProcessOutput(encoder.get(), &place, &room);
        output(piece.left(piece.size() - int(room)));
    }
    Check(status, "picture");
}

} // namespace BatchWorker
