// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MetadataFile.h"

#include "server/worker/pixels/FileCalls.h"
#include "server/worker/pixels/MappedFile_windows.h"

#include <cerrno>
#include <limits>

namespace BatchWorker {

namespace {

[[noreturn]] void Fail()
{
    throw Exiv2::Error(Exiv2::kerErrorMessage, FileProblem(errno).toStdString());
}

} // namespace

MetadataFile::MetadataFile(const QString& path, Use use)
    : path(path)
{
    const auto file = std::make_shared<MappedFile>(path, use == Use::Writing);
    if (!file->Bytes()) {
        Fail();
    }
    if (file->Size() > std::numeric_limits<long>::max()) {
        throw Exiv2::Error(Exiv2::kerErrorMessage, "the file has more than 2 GiB");
    }
    // The library changes some kinds of files where they are in memory.
    image.reset(Exiv2::ImageFactory::open(file->Bytes(), long(file->Size())).release());
    contents = file;
}

void MetadataFile::Write()
{
    image->writeMetadata();
    Exiv2::BasicIo& written = image->io();
    written.open();
    const QByteArray bytes(reinterpret_cast<const char*>(written.mmap()), int(written.size()));
    written.munmap();
    contents.reset(); // A file that is in memory cannot become shorter.
    QFile file;
    const bool isDone = OpenFile(file, path, QIODevice::ReadWrite | QIODevice::ExistingOnly) &&
                        file.write(bytes) == bytes.size() && file.resize(bytes.size()) && file.flush();
    if (!isDone) {
        Fail();
    }
}

} // namespace BatchWorker
