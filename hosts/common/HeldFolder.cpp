// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HeldFolder.h"

namespace BatchHost {

HeldFolder::HeldFolder(const QString& parent, const QString& start)
{
    TempFolderHold::Sweep(parent, start);
    // Another process that sweeps may take the new folder for one that was left, until it is held.
    constexpr int attempts = 10;
    for (int attempt = 0; attempt < attempts && !(hold && hold->IsHeld()); ++attempt) {
        folder = std::make_unique<QTemporaryDir>(parent + QLatin1Char('/') + start + QStringLiteral("XXXXXX"));
        hold = folder->isValid() ? std::make_unique<TempFolderHold>(folder->path()) : nullptr;
    }
}

HeldFolder::~HeldFolder() = default;

} // namespace BatchHost
