// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Picture.h"

#include <QByteArray>

namespace BatchWorker {

/// The ICC profile that `picture` carries; empty when it carries none.
QByteArray ProfileOf(const Picture& picture);

/// `picture` with `profile` in the place of the one that it carries; an empty one removes that. Its colours stay.
Picture WithProfile(const Picture& picture, const QByteArray& profile);

} // namespace BatchWorker
