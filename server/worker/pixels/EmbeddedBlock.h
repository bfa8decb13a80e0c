// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Picture.h"

#include <QByteArray>

namespace BatchWorker {

/// A copy of the block of bytes, such as EXIF, that `picture` carries under `name`; empty when it carries none.
QByteArray BlockOf(const Picture& picture, const char* name);

} // namespace BatchWorker
