// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HeifFile.h"

#include "server/worker/pixels/MappedFile_windows.h"

namespace BatchWorker {

HeifFile::HeifFile(const QString& path)
{
    const auto file = std::make_shared<MappedFile>(path);
    if (file->Bytes()) {
        const heif_error problem = heif_context_read_from_memory_without_copy(context.get(), file->Bytes(),
                                                                              std::size_t(file->Size()), nullptr);
        isRead = problem.code == heif_error_Ok;
    }
    contents = file;
}

} // namespace BatchWorker
