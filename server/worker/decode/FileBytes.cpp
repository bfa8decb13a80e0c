// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileBytes.h"

#include "server/worker/pixels/FileCalls.h"
#include "server/worker/pixels/PictureFailure.h"

#include <cerrno>
#include <unistd.h>

namespace BatchWorker {

FileBytes::FileBytes(int descriptor)
    : file(DuplicateOf(descriptor))
    , size(file < 0 ? -1 : SizeOfFile(file))
{
    if (size < 0) {
        throw DamagedFile(FileProblem(errno));
    }
}

FileBytes::~FileBytes()
{
    close(file);
}

qint64 FileBytes::Read(qint64 offset, void* target, qint64 length) const
{
    qint64 done = 0;
    while (done < length) {
        const qint64 count = ReadAt(file, static_cast<char*>(target) + done, length - done, offset + done);
        if (count <= 0) {
            break;
        }
        done += count;
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
