// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/Warning.h"

#include <QImage>
#include <QMetaType>
#include <QSize>
#include <QString>

namespace BatchDesktop {

/// A picture before and after, and what is known of both files. All of it is exact: the file `result` is the very file
/// that a run would write.
struct PreviewPictures
{
    QString input;
    QString result; ///< a private file, which stays until the next preview is asked for
    QString format; ///< of the result, one of Formats()
    QImage before; ///< the input, cut and sized as the result, without effects and frame; null where it cannot be shown
    QImage after;  ///< the result; null when it has more pixels than can be shown
    QSize inputSize; ///< pixels, upright; empty if it is not known
    QSize size;      ///< of the result, in pixels
    qint64 inputBytes = -1;
    qint64 bytes = -1;  ///< of the result
    double seconds = 0; ///< since it was asked for
    BatchJob::Warnings warnings;

    /// Whether pictures of this size are shown: two of the largest take half a gibibyte.
    static bool CanShow(const QSize& pixels) { return qint64(pixels.width()) * pixels.height() <= 64'000'000; }
    bool IsShown() const { return CanShow(size); }
};

} // namespace BatchDesktop

Q_DECLARE_METATYPE(BatchDesktop::PreviewPictures)
