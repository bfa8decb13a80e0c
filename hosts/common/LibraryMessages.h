// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Phrase.h"

#include <array>

namespace BatchHost {

/// What Qt says most often of XML and of regular expressions that it cannot read. It gets into errors about saved jobs
/// and wildcards.
inline constexpr std::array libraryMessages{
    BatchJob::Phrase::Marked("Start tag expected."),
    BatchJob::Phrase::Marked("Opening and ending tag mismatch."),
    BatchJob::Phrase::Marked("Premature end of document."),
    BatchJob::Phrase::Marked("Extra content at end of document."),
    BatchJob::Phrase::Marked("Expected %1, but got '%2'."),
    BatchJob::Phrase::Marked("range out of order in character class"),
};

} // namespace BatchHost
