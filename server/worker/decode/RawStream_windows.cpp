// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RawStream.h"

#include "job/values/NativePath_windows.h"

namespace BatchWorker {

RawStream::RawStream(const QString& file)
    : LibRaw_bigfile_datastream(BatchJob::NativePath(file).c_str())
{
}

} // namespace BatchWorker
