// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace BatchWorker {

/// How many of the first `directories` directories of the TIFF file `path` are pages: neither masks nor smaller copies
/// of other pages, as previews and zoom levels are. What cannot be read counts as a page.
int CountTiffPages(const QString& path, int directories);

} // namespace BatchWorker
