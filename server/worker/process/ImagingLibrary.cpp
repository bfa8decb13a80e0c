// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ImagingLibrary.h"

#include "ImagingModules.h"

#include "job/formats/FormatCatalog.h"
#include "server/protocol/WorkerMessages.h"
#include "server/worker/decode/Loader.h"
#include "server/worker/encode/FormatEncoder.h"
#include "server/worker/pixels/CarriedFailure.h"

#include <vips/vips8>

#include <QByteArray>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <exception>
#include <mutex>
#include <new>
#include <unistd.h>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchWorker {

namespace {

std::mutex warningsMutex;
Warnings warnings;

/// Whether `text` says nothing of the picture that the worker does not know better. Cameras and scanners write private
/// fields into TIFF files, and the library names each of them, in every file.
bool IsHarmless(const QString& text)
{
    constexpr std::array harmless{
        "ignoring nclx profile",     // HEIF: the worker reads what files say of their colours itself
        "iCCP: ",                    // PNG: the same
        "sRGB: ",                    // PNG
        "gAMA: ",                    // PNG
        "cHRM: ",                    // PNG
        "nknown field with tag",     // TIFF: a private field
        "tags are not sorted",       // TIFF: all are found nevertheless
        "does not end in null byte", // TIFF: a text without its end mark
        "Nonstandard tile",          // TIFF: sizes that are unusual, and read
    };
    return std::any_of(harmless.begin(), harmless.end(),
                       [&text](const char* words) { return text.contains(QLatin1String(words)); });
}

void NoteWarning(const char* message)
{
    constexpr int most = 5;
    const std::lock_guard<std::mutex> lock(warningsMutex);
    const QString text = QString::fromLocal8Bit(message);
    if (IsHarmless(text)) {
        return;
    }
    const Warning warning{WarningKind::Decoder, text};
    if (warnings.size() < most && !warnings.contains(warning)) {
        warnings.append(warning);
    }
}

void HandleLogMessage(const gchar*, GLogLevelFlags level, const gchar* message, gpointer)
{
    if ((level & G_LOG_LEVEL_ERROR) != 0) {
        std::fprintf(stderr, "VelkoraBatchWorker: %s\n", message);
        if (std::strstr(message, "failed to allocate")) {
            _exit(workerOutOfMemory);
        }
        return; // it ends the process
    }
    if ((level & (G_LOG_LEVEL_CRITICAL | G_LOG_LEVEL_WARNING)) != 0) {
        NoteWarning(message);
    }
}

// For exceptions of a library that nobody catches.
[[noreturn]] void EndOfUncaught()
{
    try {
        if (const std::exception_ptr problem = std::current_exception()) {
            std::rethrow_exception(problem);
        }
    } catch (const std::bad_alloc&) {
        _exit(workerOutOfMemory);
    } catch (...) {
        std::fprintf(stderr, "VelkoraBatchWorker: an exception was not caught\n");
    }
    std::abort();
}

// An installation may lack the operation.
void Allow(const char* operation)
{
    if (const GType type = vips_type_find("VipsOperation", operation)) {
        vips_operation_block_set(g_type_name(type), FALSE);
    }
}

void AllowKnownFormatsOnly()
{
    vips_block_untrusted_set(TRUE);
    vips_operation_block_set("VipsForeignLoad", TRUE);
    vips_operation_block_set("VipsForeignSave", TRUE);
    for (const FormatSchema& format : ReadableFormats()) {
        if (const char* const loader = LoaderOf(format).operation) {
            Allow(loader);
        }
    }
    for (const FormatSchema& format : Formats()) {
        if (const char* const encoder = EncoderOf(format).operation) {
            Allow(encoder);
        }
    }
}

} // namespace

bool StartImagingLibrary(const char* program)
{
    if (!StartWithKnownModules(program)) {
        std::fprintf(stderr, "VelkoraBatchWorker: the imaging library does not start: %s\n", vips_error_buffer());
        return false;
    }
    g_log_set_default_handler(HandleLogMessage, nullptr);
    std::set_terminate(EndOfUncaught);
    vips_concurrency_set(1);
    vips_cache_set_max(0);
    AllowKnownFormatsOnly();
    return true;
}

void ForgetLibraryTexts()
{
    vips_error_clear();
    TakeCarriedFailure();
    TakeLibraryWarnings();
}

Warnings TakeLibraryWarnings()
{
    const std::lock_guard<std::mutex> lock(warningsMutex);
    Warnings taken;
    taken.swap(warnings);
    return taken;
}

} // namespace BatchWorker
