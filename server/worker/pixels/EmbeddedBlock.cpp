// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EmbeddedBlock.h"

namespace BatchWorker {

QByteArray BlockOf(const Picture& picture, const char* name)
{
    if (picture.get_typeof(name) == 0) {
        return {};
    }
    std::size_t size = 0;
    const void* bytes = picture.get_blob(name, &size);
    return {static_cast<const char*>(bytes), int(size)};
}

} // namespace BatchWorker
