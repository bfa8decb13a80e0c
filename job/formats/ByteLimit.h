// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>
#include <QString>

#include <optional>

namespace BatchJob {

/// The largest file that a job wants, and what may be given up for it.
struct ByteLimit
{
    qint64 bytes = 0;       ///< of the whole file, metadata included
    int quality = 0;        ///< the best that is tried, 1 to 100
    int leastQuality = 0;   ///< the worst, at most `quality`
    bool mayShrink = false; ///< with the least quality the picture may get smaller dimensions

    /// The limit of `complete`, options of a format that are complete; none if they have no limit, or do without loss.
    static std::optional<ByteLimit> Of(const QJsonObject& complete);
};

/// What is wrong with the limit in `checked`, options of a format that are each valid; empty when nothing is.
QString ByteLimitError(const QJsonObject& checked);

} // namespace BatchJob
