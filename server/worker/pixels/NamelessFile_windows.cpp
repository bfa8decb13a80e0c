// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "NamelessFile.h"

#include "job/values/NativePath_windows.h"

#include <QDir>
#include <QUuid>

#include <cstdint>
#include <fcntl.h>
#include <io.h>
#include <qt_windows.h>

namespace BatchWorker {

namespace {

HANDLE HandleOf(int descriptor)
{
    return reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
}

int Open()
{
    const QString path = QDir::tempPath() + QStringLiteral("/velkora-") + QUuid::createUuid().toString(QUuid::Id128);
    const HANDLE file = CreateFileW(BatchJob::NativePath(path).c_str(), GENERIC_READ | GENERIC_WRITE | DELETE, 0,
                                    nullptr, CREATE_NEW, FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
    return file == INVALID_HANDLE_VALUE ? -1 : _open_osfhandle(reinterpret_cast<intptr_t>(file), _O_RDWR | _O_BINARY);
}

} // namespace

NamelessFile::NamelessFile()
    : descriptor(Open())
{
}

NamelessFile::~NamelessFile()
{
    view.reset();
    if (descriptor >= 0) {
        _close(descriptor);
    }
}

// Nobody else may open a file that is removed on closing, so the imaging library gets its bytes instead.
VipsImage* NamelessFile::NewImage(int width, int height, int pixelSize)
{
    const HANDLE mapping = CreateFileMappingW(HandleOf(descriptor), nullptr, PAGE_READONLY, 0, 0, nullptr);
    if (mapping) {
        view.reset(MapViewOfFile(mapping, FILE_MAP_READ, 0, 0, 0), UnmapViewOfFile);
        CloseHandle(mapping); // the view holds it
    }
    if (!view) {
        vips_error("worker", "the temporary folder has no room");
        return nullptr;
    }
    const std::size_t size = std::size_t(width) * std::size_t(height) * std::size_t(pixelSize);
    return vips_image_new_from_memory(view.get(), size, width, height, pixelSize, VIPS_FORMAT_UCHAR);
}

} // namespace BatchWorker
