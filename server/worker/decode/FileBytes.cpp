// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileBytes.h"

#include "server/worker/pixels/PictureFailure.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace BatchWorker {

FileBytes::FileBytes(int descriptor)
    : file(fcntl(descriptor, F_DUPFD_CLOEXEC, 0))
{
    struct stat status;
    if (file < 0 || fstat(file, &status) != 0) {
        throw DamagedFile(qt_error_string(errno));
    }
    size = status.st_size;
}

FileBytes::~FileBytes()
{
    close(file);
}

qint64 FileBytes::Read(qint64 offset, void* target, qint64 length) const
{
    qint64 done = 0;
    while (done < length) {
        const ssize_t count = pread(file, static_cast<char*>(target) + done, std::size_t(length - done), offset + done);
        if (count > 0) {
            done += count;
        } else if (count == 0 || errno != EINTR) {
            break;
        }
    }
    return done;
}

QByteArray FileBytes::At(qint64 offset, int length) const
{
    QByteArray bytes(length, '\0');
    bytes.truncate(int(Read(offset, bytes.data(), length)));
    return bytes;
}

} // namespace BatchWorker
