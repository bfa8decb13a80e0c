#include "ServerLimits.h"

#include <QThread>

#include <algorithm>

namespace BatchProtocol {

namespace {

template<typename Number>
Number Setting(const char* variable, int minimum, int maximum, Number unit, Number fallback)
{
    bool isNumber = false;
    const int value = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber && value >= minimum && value <= maximum ? value * unit : fallback;
}

} // namespace

ServerLimits ServerLimits::FromEnvironment()
{
    const ServerLimits defaults;
    ServerLimits limits;
    limits.workers = Setting("VELKORA_BATCH_WORKERS", 1, 256, 1, std::max(1, QThread::idealThreadCount()));
    limits.pixels = Setting("VELKORA_BATCH_MAX_MEGAPIXELS", 1, 100'000, qint64(1'000'000), defaults.pixels);
    limits.workerMemory = Setting("VELKORA_BATCH_WORKER_MIB", 128, 1 << 20, qint64(1) << 20, defaults.workerMemory);
    limits.pictureSeconds = Setting("VELKORA_BATCH_PICTURE_SECONDS", 1, 86'400, 1, defaults.pictureSeconds);
    return limits;
}

} // namespace BatchProtocol
