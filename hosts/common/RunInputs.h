// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "LeftOutFiles.h"

#include <QString>
#include <QStringList>
#include <QVector>

class ZTBatchDocument;

namespace BatchHost {

/// One of several results that a run makes of each picture.
struct RunVariant
{
    QString name;   ///< that of its preset or job
    QString folder; ///< where its results go, and below; absolute
};

/// The inputs of a run with their sizes in bytes, in the document's order. Where the run makes several results of each
/// picture, a file comes once for each of them, one after the other.
struct RunInputs
{
    QStringList files;
    QVector<qint64> bytes; ///< negative for a file that does not exist
    qint64 allBytes = 0;
    LeftOutFiles leftOut;              ///< found beside the inputs when they were collected
    QVector<RunVariant> variants = {}; ///< empty if there is one result of each picture

    /// The name of the variant that comes at `index` of `files`; empty if there are no variants.
    QString VariantAt(int index) const;

    /// The name of the variant that writes `output`, a file; empty if none does, or there are no variants.
    QString VariantOf(const QString& output) const;
};

/// The inputs of `job`, whose run makes results of `variants`.
RunInputs InputsOf(const ZTBatchDocument& job, const QVector<RunVariant>& variants = {});

} // namespace BatchHost
