#include "TroubleOfWorker.h"

#include <algorithm>
#include <initializer_list>

using namespace BatchProtocol;

namespace BatchSupervisor {

namespace {

constexpr int longestReason = 1000;

bool IsCodeOf(Case kind, int code)
{
    const auto isOneOf = [code](std::initializer_list<int> codes) {
        return std::find(codes.begin(), codes.end(), code) != codes.end();
    };
    switch (kind) {
    case Case::Input:
        return isOneOf(
            {ZTBatchMessage::UnsupportedInputFormat, ZTBatchMessage::ReadFileError, ZTBatchMessage::ImageTooLarge});
    case Case::Output:
        return code == ZTBatchMessage::WriteOutputFormatError;
    case Case::Processing:
        return code == ZTBatchMessage::ApplyAdjustmentError;
    case Case::Naming:
        return code == ZTBatchMessage::FileNameAlreadyExists;
    case Case::WriteToFormat:
        return code == ZTBatchMessage::UnsupportedOutputFormat;
    case Case::None:
        break;
    }
    return false;
}

QString OneLine(const QString& text)
{
    return text.left(longestReason).simplified();
}

} // namespace

Trouble TroubleOfReport(const Report& report)
{
    if (!IsCodeOf(report.failure, report.errorCode)) {
        return {Case::Processing,
                ZTBatchMessage::ApplyAdjustmentError,
                QStringLiteral("the worker's report makes no sense: %1").arg(OneLine(report.reason)),
                {},
                true};
    }
    return {report.failure, report.errorCode, OneLine(report.reason), report.nearestFormat, true};
}

Trouble TroubleOfEnd(WorkerEnd reason, const QString& text, const ServerLimits& limits)
{
    const auto processing = [](const QString& what) {
        return Trouble{Case::Processing, ZTBatchMessage::ApplyAdjustmentError, what, {}, true};
    };
    switch (reason) {
    case WorkerEnd::OutOfMemory:
        return {
            Case::Input,
            ZTBatchMessage::ImageTooLarge,
            QStringLiteral("it takes more memory than a worker may have, %1 MiB").arg(limits.workerMemory / (1 << 20)),
            {},
            true};
    case WorkerEnd::Hung:
        return processing(QStringLiteral("it takes longer than a picture may, %1 seconds").arg(limits.pictureSeconds));
    case WorkerEnd::Garbage:
        return processing(QStringLiteral("the worker gave an answer that is none"));
    default:
        return processing(QStringLiteral("the worker %1").arg(OneLine(text)));
    }
}

} // namespace BatchSupervisor
