// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FolderWatch.h"

namespace BatchHost {

FolderWatch::FolderWatch(const QString&) {}

FolderWatch::~FolderWatch() = default;

bool FolderWatch::Follow(const QStringList&)
{
    return false;
}

} // namespace BatchHost
