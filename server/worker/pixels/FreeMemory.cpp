#include "FreeMemory.h"

#include <QFile>

#include <algorithm>
#include <limits>
#include <sys/resource.h>
#include <unistd.h>

namespace BatchWorker {

namespace {

// What counts against the limit: data and stacks, in pages, are the sixth of seven numbers.
qint64 TakenMemory()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    constexpr int placeOfData = 5;
    return file.readAll().split(' ').value(placeOfData).toLongLong() * sysconf(_SC_PAGESIZE);
}

} // namespace

qint64 FreeMemory()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_DATA, &limit) != 0 || limit.rlim_cur > rlim_t(std::numeric_limits<qint64>::max())) {
        return std::numeric_limits<qint64>::max();
    }
    return std::max<qint64>(0, qint64(limit.rlim_cur) - TakenMemory());
}

} // namespace BatchWorker
