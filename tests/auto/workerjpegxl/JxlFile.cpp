// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JxlFile.h"

#include <jxl/encode.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <vector>

namespace {

void Require(JxlEncoderStatus status)
{
    if (status != JXL_ENC_SUCCESS) {
        throw std::runtime_error("the encoder refuses something");
    }
}

void SetColours(JxlEncoder* encoder, const JxlFile& file)
{
    if (!file.profile.isEmpty()) {
        Require(JxlEncoderSetICCProfile(encoder, reinterpret_cast<const std::uint8_t*>(file.profile.constData()),
                                        std::size_t(file.profile.size())));
        return;
    }
    JxlColorEncoding colours;
    JxlColorEncodingSetToSRGB(&colours, file.isGrey ? JXL_TRUE : JXL_FALSE);
    colours.transfer_function = file.transfer;
    colours.primaries = file.primaries;
    if (!file.points.isEmpty()) {
        colours.white_point = JXL_WHITE_POINT_CUSTOM;
        colours.primaries = JXL_PRIMARIES_CUSTOM;
        const double* const point = file.points.constData();
        std::copy_n(point, 2, colours.white_point_xy);
        std::copy_n(point + 2, 2, colours.primaries_red_xy);
        std::copy_n(point + 4, 2, colours.primaries_green_xy);
        std::copy_n(point + 6, 2, colours.primaries_blue_xy);
    }
    Require(JxlEncoderSetColorEncoding(encoder, &colours));
}

void SetExtras(JxlEncoder* encoder, const JxlFile& file)
{
    for (int index = 0; index < file.extras.size(); ++index) {
        JxlExtraChannelInfo info;
        JxlEncoderInitExtraChannelInfo(file.extras[index], &info);
        info.bits_per_sample = std::uint32_t(file.bits);
        info.exponent_bits_per_sample = std::uint32_t(file.exponentBits);
        info.alpha_premultiplied = file.isPremultiplied ? JXL_TRUE : JXL_FALSE;
        if (file.extras[index] == JXL_CHANNEL_SPOT_COLOR) {
            const float red[4] = {1, 0, 0, 1};
            std::copy(std::begin(red), std::end(red), info.spot_color);
        }
        Require(JxlEncoderSetExtraChannelInfo(encoder, std::size_t(index), &info));
    }
}

std::vector<float> ValuesOf(const JxlLayer& layer, const QSize& size, int first, int channels)
{
    std::vector<float> values;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            for (int channel = first; channel < first + channels; ++channel) {
                values.push_back(float(layer.values(x, y, channel)));
            }
        }
    }
    return values;
}

void AddLayer(JxlEncoder* encoder, const JxlFile& file, const JxlLayer& layer)
{
    JxlEncoderFrameSettings* const settings = JxlEncoderFrameSettingsCreate(encoder, nullptr);
    Require(JxlEncoderFrameSettingsSetOption(settings, JXL_ENC_FRAME_SETTING_EFFORT, 3));
    if (file.isLossless) {
        Require(JxlEncoderSetFrameLossless(settings, JXL_TRUE));
    } else {
        Require(JxlEncoderSetFrameDistance(settings, 0.1F));
    }
    const QSize size = layer.place.isEmpty() ? file.size : layer.place.size();
    if (file.layers.size() > 1) {
        JxlFrameHeader header;
        JxlEncoderInitFrameHeader(&header);
        header.duration = std::uint32_t(layer.duration);
        header.layer_info.have_crop = layer.place.isEmpty() ? JXL_FALSE : JXL_TRUE;
        header.layer_info.crop_x0 = layer.place.x();
        header.layer_info.crop_y0 = layer.place.y();
        header.layer_info.xsize = std::uint32_t(size.width());
        header.layer_info.ysize = std::uint32_t(size.height());
        header.layer_info.blend_info.blendmode = layer.blend;
        header.layer_info.blend_info.source = std::uint32_t(layer.source);
        header.layer_info.save_as_reference = std::uint32_t(layer.keptAs);
        Require(JxlEncoderSetFrameHeader(settings, &header));
        for (int index = 0; index < file.extras.size(); ++index) {
            Require(JxlEncoderSetExtraChannelBlendInfo(settings, std::size_t(index), &header.layer_info.blend_info));
        }
    }
    // The encoder takes premultiplied alpha only together with the colours.
    const bool hasAlpha = file.extras.value(0, JXL_CHANNEL_DEPTH) == JXL_CHANNEL_ALPHA;
    const int colours = file.isGrey ? 1 : 3;
    const int together = colours + (hasAlpha ? 1 : 0);
    const JxlPixelFormat form{std::uint32_t(together), JXL_TYPE_FLOAT, JXL_NATIVE_ENDIAN, 0};
    const JxlPixelFormat ofExtra{1, JXL_TYPE_FLOAT, JXL_NATIVE_ENDIAN, 0};
    const std::vector<float> values = ValuesOf(layer, size, 0, together);
    Require(JxlEncoderAddImageFrame(settings, &form, values.data(), values.size() * sizeof(float)));
    for (int index = together - colours; index < file.extras.size(); ++index) {
        const std::vector<float> extra = ValuesOf(layer, size, colours + index, 1);
        Require(JxlEncoderSetExtraChannelBuffer(settings, &ofExtra, extra.data(), extra.size() * sizeof(float),
                                                std::uint32_t(index)));
    }
}

} // namespace

QByteArray JxlFile::Bytes() const
{
    const std::unique_ptr<JxlEncoder, void (*)(JxlEncoder*)> encoder(JxlEncoderCreate(nullptr), JxlEncoderDestroy);
    try {
        JxlBasicInfo info;
        JxlEncoderInitBasicInfo(&info);
        info.xsize = std::uint32_t(size.width());
        info.ysize = std::uint32_t(size.height());
        info.bits_per_sample = std::uint32_t(bits);
        info.exponent_bits_per_sample = std::uint32_t(exponentBits);
        info.num_color_channels = isGrey ? 1 : 3;
        info.num_extra_channels = std::uint32_t(extras.size());
        if (extras.contains(JXL_CHANNEL_ALPHA)) {
            info.alpha_bits = info.bits_per_sample;
            info.alpha_exponent_bits = info.exponent_bits_per_sample;
            info.alpha_premultiplied = isPremultiplied ? JXL_TRUE : JXL_FALSE;
        }
        info.uses_original_profile = isLossless ? JXL_TRUE : JXL_FALSE;
        info.orientation = JxlOrientation(orientation);
        if (brightest > 0) {
            info.intensity_target = brightest;
        }
        if (isAnimation) {
            info.have_animation = JXL_TRUE;
            info.animation.tps_numerator = 10;
            info.animation.tps_denominator = 1;
        }
        Require(JxlEncoderSetCodestreamLevel(encoder.get(), 10));
        Require(JxlEncoderSetBasicInfo(encoder.get(), &info));
        SetExtras(encoder.get(), *this);
        SetColours(encoder.get(), *this);
        for (const JxlLayer& layer : layers) {
            AddLayer(encoder.get(), *this, layer);
        }
        JxlEncoderCloseInput(encoder.get());
        QByteArray bytes(8 << 20, '\0');
        auto* place = reinterpret_cast<std::uint8_t*>(bytes.data());
        std::size_t room = std::size_t(bytes.size());
        Require(JxlEncoderProcessOutput(encoder.get(), &place, &room));
        bytes.chop(int(room));
        return bytes;
    } catch (const std::runtime_error&) {
        return {};
    }
}
