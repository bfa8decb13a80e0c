// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerLimits.h"

#include <QByteArray>
#include <QThread>

#include <algorithm>

namespace BatchProtocol {

namespace {

template<typename Number>
Number ValueOf(const ServerLimit& limit, Number unit, Number fallback)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(limit.variable, &isNumber);
    return isNumber && value >= limit.minimum && value <= limit.maximum ? value * unit : fallback;
}

} // namespace

void ServerLimit::Set(int value) const
{
    qputenv(variable, QByteArray::number(value));
}

ServerLimits ServerLimits::FromEnvironment()
{
    constexpr qint64 megapixel = 1'000'000;
    constexpr qint64 mebibyte = 1 << 20;
    const ServerLimits defaults;
    ServerLimits limits;
    limits.workers = ValueOf(workersLimit, 1, std::max(1, QThread::idealThreadCount()));
    limits.pixels = ValueOf(megapixelsLimit, megapixel, defaults.pixels);
    limits.workerMemory = ValueOf(workerMemoryLimit, mebibyte, defaults.workerMemory);
    limits.pictureSeconds = ValueOf(pictureTimeLimit, 1, defaults.pictureSeconds);
    limits.followsLinks = ValueOf(followLinksLimit, 1, 0) != 0;
    limits.replacesOriginals = ValueOf(inPlaceLimit, 1, 0) != 0;
    limits.isInBackground = ValueOf(normalPriorityLimit, 1, 0) == 0;
    limits.refusesSharedNames = ValueOf(sharedNamesLimit, 1, 0) != 0;
    return limits;
}

} // namespace BatchProtocol
