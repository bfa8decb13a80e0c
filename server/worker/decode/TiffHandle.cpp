// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TiffHandle.h"

#include "server/worker/pixels/DamageText.h"
#include "server/worker/pixels/FileCalls.h"
#include "server/worker/pixels/PictureFailure.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <unistd.h>

using namespace BatchJob;

namespace BatchWorker {

namespace {

QString Text(const char* format, va_list values) __attribute__((format(printf, 1, 0)));

QString Text(const char* format, va_list values)
{
    std::array<char, 300> text{};
    std::vsnprintf(text.data(), text.size(), format, values);
    return QString::fromLocal8Bit(text.data());
}

} // namespace

TiffHandle::TiffHandle(int source, qint64 largestAllocation)
    : descriptor(DuplicateOf(source))
{
    const std::unique_ptr<TIFFOpenOptions, decltype(&TIFFOpenOptionsFree)> options(TIFFOpenOptionsAlloc(),
                                                                                   TIFFOpenOptionsFree);
    TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(), largestAllocation);
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), NoteError, this);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), NoteWarning, this);
    // Not mapped: a file that shrinks meanwhile would end the process.
    tiff = TIFFClientOpenExt("picture", "rm", this, Read, Write, Seek, Close, Size, nullptr, nullptr, options.get());
    if (!tiff) {
        close(descriptor);
        throw DamagedFile(HeaderDamageText(DamageKindOf(problem)), problem);
    }
}

TiffHandle::~TiffHandle()
{
    TIFFClose(tiff);
    close(descriptor);
}

qint64 TiffHandle::FileSize() const
{
    return std::max<qint64>(SizeOfFile(descriptor), 0);
}

tmsize_t TiffHandle::Read(thandle_t self, void* bytes, tmsize_t count)
{
    auto* const handle = static_cast<TiffHandle*>(self);
    tmsize_t done = 0;
    while (done < count) {
        const qint64 step =
            ReadAt(handle->descriptor, static_cast<char*>(bytes) + done, count - done, handle->position);
        if (step <= 0) {
            break;
        }
        done += step;
        handle->position += step;
    }
    return done;
}

tmsize_t TiffHandle::Write(thandle_t, void*, tmsize_t)
{
    return 0;
}

toff_t TiffHandle::Seek(thandle_t self, toff_t offset, int whence)
{
    auto* const handle = static_cast<TiffHandle*>(self);
    const qint64 start = whence == SEEK_CUR ? handle->position : whence == SEEK_END ? handle->FileSize() : 0;
    qint64 target = 0;
    if (__builtin_add_overflow(start, qint64(offset), &target) || target < 0) {
        errno = EINVAL;
        return toff_t(-1);
    }
    handle->position = target;
    return toff_t(target);
}

int TiffHandle::Close(thandle_t)
{
    return 0;
}

toff_t TiffHandle::Size(thandle_t self)
{
    return toff_t(static_cast<TiffHandle*>(self)->FileSize());
}

int TiffHandle::NoteError(TIFF*, void* self, const char*, const char* format, va_list values)
{
    auto* const handle = static_cast<TiffHandle*>(self);
    if (handle->problem.isEmpty()) {
        handle->problem = Text(format, values);
    }
    return 1; // the decoder does nothing more about it
}

int TiffHandle::NoteWarning(TIFF*, void* self, const char*, const char* format, va_list values)
{
    constexpr int most = 5;
    Warnings* const warnings = static_cast<TiffHandle*>(self)->warnings;
    if (!warnings || warnings->size() >= most) {
        return 1;
    }
    const Warning warning{WarningKind::Decoder, Text(format, values)};
    const bool isAdvice = warning.text.contains(QLatin1String("notify vendor")); // about JPEG data of an old kind
    if (!isAdvice && !warnings->contains(warning)) {
        warnings->append(warning);
    }
    return 1;
}

} // namespace BatchWorker
