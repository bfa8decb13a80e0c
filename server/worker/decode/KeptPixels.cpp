// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "KeptPixels.h"

#include <QFile>

namespace BatchWorker {

namespace {

bool IsEqual(const timespec& left, const timespec& right)
{
    return left.tv_sec == right.tv_sec && left.tv_nsec == right.tv_nsec;
}

void AppendOnce(const BatchJob::Warnings& more, BatchJob::Warnings& warnings)
{
    for (const BatchJob::Warning& warning : more) {
        if (!warnings.contains(warning)) {
            warnings.append(warning);
        }
    }
}

} // namespace

bool KeptPixels::Stamp::operator==(const Stamp& other) const
{
    return bytes >= 0 && device == other.device && file == other.file && bytes == other.bytes &&
           IsEqual(modified, other.modified) && IsEqual(changed, other.changed);
}

KeptPixels::KeptPixels(WarningSource takeWarnings)
    : takeWarnings(takeWarnings)
{
}

KeptPixels::Stamp KeptPixels::StampOf(const QString& file)
{
    struct stat status = {};
    if (stat(QFile::encodeName(file).constData(), &status) != 0) {
        return {};
    }
    return {status.st_dev, status.st_ino, status.st_size, status.st_mtim, status.st_ctim};
}

void KeptPixels::BeginTask(const QString& file, bool keeps, qint64 mostBytes)
{
    this->keeps = keeps;
    this->mostBytes = mostBytes;
    wereUsed = false;
    stamp = keeps || kept ? StampOf(file) : Stamp();
    if (kept && !(kept->stamp == stamp)) {
        Forget();
    }
    if (kept) {
        kept->isOfThisTask = false;
    }
}

void KeptPixels::EndTask()
{
    if (!keeps) {
        Forget();
    }
}

Picture KeptPixels::Get(int shrink, Place place, BatchJob::Warnings& warnings, const std::function<Picture()>& decode)
{
    if (kept && kept->shrink == shrink) {
        wereUsed = wereUsed || !kept->isOfThisTask;
        AppendOnce(kept->warnings, warnings);
        return kept->pixels;
    }
    Forget(); // Before other pixels take memory.
    if (!keeps) {
        return decode();
    }
    AppendOnce(takeWarnings(), warnings);
    Picture pixels = decode();
    if (qint64(VIPS_IMAGE_SIZEOF_IMAGE(pixels.get_image())) > mostBytes) {
        return pixels;
    }
    if (place == Place::Flowing) {
        try {
            pixels = pixels.copy_memory();
        } catch (const vips::VError&) {
            vips_error_clear(); // It is found again where it is reported: when the pixels flow.
            return decode();
        }
    }
    AppendOnce(takeWarnings(), warnings);
    kept = Kept{stamp, shrink, pixels, warnings};
    return pixels;
}

} // namespace BatchWorker
