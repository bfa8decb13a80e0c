// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MappedFile_windows.h"

#include "FileCalls.h"

#include <cerrno>
#include <io.h>
#include <qt_windows.h>

namespace BatchWorker {

MappedFile::MappedFile(const QString& path, bool isChangeable)
{
    const int descriptor = OpenForReading(path);
    if (descriptor < 0) {
        return;
    }
    size = SizeOfFile(descriptor);
    const HANDLE file = reinterpret_cast<HANDLE>(_get_osfhandle(descriptor));
    const HANDLE mapping =
        CreateFileMappingW(file, nullptr, isChangeable ? PAGE_WRITECOPY : PAGE_READONLY, 0, 0, nullptr);
    if (mapping) {
        bytes =
            static_cast<const uchar*>(MapViewOfFile(mapping, isChangeable ? FILE_MAP_COPY : FILE_MAP_READ, 0, 0, 0));
        CloseHandle(mapping); // the view holds it
    }
    _close(descriptor);
    if (!bytes) {
        errno = EIO;
    }
}

MappedFile::~MappedFile()
{
    if (bytes) {
        UnmapViewOfFile(bytes);
    }
}

} // namespace BatchWorker
