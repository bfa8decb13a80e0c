// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HeifFile.h"

namespace BatchWorker {

// The library knows names of 8 bit characters only.
HeifFile::HeifFile(const QString& path)
    : file(path)
{
    const uchar* const bytes = file.open(QIODevice::ReadOnly) ? file.map(0, file.size()) : nullptr;
    if (bytes) {
        const heif_error problem =
            heif_context_read_from_memory_without_copy(context.get(), bytes, std::size_t(file.size()), nullptr);
        isRead = problem.code == heif_error_Ok;
    }
}

} // namespace BatchWorker
