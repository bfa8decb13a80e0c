// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"
#include "server/worker/pixels/FileCalls.h"
#include "server/worker/pixels/Picture.h"

#include <QString>

#include <functional>
#include <optional>

namespace BatchWorker {

/// The decoded pixels of one file, kept from one task for the next: several results of a picture are then made from one
/// decoding. Pixels of another file, or of one that has changed, are never given out.
class KeptPixels
{
public:
    using WarningSource = BatchJob::Warnings (*)();

    /// `takeWarnings` gives what the imaging library has warned of since its last call.
    explicit KeptPixels(WarningSource takeWarnings);

    /// A task begins that reads `file`. If `keeps`, the next one reads it too: its pixels are kept if they take at most
    /// `mostBytes`. Kept pixels of anything else are forgotten.
    void BeginTask(const QString& file, bool keeps, qint64 mostBytes);

    /// Forgets the pixels unless they are kept for the next task.
    void EndTask();

    void Forget() { kept.reset(); }
    bool HoldsPixels() const { return kept.has_value(); }

    /// Whether the current task has got pixels of an earlier one.
    bool WereUsed() const { return wereUsed; }

    enum class Place { InMemory, Flowing };

    /// The pixels of the task's file in 1/`shrink` of its size: kept ones, else those that `decode` gives, in `place`.
    /// `warnings` are those about the file, to which `decode` and this function append. Throws what `decode` throws.
    Picture Get(int shrink, Place place, BatchJob::Warnings& warnings, const std::function<Picture()>& decode);

private:
    Q_DISABLE_COPY(KeptPixels)

    struct Kept
    {
        FileState state;
        int shrink = 1;
        Picture pixels;
        BatchJob::Warnings warnings;
        bool isOfThisTask = true;
    };

    WarningSource takeWarnings;
    std::optional<Kept> kept;
    FileState state; ///< of the task's file
    bool keeps = false;
    bool wereUsed = false;
    qint64 mostBytes = 0;
};

} // namespace BatchWorker
