// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <libraw/libraw.h>

namespace BatchWorker {

/// The file that a decoder of camera RAW reads. It counts what the decoder wants behind the end.
class RawStream : public LibRaw_bigfile_datastream
{
public:
    explicit RawStream(const QString& file);

    void BeginCount();

    /// Whether the decoder wanted more than decoders want of whole files, some of which read in large blocks.
    bool LacksData() const;

    int read(void* target, size_t size, size_t count) override;
    int get_char() override;

private:
    qint64 bytesInBlocks = 0;
    qint64 bytesAlone = 0;
};

} // namespace BatchWorker
