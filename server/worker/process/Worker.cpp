// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Worker.h"

#include "job/values/Phrase.h"

#include "FileProbe.h"
#include "ImagingLibrary.h"

#include "server/worker/pipeline/PictureMaker.h"
#include "server/worker/pixels/FileCalls.h"
#include "server/worker/pixels/PictureFailure.h"

#include "ZTBatchDocument.h"

#include <QElapsedTimer>

#include <cerrno>
#include <cstdio>
#include <new>
#include <unistd.h>

using namespace BatchJob;
using namespace BatchProtocol;

namespace BatchWorker {

namespace {

Report Failure(PolicyKind failure, ZTBatchMessage::Error error, const QString& reason, const QString& detail = {})
{
    Report report;
    report.failure = failure;
    report.errorCode = error;
    report.reason = reason;
    report.detail = detail;
    return report;
}

Report ReportOf(const PictureFailure& problem)
{
    using Kind = PictureFailure::Kind;
    const auto failed = [&problem](PolicyKind failure, ZTBatchMessage::Error error) {
        Report report = Failure(failure, error, problem.reason, problem.detail);
        report.nearestFormat = problem.nearestFormat;
        return report;
    };
    switch (problem.kind) {
    case Kind::DamagedFile:
        return failed(PolicyKind::Input, ZTBatchMessage::ReadFileError);
    case Kind::UnknownFormat:
        return failed(PolicyKind::Input, ZTBatchMessage::UnsupportedInputFormat);
    case Kind::TooLarge:
        return failed(PolicyKind::Input, ZTBatchMessage::ImageTooLarge);
    case Kind::FormatCannotHold:
        return failed(PolicyKind::WriteToFormat, ZTBatchMessage::UnsupportedOutputFormat);
    case Kind::OutputFailed:
        return failed(PolicyKind::Output, ZTBatchMessage::WriteOutputFormatError);
    case Kind::ProcessingFailed:
        break;
    }
    return failed(PolicyKind::Processing, ZTBatchMessage::ApplyAdjustmentError);
}

// Calls `work`, which gives a report or throws.
template<typename Work>
Report Guarded(const Work& work)
{
    try {
        return work();
    } catch (const PictureFailure& problem) {
        return ReportOf(problem);
    } catch (const std::bad_alloc&) {
        return ReportOf(NotEnoughMemory());
    } catch (const std::exception& problem) {
        return ReportOf(ProcessingFailed(Phrase::English("the picture cannot be processed"),
                                         QString::fromLocal8Bit(problem.what())));
    }
}

/// The same for a task about a picture. What libraries say of one picture is in its report, and in no other.
template<typename Work>
Report ReportOnPicture(const Work& work)
{
    ForgetLibraryTexts();
    Report report = Guarded(work);
    const Warnings warnings = TakeLibraryWarnings();
    if (report.failure == PolicyKind::None) {
        report.warnings += warnings;
    } else {
        QStringList texts = TextsOf(warnings);
        if (!report.detail.isEmpty()) {
            texts.prepend(report.detail);
        }
        report.detail = texts.join(QStringLiteral("; "));
    }
    return report;
}

} // namespace

Worker::Worker(ReportQueue& reports, Confinement& confinement)
    : reports(reports)
    , confinement(confinement)
    , kept(TakeLibraryWarnings)
{
}

bool Worker::Run(int input)
{
    constexpr int pieceSize = 64 << 10;
    FrameReader reader;
    QByteArray piece(pieceSize, '\0');
    for (;;) {
        const ssize_t count = read(input, piece.data(), std::size_t(piece.size()));
        if (count < 0 && errno == EINTR) {
            continue;
        }
        if (count <= 0) {
            return true;
        }
        reader.Append(piece.left(int(count)));
        while (const std::optional<ToWorker> message = reader.NextToWorker()) {
            if (!Handle(*message)) {
                return false;
            }
        }
        if (reader.IsBroken()) {
            std::fprintf(stderr, "VelkoraBatchWorker: the supervisor sent an invalid message.\n");
            return false;
        }
    }
}

bool Worker::Handle(const ToWorker& message)
{
    if (const Job* job = std::get_if<Job>(&message)) {
        return Accept(*job);
    }
    if (!isConfined) {
        std::fprintf(stderr, "VelkoraBatchWorker: the supervisor sent a task before its job.\n");
        return false;
    }
    if (const ProbeTask* probe = std::get_if<ProbeTask>(&message)) {
        Probe(*probe);
    } else {
        Make(std::get<PictureTask>(message));
    }
    return true;
}

bool Worker::Accept(const Job& job)
{
    limits = job.limits;
    settings.reset();
    isConfined = isConfined || confinement.Confine(job.rights, limits);
    if (isConfined) {
        LimitFileSize(limits.LargestFile());
        jobProblem = Guarded([this, &job] { return Read(job); });
    }
    return isConfined;
}

// The supervisor has checked the job; a file that the job names may have changed since.
Report Worker::Read(const Job& job)
{
    ZTBatchDocument document;
    if (!document.Deserialize(job.document)) {
        return Failure(PolicyKind::Processing, ZTBatchMessage::ReadOutputSettingsError,
                       Phrase::English("the job cannot be read"));
    }
    const CheckedSettings checked = CheckSettings(document);
    if (!checked.IsAccepted()) {
        return Failure(PolicyKind::Processing, checked.refusal.code, checked.refusal.message);
    }
    settings = checked.settings;
    return {};
}

void Worker::Probe(const ProbeTask& task)
{
    reports.SendNow(Beginning{task.number});
    Report report = ReportOnPicture([this, &task] { return ProbeFile(task, limits); });
    report.warnings.clear(); // reported when the picture is made
    report.number = task.number;
    reports.Send(report);
}

void Worker::Make(const PictureTask& task)
{
    reports.SendNow(Beginning{task.number});
    QElapsedTimer time;
    time.start();
    MadePicture made;
    Report report = ReportOnPicture([this, &task, &made] {
        Report done = jobProblem;
        if (settings) {
            made = MadeFrom(task);
            done.usedKeptPixels = kept.WereUsed();
            done.facts = made.facts;
            done.warnings = made.warnings;
        }
        return done;
    });
    kept.EndTask();
    report.number = task.number;
    report.facts.milliseconds = int(time.elapsed());
    if (made.file) {
        reports.FinishAndSend(std::move(made), {task.replaceExisting, task.countsTwin}, report);
    } else {
        reports.Send(report);
    }
}

/// Kept pixels must not cost a result for which the memory would be enough without them.
MadePicture Worker::MadeFrom(const PictureTask& task)
{
    constexpr int mostOfMemory = 4; // kept pixels take a quarter at most
    kept.BeginTask(task.inputFile, task.keepsPixels, limits.workerMemory / mostOfMemory);
    try {
        return MakePicture(*settings, limits, task, &kept);
    } catch (const PictureFailure& problem) {
        if (problem.kind != PictureFailure::Kind::TooLarge || !kept.HoldsPixels()) {
            throw;
        }
    } catch (const std::bad_alloc&) {
        if (!kept.HoldsPixels()) {
            throw;
        }
    }
    kept.BeginTask(task.inputFile, false, 0);
    kept.Forget();
    return MakePicture(*settings, limits, task);
}

} // namespace BatchWorker
