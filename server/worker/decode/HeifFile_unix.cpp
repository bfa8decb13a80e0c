// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HeifFile.h"

#include <QFile>

namespace BatchWorker {

HeifFile::HeifFile(const QString& path)
    : isRead(heif_context_read_from_file(context.get(), QFile::encodeName(path).constData(), nullptr).code ==
             heif_error_Ok)
{
}

} // namespace BatchWorker
