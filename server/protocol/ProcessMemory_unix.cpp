// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProcessMemory.h"

#include <QByteArray>
#include <QFile>
#include <QList>

#include <unistd.h>

namespace BatchProtocol {

qint64 MemoryOfProcess(qint64 id)
{
    // On systems without /proc there is only the limit that a worker sets itself.
    QFile file(QStringLiteral("/proc/%1/statm").arg(id));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered)) {
        return 0;
    }
    const QList<QByteArray> fields = file.readLine().split(' ');
    return fields.value(1).toLongLong() * ::sysconf(_SC_PAGESIZE);
}

} // namespace BatchProtocol
