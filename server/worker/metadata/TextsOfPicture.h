// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "MetadataReader.h"

#include "job/tokens/TokenValues.h"

namespace BatchWorker {

/// What `blocks` say for tokens, as docs/reference/tokens.md lists it, cleaned by CleanTexts(). What cannot be read is
/// empty.
BatchJob::PictureTexts TextsOf(const MetadataBlocks& blocks);

} // namespace BatchWorker
