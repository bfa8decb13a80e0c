#pragma once

#include <QString>
#include <QStringList>

namespace BatchCli {

/// How far a run is.
struct Progress
{
    int done = 0;
    int files = 0;
    qint64 bytesDone = 0;
    qint64 allBytes = 0;
    int earlierDone = 0;     ///< of `done`: what an earlier part of the run has done
    qint64 earlierBytes = 0; ///< of `bytesDone`: the same
    double seconds = 0;
    QStringList inWork; ///< paths
};

/// One line of at most `columns` columns: a bar, count, pictures a second, the time left, and the names in work as far
/// as there is room. The time left goes by bytes: a large picture takes longer than a small one.
QString ProgressText(const Progress& progress, int columns);

/// "0:07", "1:02:03".
QString DurationText(double seconds);

} // namespace BatchCli
