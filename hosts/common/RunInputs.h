// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "LeftOutFiles.h"

#include <QString>
#include <QStringList>
#include <QVector>

class ZTBatchDocument;

namespace BatchHost {

/// The inputs of a run with their sizes in bytes, in the document's order.
struct RunInputs
{
    QStringList files;
    QVector<qint64> bytes; ///< negative for a file that does not exist
    qint64 allBytes = 0;
    LeftOutFiles leftOut; ///< found beside the inputs when they were collected
};

RunInputs InputsOf(const ZTBatchDocument& job);

} // namespace BatchHost
