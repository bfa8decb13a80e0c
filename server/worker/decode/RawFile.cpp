// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RawFile.h"

#include "job/values/Phrase.h"

#include "DngData.h"
#include "RawStream.h"

#include "server/worker/pixels/DamageText.h"
#include "server/worker/pixels/PictureFailure.h"

#include <QFile>

#include <array>

#include <ctime>

namespace BatchWorker {

namespace {

constexpr int bitsOfResult = 16;

// The decoder's pixels are used in place, and freed with the picture that refers to them.
Picture Wrapped(libraw_processed_image_t* image)
{
    const int width = image->width;
    const int height = image->height;
    const int bands = image->colors;
    const auto form = bands == 1 ? VIPS_INTERPRETATION_GREY16 : VIPS_INTERPRETATION_RGB16;
    VipsImage* wrapped =
        vips_image_new_from_memory(image->data, image->data_size, width, height, bands, VIPS_FORMAT_USHORT);
    if (!wrapped) {
        LibRaw::dcraw_clear_mem(image);
        throw vips::VError();
    }
    const auto release = [](VipsImage*, gpointer memory) {
        LibRaw::dcraw_clear_mem(static_cast<libraw_processed_image_t*>(memory));
    };
    using Release = void (*)(VipsImage*, gpointer);
    g_signal_connect(wrapped, "postclose", G_CALLBACK(static_cast<Release>(release)), image);
    return Picture(wrapped).copy(Picture::option()->set("interpretation", form));
}

} // namespace

RawFile::RawFile(const QString& file, qint64 memoryLimit)
    : file(file)
    , stream(std::make_unique<RawStream>(file))
    , raw(std::make_unique<LibRaw>())
{
    constexpr qint64 mebibyte = 1 << 20;
    raw->imgdata.params.max_raw_memory_mb = unsigned(memoryLimit / mebibyte);
    const auto noteDamage = [](void* isDamaged, const char*, int) { *static_cast<bool*>(isDamaged) = true; };
    raw->set_dataerror_handler(noteDamage, &isDamaged);
    const int result = raw->open_datastream(stream.get());
    isKnown = result != LIBRAW_FILE_UNSUPPORTED && result != LIBRAW_NO_THUMBNAIL;
    if (isKnown) {
        Check(result);
    }
}

RawFile::~RawFile() = default;

QSize RawFile::Size() const
{
    return {raw->imgdata.sizes.width, raw->imgdata.sizes.height};
}

int RawFile::Orientation() const
{
    // The decoder's flags: 1 mirrors left and right, 2 up and down, 4 exchanges rows and columns, after that.
    constexpr std::array orientations{1, 2, 4, 3, 5, 8, 6, 7};
    return orientations[std::size_t(raw->imgdata.sizes.flip) % orientations.size()];
}

QDateTime RawFile::Captured() const
{
    const std::time_t time = raw->imgdata.other.timestamp;
    return time > 0 ? QDateTime::fromSecsSinceEpoch(time) : QDateTime();
}

Picture RawFile::Develop(bool isHalf)
{
    libraw_output_params_t& params = raw->imgdata.params;
    params.use_camera_wb = 1;
    params.output_color = 1; // sRGB
    params.gamm[0] = 1 / 2.4;
    params.gamm[1] = 12.92;
    params.output_bps = bitsOfResult;
    params.no_auto_bright = 1;
    params.adjust_maximum_thr = 0;
    params.half_size = isHalf ? 1 : 0;
    params.user_flip = 0; // as stored: it is turned with the others, after scaling
    RequireData();
    stream->BeginCount();
    Check(raw->unpack());
    if (isDamaged || stream->LacksData()) {
        throw DamagedFile(
            BatchJob::Phrase::English("the file ends before its picture data does, or the data is damaged"));
    }
    Check(raw->dcraw_process());
    int result = LIBRAW_SUCCESS;
    libraw_processed_image_t* image = raw->dcraw_make_mem_image(&result);
    Check(result);
    raw->recycle();
    return Wrapped(image);
}

// Decoders of some kinds of data read nothing without a word.
void RawFile::RequireData() const
{
    if (raw->get_internal_data_pointer()->unpacker_data.data_offset >= stream->size() || LacksDngData(file)) {
        throw DamagedFile(BatchJob::Phrase::English("the file lacks picture data: it is cut off, or has been emptied"));
    }
}

void RawFile::Check(int result) const
{
    switch (result) {
    case LIBRAW_SUCCESS:
        return;
    case LIBRAW_UNSUFFICIENT_MEMORY:
    case LIBRAW_TOO_BIG:
        throw NotEnoughMemory(QString::fromLocal8Bit(libraw_strerror(result)));
    default:
        throw DamagedFile(DamageText(result == LIBRAW_IO_ERROR ? DamageKind::CutOff : DamageKind::Damaged),
                          QString::fromLocal8Bit(libraw_strerror(result)));
    }
}

} // namespace BatchWorker
