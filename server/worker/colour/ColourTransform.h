// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/worker/pixels/Picture.h"

#include <QByteArray>

#include <optional>

namespace BatchWorker {

/// `colours`, of 8 or 16 bits and without alpha, converted from the ICC profile `from`, which fits it, to `to`, with
/// black point compensation and the intents of IntentOf(). The result has the depth of `colours`, the channels of `to`,
/// and carries no profile. Nothing when the profiles cannot be joined.
std::optional<Picture> ConvertedByProfiles(const Picture& colours, const QByteArray& from, const QByteArray& to);

} // namespace BatchWorker
