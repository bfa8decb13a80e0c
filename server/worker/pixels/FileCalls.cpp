// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileCalls.h"

namespace BatchWorker {

bool FileState::operator==(const FileState& other) const
{
    return bytes >= 0 && device == other.device && file == other.file && bytes == other.bytes &&
           modified == other.modified && changed == other.changed;
}

} // namespace BatchWorker
