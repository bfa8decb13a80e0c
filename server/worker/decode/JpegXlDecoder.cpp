// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JpegXlDecoder.h"

#include "job/values/Phrase.h"

#include "server/worker/pixels/PictureFailure.h"

#include <jxl/decode.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <new>
#include <utility>

namespace BatchWorker {

namespace {

constexpr JxlPixelFormat anyForm{3, JXL_TYPE_UINT8, JXL_NATIVE_ENDIAN, 0};

bool IsSrgb(const JxlColorEncoding& colours)
{
    const bool hasItsPrimaries =
        colours.color_space == JXL_COLOR_SPACE_GRAY ||
        (colours.color_space == JXL_COLOR_SPACE_RGB && colours.primaries == JXL_PRIMARIES_SRGB);
    return hasItsPrimaries && colours.white_point == JXL_WHITE_POINT_D65 &&
           colours.transfer_function == JXL_TRANSFER_FUNCTION_SRGB;
}

// The codec has names for a few primaries and white points and fills in the points of all of them.
std::optional<HdrColours> HdrOf(const JxlColorEncoding& colours)
{
    std::optional<HdrColours> hdr = HdrColoursOf({CodedColours::unspecified, int(colours.transfer_function)});
    if (hdr && colours.color_space == JXL_COLOR_SPACE_RGB) {
        const auto point = [](const double(&xy)[2]) { return Chromaticity{xy[0], xy[1]}; };
        const Primaries primaries{point(colours.primaries_red_xy), point(colours.primaries_green_xy),
                                  point(colours.primaries_blue_xy), point(colours.white_point_xy)};
        hdr->primaries = MakeSense(primaries) ? primaries : hdr->primaries;
    }
    return hdr;
}

QByteArray IccProfileOf(const JxlDecoder* decoder)
{
    constexpr std::size_t largest = std::size_t(64) << 20;
    constexpr JxlColorProfileTarget target = JXL_COLOR_PROFILE_TARGET_DATA;
    std::size_t size = 0;
    if (JxlDecoderGetICCProfileSize(decoder, &anyForm, target, &size) != JXL_DEC_SUCCESS || size > largest) {
        return {};
    }
    QByteArray profile(int(size), '\0');
    auto* bytes = reinterpret_cast<std::uint8_t*>(profile.data());
    const bool isThere = JxlDecoderGetColorAsICCProfile(decoder, &anyForm, target, bytes, size) == JXL_DEC_SUCCESS;
    return isThere ? profile : QByteArray();
}

std::optional<int> ChannelOfType(JxlExtraChannelType type, const JxlDecoder* decoder, std::uint32_t channels)
{
    for (std::uint32_t index = 0; index < channels; ++index) {
        JxlExtraChannelInfo channel;
        if (JxlDecoderGetExtraChannelInfo(decoder, index, &channel) == JXL_DEC_SUCCESS && channel.type == type) {
            return int(index);
        }
    }
    return std::nullopt;
}

JpegXlHeader HeaderOf(const JxlDecoder* decoder)
{
    JxlBasicInfo info;
    JxlDecoderGetBasicInfo(decoder, &info);
    constexpr auto longest = std::uint32_t(std::numeric_limits<int>::max());
    if (info.xsize > longest || info.ysize > longest) {
        throw TooLarge(BatchJob::Phrase::English("the picture has more pixels than any limit"));
    }
    JpegXlHeader header;
    header.size = QSize(int(info.xsize), int(info.ysize));
    header.orientation = int(info.orientation);
    header.isGrey = info.num_color_channels == 1;
    header.hasAlpha = info.alpha_bits > 0;
    header.black = ChannelOfType(JXL_CHANNEL_BLACK, decoder, info.num_extra_channels);
    header.hasDepth = ChannelOfType(JXL_CHANNEL_DEPTH, decoder, info.num_extra_channels).has_value();
    header.isAnimation = info.have_animation == JXL_TRUE;
    // Inks are used in 8 bits everywhere.
    header.bits = info.bits_per_sample > 8 && !header.black ? 16 : 8;
    return header;
}

} // namespace

/// Where decoded values go.
struct JpegXlDecoder::Canvas
{
    explicit Canvas(const JpegXlHeader& header)
        : size(header.size)
        , black(header.black)
        , form{std::uint32_t(header.Bands() - (header.black ? 1 : 0)),
               header.bits == 8 ? JXL_TYPE_UINT8 : JXL_TYPE_UINT16, JXL_NATIVE_ENDIAN, 0}
        , pixelSize(form.num_channels * std::size_t(header.bits) / 8)
        , values(Pixels() * pixelSize)
        , blackValues(black ? Pixels() : 0)
    {
    }

    std::size_t Pixels() const { return std::size_t(size.width()) * std::size_t(size.height()); }

    // Whether `frame` replaces its part of what is there already, which the decoder has kept as number `kept`.
    bool Takes(const JxlFrameHeader& frame, std::uint32_t kept)
    {
        const JxlLayerInfo& layer = frame.layer_info;
        left = layer.have_crop == JXL_TRUE ? layer.crop_x0 : 0;
        top = layer.have_crop == JXL_TRUE ? layer.crop_y0 : 0;
        const bool isReplacing = layer.blend_info.blendmode == JXL_BLEND_REPLACE;
        const bool isAll = left <= 0 && top <= 0 && left + qint64(layer.xsize) >= size.width() &&
                           top + qint64(layer.ysize) >= size.height();
        const bool isFirst = !hasLayers;
        isWhole = isFirst && frame.is_last == JXL_TRUE && layer.have_crop == JXL_FALSE;
        hasLayers = true;
        return isReplacing && (isAll || isFirst || (kept != 0 && layer.blend_info.source == kept));
    }

    static void Receive(void* canvas, std::size_t x, std::size_t y, std::size_t count, const void* pixels)
    {
        static_cast<Canvas*>(canvas)->Place(qint64(x), qint64(y), qint64(count),
                                            static_cast<const std::uint8_t*>(pixels));
    }

    void Place(qint64 x, qint64 y, qint64 count, const std::uint8_t* pixels)
    {
        const qint64 row = y + top;
        const qint64 begin = std::max<qint64>(0, x + left);
        const qint64 end = std::min<qint64>(size.width(), x + left + count);
        if (row >= 0 && row < size.height() && begin < end) {
            const std::size_t place = std::size_t(row) * std::size_t(size.width()) + std::size_t(begin);
            std::memcpy(&values[place * pixelSize], pixels + std::size_t(begin - x - left) * pixelSize,
                        std::size_t(end - begin) * pixelSize);
        }
    }

    // The file counts inks from full to none.
    std::vector<std::uint8_t> Inks() const
    {
        constexpr std::size_t colours = 3;
        std::vector<std::uint8_t> inks;
        inks.reserve(Pixels() * (pixelSize + 1));
        for (std::size_t pixel = 0; pixel < Pixels(); ++pixel) {
            const std::uint8_t* const value = &values[pixel * pixelSize];
            for (std::size_t colour = 0; colour < colours; ++colour) {
                inks.push_back(std::uint8_t(255 - value[colour]));
            }
            inks.push_back(std::uint8_t(255 - blackValues[pixel]));
            inks.insert(inks.end(), value + colours, value + pixelSize);
        }
        return inks;
    }

    QSize size;
    std::optional<int> black;
    JxlPixelFormat form;
    std::size_t pixelSize;
    std::vector<std::uint8_t> values;
    std::vector<std::uint8_t> blackValues;
    int left = 0; ///< of the layer that is being decoded
    int top = 0;
    bool isWhole = true; ///< one layer is the picture
    bool hasLayers = false;
};

JpegXlDecoder::JpegXlDecoder(Source source)
    : source(std::move(source))
    , piece(std::size_t(1) << 20)
    , decoder(JxlDecoderCreate(nullptr), JxlDecoderDestroy)
{
    if (!decoder) {
        throw std::bad_alloc();
    }
}

JpegXlDecoder::~JpegXlDecoder() = default;

void JpegXlDecoder::Begin(int events)
{
    JxlDecoderReset(decoder.get());
    position = 0;
    JxlDecoderSubscribeEvents(decoder.get(), events);
    JxlDecoderSetKeepOrientation(decoder.get(), JXL_TRUE);
    JxlDecoderSetUnpremultiplyAlpha(decoder.get(), JXL_TRUE);
}

// The next event, after as much input as it needs.
int JpegXlDecoder::Next()
{
    for (;;) {
        const JxlDecoderStatus status = JxlDecoderProcessInput(decoder.get());
        if (status == JXL_DEC_ERROR) {
            throw DamagedFile(BatchJob::Phrase::English("the file is damaged: its picture cannot be decoded"));
        }
        if (status != JXL_DEC_NEED_MORE_INPUT) {
            return status;
        }
        Feed();
    }
}

// What the decoder has left of the last bytes comes again, with more behind it.
void JpegXlDecoder::Feed()
{
    const std::size_t left = JxlDecoderReleaseInput(decoder.get());
    position -= qint64(left);
    if (left == piece.size()) {
        piece.resize(piece.size() * 2);
    }
    const qint64 count = source(position, piece.data(), qint64(piece.size()));
    if (count <= qint64(left)) {
        throw DamagedFile(BatchJob::Phrase::English("the file ends before its picture is complete"));
    }
    position += count;
    JxlDecoderSetInput(decoder.get(), piece.data(), std::size_t(count));
}

JpegXlHeader JpegXlDecoder::ReadHeader()
{
    Begin(JXL_DEC_BASIC_INFO | JXL_DEC_COLOR_ENCODING);
    JpegXlHeader header;
    int event = Next();
    if (event == JXL_DEC_BASIC_INFO) {
        header = HeaderOf(decoder.get());
        event = Next();
    }
    if (event != JXL_DEC_COLOR_ENCODING) {
        throw DamagedFile(BatchJob::Phrase::English("the file is damaged: it has no picture"));
    }
    ReadColours(header);
    return header;
}

void JpegXlDecoder::ReadColours(JpegXlHeader& header) const
{
    JxlColorEncoding colours;
    const bool isCoded = JxlDecoderGetColorAsEncodedProfile(decoder.get(), &anyForm, JXL_COLOR_PROFILE_TARGET_DATA,
                                                            &colours) == JXL_DEC_SUCCESS;
    if (isCoded) {
        header.colours.hdr = HdrOf(colours);
    }
    JxlBasicInfo info;
    JxlDecoderGetBasicInfo(decoder.get(), &info);
    if (header.colours.hdr && info.uses_original_profile == JXL_FALSE) {
        header.bits = 16; // the file has more than it says, and PQ and HLG need them
    }
    if (!header.colours.hdr && !(isCoded && IsSrgb(colours))) {
        header.colours.profile = IccProfileOf(decoder.get());
    }
}

int JpegXlDecoder::CountFrames()
{
    Begin(JXL_DEC_FRAME);
    int frames = 0;
    try {
        while (Next() == JXL_DEC_FRAME) {
            ++frames;
        }
    } catch (const PictureFailure&) {
        // Those before the damage count.
    }
    return frames;
}

std::vector<std::uint8_t> JpegXlDecoder::ReadPixels(const JpegXlHeader& header)
{
    Canvas canvas(header);
    const bool mayBeLayers = !header.isAnimation && !header.black;
    if (!mayBeLayers || !ReadLayers(canvas)) {
        canvas.isWhole = true;
        ReadWhole(canvas);
    }
    return header.black ? canvas.Inks() : std::move(canvas.values);
}

void JpegXlDecoder::Receive(Canvas& canvas)
{
    if (canvas.isWhole) {
        JxlDecoderSetImageOutBuffer(decoder.get(), &canvas.form, canvas.values.data(), canvas.values.size());
    } else {
        JxlDecoderSetImageOutCallback(decoder.get(), &canvas.form, Canvas::Receive, &canvas);
    }
    if (canvas.black) {
        const JxlPixelFormat form{1, JXL_TYPE_UINT8, JXL_NATIVE_ENDIAN, 0};
        JxlDecoderSetExtraChannelBuffer(decoder.get(), &form, canvas.blackValues.data(), canvas.blackValues.size(),
                                        std::uint32_t(*canvas.black));
    }
}

// Layers that replace a part of those below are put together here, each as it comes: the decoder would hold the whole
// picture several times. False when a layer does anything else.
bool JpegXlDecoder::ReadLayers(Canvas& canvas)
{
    Begin(JXL_DEC_FRAME | JXL_DEC_FULL_IMAGE);
    JxlDecoderSetCoalescing(decoder.get(), JXL_FALSE);
    std::uint32_t kept = 0;
    for (int event = Next(); event != JXL_DEC_SUCCESS; event = Next()) {
        if (event == JXL_DEC_FRAME) {
            JxlFrameHeader frame;
            JxlDecoderGetFrameHeader(decoder.get(), &frame);
            if (!canvas.Takes(frame, kept)) {
                return false;
            }
            kept = frame.layer_info.save_as_reference;
        } else if (event == JXL_DEC_NEED_IMAGE_OUT_BUFFER) {
            Receive(canvas);
        }
    }
    return true;
}

// The picture as the decoder puts it together; of an animation, the first one.
void JpegXlDecoder::ReadWhole(Canvas& canvas)
{
    Begin(JXL_DEC_FULL_IMAGE);
    for (int event = Next(); event != JXL_DEC_FULL_IMAGE; event = Next()) {
        if (event == JXL_DEC_SUCCESS) {
            throw DamagedFile(BatchJob::Phrase::English("the file is damaged: it has no picture"));
        }
        if (event == JXL_DEC_NEED_IMAGE_OUT_BUFFER) {
            Receive(canvas);
        }
    }
}

} // namespace BatchWorker
