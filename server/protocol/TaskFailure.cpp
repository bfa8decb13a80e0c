// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TaskFailure.h"

#include "job/formats/FormatCatalog.h"
#include "job/values/Phrase.h"

#include <algorithm>
#include <initializer_list>

namespace BatchProtocol {

namespace {

constexpr int longestReason = 1000;
constexpr int mostWarnings = 20;

bool IsCodeOf(BatchJob::PolicyKind kind, int code)
{
    const auto isOneOf = [code](std::initializer_list<int> codes) {
        return std::find(codes.begin(), codes.end(), code) != codes.end();
    };
    switch (kind) {
    case BatchJob::PolicyKind::Input:
        return isOneOf(
            {ZTBatchMessage::UnsupportedInputFormat, ZTBatchMessage::ReadFileError, ZTBatchMessage::ImageTooLarge});
    case BatchJob::PolicyKind::Output:
        return code == ZTBatchMessage::WriteOutputFormatError;
    case BatchJob::PolicyKind::Processing:
        return code == ZTBatchMessage::ApplyAdjustmentError;
    case BatchJob::PolicyKind::Naming:
        return code == ZTBatchMessage::FileNameAlreadyExists;
    case BatchJob::PolicyKind::WriteToFormat:
        return code == ZTBatchMessage::UnsupportedOutputFormat;
    case BatchJob::PolicyKind::None:
        break;
    }
    return false;
}

QString OneLine(const QString& text)
{
    return text.left(longestReason).simplified();
}

Report Failure(BatchJob::PolicyKind kind, int errorCode, const QString& reason)
{
    Report report;
    report.failure = kind;
    report.errorCode = errorCode;
    report.reason = reason;
    return report;
}

Report ProcessingFailure(const QString& reason)
{
    return Failure(BatchJob::PolicyKind::Processing, ZTBatchMessage::ApplyAdjustmentError, reason);
}

} // namespace

Report CheckedFailure(const Report& report)
{
    Report checked = report;
    checked.reason = OneLine(report.reason);
    checked.detail = OneLine(report.detail);
    if (!IsCodeOf(report.failure, report.errorCode)) {
        checked =
            ProcessingFailure(BatchJob::Phrase::English("the worker's report is invalid: %1").arg(checked.reason));
        checked.number = report.number;
    }
    return checked;
}

BatchJob::Warnings CheckedWarnings(const Report& report)
{
    BatchJob::Warnings checked;
    for (const BatchJob::Warning& warning : report.warnings.mid(0, mostWarnings)) {
        checked.append({warning.kind, OneLine(warning.text)});
    }
    return checked;
}

BatchJob::PictureFacts CheckedFacts(const Report& report)
{
    return BatchJob::PossibleFacts(report.facts);
}

Report FailureOfEnd(WorkerEnd reason, const QString& text, const ServerLimits& limits)
{
    switch (reason) {
    case WorkerEnd::OutOfMemory:
        return Failure(
            BatchJob::PolicyKind::Input, ZTBatchMessage::ImageTooLarge,
            BatchJob::Phrase::English("it takes more memory than the limit of %1 MiB").arg(limits.workerMemory >> 20U));
    case WorkerEnd::Hung:
        return ProcessingFailure(
            BatchJob::Phrase::English("it takes longer than the limit of %1 seconds").arg(limits.pictureSeconds));
    case WorkerEnd::Noisy:
        return ProcessingFailure(
            BatchJob::Phrase::English("the worker wrote more than %1 MiB of messages").arg(mostErrorsOfTask >> 20));
    case WorkerEnd::Garbage:
        return ProcessingFailure(BatchJob::Phrase::English("the worker sent an invalid answer"));
    default:
        return ProcessingFailure(BatchJob::Phrase::English("the worker %1").arg(OneLine(text)));
    }
}

BatchJob::ProbeResult ProbeResultOf(const Report& report)
{
    // A year of more digits would become a part of names.
    const int year = report.captured.date().year();
    const bool isYear = year >= 1 && year <= 9999;
    return {isYear ? report.captured : QDateTime(), OneLine(report.inputFormat),
            BatchJob::FindFormat(report.nearestFormat) ? report.nearestFormat : QString(),
            CheckedFacts(report).inputSize, BatchJob::CleanTexts(report.texts)};
}

BatchJob::Trouble TroubleOf(const Report& failure)
{
    const Report checked = CheckedFailure(failure);
    const bool isFormat = BatchJob::FindFormat(checked.nearestFormat) != nullptr;
    return {checked.failure, checked.errorCode, checked.reason, isFormat ? checked.nearestFormat : QString(), true};
}

} // namespace BatchProtocol
