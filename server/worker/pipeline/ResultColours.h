// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/formats/FormatSchema.h"
#include "job/settings/JobCheck.h"
#include "job/values/Warning.h"
#include "server/worker/pixels/Picture.h"

#include <QStringList>

namespace BatchWorker {

/// Which colours a result has: what the job, the format and the source say together.
class ResultColours
{
public:
    /// `job` and `format` must outlive this object. `keep` are the kinds of metadata that results keep.
    ResultColours(const BatchJob::JobSettings& job, const BatchJob::FormatSchema& format, const QStringList& keep);

    /// Whether a source of inks stays one on its way through the stages.
    bool KeepsInks() const;

    /// Makes all further results sRGB without a profile, for a file that turned out not to hold it.
    void ForgoProfile() { isForgone = true; }

    /// Tells of `decoded`, before any stage, what the result may have to go back to.
    void NoteSource(const Picture& decoded);

    /// `picture`, as the stages give it, in the colours of the result, which has `bits` a channel. Warnings are
    /// appended.
    Picture Of(const Picture& picture, int bits, BatchJob::Warnings& warnings) const;

private:
    bool KeepsProfile() const;
    Picture InColours(const Picture& picture, BatchJob::Warnings& warnings) const;

    const BatchJob::JobSettings& job;
    const BatchJob::FormatSchema& format;
    bool wantsProfile; ///< job and format
    bool isForgone = false;
    bool hasInks = false;       ///< whether the source has
    bool isTransparent = false; ///< the source
    QByteArray inks;            ///< profile of the inks; empty when the source carries none
};

} // namespace BatchWorker
