// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MetadataFile.h"

#include <limits>

namespace BatchWorker {

namespace {

[[noreturn]] void Fail(const QFile& file)
{
    throw Exiv2::Error(Exiv2::kerErrorMessage, file.errorString().toStdString());
}

} // namespace

// The library knows names of 8 bit characters only, so it gets the contents of the file. They are not copied before
// they are changed.
MetadataFile::MetadataFile(const QString& path)
    : file(path)
{
    if (!file.open(QIODevice::ReadOnly)) {
        Fail(file);
    }
    if (file.size() > std::numeric_limits<long>::max()) {
        throw Exiv2::Error(Exiv2::kerErrorMessage, "the file has more than 2 GiB");
    }
    bytes = file.map(0, file.size());
    if (!bytes) {
        Fail(file);
    }
    image = Exiv2::ImageFactory::open(bytes, long(file.size()));
}

void MetadataFile::Write()
{
    image->writeMetadata();
    Exiv2::BasicIo& written = image->io();
    written.open();
    const QByteArray contents(reinterpret_cast<const char*>(written.mmap()), int(written.size()));
    written.munmap();
    // A file in memory cannot become shorter.
    file.unmap(bytes);
    file.close();
    const bool isDone = file.open(QIODevice::ReadWrite | QIODevice::ExistingOnly) &&
                        file.write(contents) == contents.size() && file.resize(contents.size()) && file.flush();
    if (!isDone) {
        Fail(file);
    }
}

} // namespace BatchWorker
