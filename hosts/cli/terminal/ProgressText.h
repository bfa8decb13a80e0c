// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace BatchCli {

/// The progress of a run.
struct Progress
{
    int done = 0;
    int files = 0;
    qint64 bytesDone = 0;
    qint64 allBytes = 0;
    int earlierDone = 0;     ///< of `done`: those from before the run was interrupted
    qint64 earlierBytes = 0; ///< of `bytesDone`: the same
    double seconds = 0;
    QStringList inWork; ///< paths
};

/// One line of at most `columns` columns: a bar, the count, pictures per second, the time left, and as many names in
/// work as fit. The time left is estimated from the bytes done, as large pictures take longer than small ones.
QString ProgressText(const Progress& progress, int columns);

} // namespace BatchCli
