// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MetadataFile.h"

#include <QFile>

namespace BatchWorker {

MetadataFile::MetadataFile(const QString& path, Use)
    : path(path)
    , image(Exiv2::ImageFactory::open(QFile::encodeName(path).toStdString()).release())
{
}

void MetadataFile::Write()
{
    image->writeMetadata();
}

} // namespace BatchWorker
