// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FormatEncoder.h"

#include <algorithm>
#include <array>

namespace BatchWorker {

namespace {

struct Entry
{
    BatchJob::FormatId format;
    FormatEncoder encoder;
};

} // namespace

const FormatEncoder& EncoderOf(const BatchJob::FormatSchema& format)
{
#define BATCHWORKER_ENCODER_ENTRY(id) Entry{BatchJob::FormatId::id, id##Encoder()},
    static const std::array entries{BATCHJOB_WRITTEN_FORMATS(BATCHWORKER_ENCODER_ENTRY)};
#undef BATCHWORKER_ENCODER_ENTRY
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&format](const Entry& entry) { return entry.format == format.id; });
    Q_ASSERT(found != entries.end());
    return found->encoder;
}

} // namespace BatchWorker
