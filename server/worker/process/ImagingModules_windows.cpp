// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ImagingModules.h"

#include <vips/vips8>

namespace BatchWorker {

// The library of this system is built without modules: its decoders are parts of it.
bool StartWithKnownModules(const char* program)
{
    return VIPS_INIT(program) == 0;
}

} // namespace BatchWorker
