// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FreeMemory.h"

#include <QByteArray>
#include <QList>

#include <algorithm>
#include <fcntl.h>
#include <limits>
#include <sys/resource.h>
#include <unistd.h>

namespace BatchWorker {

namespace {

// Open from the first call on: later a worker cannot open it.
int OwnAccount()
{
    static const int account = open("/proc/self/statm", O_RDONLY | O_CLOEXEC);
    return account;
}

// What counts against the limit: data and stacks, in pages, are the sixth of seven numbers.
qint64 TakenMemory()
{
    constexpr int placeOfData = 5;
    constexpr int longest = 200;
    QByteArray line(longest, '\0');
    const ssize_t size = pread(OwnAccount(), line.data(), std::size_t(line.size()), 0);
    return line.left(int(std::max<ssize_t>(size, 0))).split(' ').value(placeOfData).toLongLong() *
           sysconf(_SC_PAGESIZE);
}

} // namespace

void OpenMemoryAccount()
{
    OwnAccount();
}

qint64 FreeMemory()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_DATA, &limit) != 0 || limit.rlim_cur > rlim_t(std::numeric_limits<qint64>::max())) {
        return std::numeric_limits<qint64>::max();
    }
    return std::max<qint64>(0, qint64(limit.rlim_cur) - TakenMemory());
}

} // namespace BatchWorker
