// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "NamelessFile.h"

#include <QDir>
#include <QFile>

#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

namespace BatchWorker {

namespace {

int Open()
{
    const QByteArray folder = QFile::encodeName(QDir::tempPath());
#ifdef O_TMPFILE
    const int nameless = open(folder.constData(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600);
    if (nameless >= 0) {
        return nameless;
    }
#endif
    // Not every file system supports these; otherwise the file has a name for a moment.
    QByteArray name = folder + "/velkora-XXXXXX";
    const int named = mkostemp(name.data(), O_CLOEXEC);
    if (named >= 0) {
        unlink(name.constData());
    }
    return named;
}

} // namespace

NamelessFile::NamelessFile()
    : descriptor(Open())
{
}

NamelessFile::~NamelessFile()
{
    if (descriptor >= 0) {
        close(descriptor);
    }
}

VipsImage* NamelessFile::NewImage(int width, int height, int pixelSize)
{
    const QByteArray path = descriptor < 0 ? QByteArray() : "/proc/self/fd/" + QByteArray::number(descriptor);
    return vips_image_new_from_file_raw(path.constData(), width, height, pixelSize, 0);
}

} // namespace BatchWorker
