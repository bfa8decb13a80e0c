// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "KeptPixels.h"

namespace BatchWorker {

namespace {

void AppendOnce(const BatchJob::Warnings& more, BatchJob::Warnings& warnings)
{
    for (const BatchJob::Warning& warning : more) {
        if (!warnings.contains(warning)) {
            warnings.append(warning);
        }
    }
}

} // namespace

KeptPixels::KeptPixels(WarningSource takeWarnings)
    : takeWarnings(takeWarnings)
{
}

void KeptPixels::BeginTask(const QString& file, bool keeps, qint64 mostBytes)
{
    this->keeps = keeps;
    this->mostBytes = mostBytes;
    wereUsed = false;
    state = keeps || kept ? StateOf(file) : FileState();
    if (kept && !(kept->state == state)) {
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
    kept = Kept{state, shrink, pixels, warnings};
    return pixels;
}

} // namespace BatchWorker
