// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Lies.h"

#include "ProcessEnd.h"

#include <QThread>

#include <cstdio>
#include <cstdlib>

using namespace BatchProtocol;

namespace {

constexpr int largestText = 200'000; // characters; a report may have 1 MiB

[[noreturn]] void Stall()
{
    for (;;) {
        QThread::sleep(1);
    }
}

void Begin(qint32 number)
{
    Say(FrameFromWorker(Beginning{number}));
}

void Answer(qint32 number, Report report = {})
{
    report.number = number;
    Say(FrameFromWorker(report));
}

Report Failure(BatchJob::PolicyKind kind, int code)
{
    Report report;
    report.failure = kind;
    report.errorCode = code;
    report.reason = QStringLiteral("so it says");
    return report;
}

Report DamagedFile()
{
    return Failure(BatchJob::PolicyKind::Input, ZTBatchMessage::ReadFileError);
}

/// A report whose list of warnings claims to have `count` entries, but ends there.
QByteArray ReportOfManyWarnings(qint32 number, quint32 count)
{
    QByteArray frame;
    QDataStream stream(&frame, QIODevice::WriteOnly);
    constexpr quint8 kindOfReports = 1;
    constexpr qint32 noFailure = 0;
    constexpr quint32 payload = 1 + 3 * 4 + 2 * 4 + 4;
    stream << payload << kindOfReports << number << noFailure << qint32(0) << QString() << QString() << count;
    return frame;
}

[[noreturn]] void Flood(const QByteArray& bytes, FILE* stream)
{
    std::setvbuf(stream, nullptr, _IOFBF, 1 << 16); // Without a buffer, Windows takes seconds for some megabytes.
    for (;;) {
        if (std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stream) == 0) {
            std::_Exit(1);
        }
    }
}

void NameTaken(qint32 number)
{
    Begin(number);
    Answer(number, Failure(BatchJob::PolicyKind::Naming, ZTBatchMessage::FileNameAlreadyExists));
}

void WithoutBeginning(qint32 number)
{
    Answer(number);
    Stall();
}

void Absent(qint32 number)
{
    Begin(number);
    Answer(number);
}

void Twice(qint32 number)
{
    Begin(number);
    Answer(number, DamagedFile());
    Answer(number, DamagedFile());
    Stall();
}

void OtherFile(qint32 number)
{
    Begin(number);
    Answer(number + 1);
    Stall();
}

void BeginsOther(qint32 number)
{
    Begin(number);
    Begin(number + 1);
    Begin(number + 2);
    Begin(number + 3);
    Stall();
}

void BeginsOtherAndCrashes(qint32 number)
{
    Begin(number);
    Begin(number + 1);
    CrashQuietly();
    Crash();
}

void Ready(qint32 number)
{
    Begin(number);
    Answer(workerIsReady);
    Stall();
}

void HalfAFrame(qint32 number)
{
    Begin(number);
    Say(FrameFromWorker(Report()).left(10));
    Stall();
}

void HalfAFrameAndEnd(qint32 number)
{
    Begin(number);
    Say(FrameFromWorker(Report()).left(10));
    std::_Exit(0);
}

void Stalled(qint32 number)
{
    Begin(number);
    Stall();
}

void Noise(qint32 number)
{
    Begin(number);
    Say(QByteArray(100, '\xFF'));
    Stall();
}

void EndlessFrame(qint32 number)
{
    Begin(number);
    Say(QByteArray("\x00\x0F\x00\x00", 4));
    Flood(QByteArray(1 << 16, 'x'), stdout);
}

void EndlessBeginnings(qint32 number)
{
    Flood(FrameFromWorker(Beginning{number}), stdout);
}

void EndlessReports(qint32 number)
{
    Report report = DamagedFile();
    report.number = number;
    Begin(number);
    Flood(FrameFromWorker(report), stdout);
}

void EndlessErrors(qint32 number)
{
    Begin(number);
    Flood(QByteArray("no end of it, \033[31m\n").repeated(1000), stderr);
}

void GiantTexts(qint32 number)
{
    Report report = DamagedFile();
    report.reason = QString(largestText, QLatin1Char('x'));
    report.detail = QString(largestText, QLatin1Char('y'));
    Begin(number);
    Answer(number, report);
}

void OddTexts(qint32 number)
{
    Report report = DamagedFile();
    report.reason = QStringLiteral("\033[2J\u202Eno\u2066\u2028two\r\nlines\u009B31m");
    Begin(number);
    Answer(number, report);
}

void ManyWarnings(qint32 number)
{
    Report report;
    report.warnings.fill({BatchJob::WarningKind::Decoder, QStringLiteral("beware")}, 10'000);
    Begin(number);
    Answer(number, report);
}

void CountlessWarnings(qint32 number)
{
    Begin(number);
    Say(ReportOfManyWarnings(number, 0x7FFFFFFF));
    Stall();
}

void OddFailure(qint32 number)
{
    Begin(number);
    Answer(number, Failure(BatchJob::PolicyKind(77), 1 << 30));
}

void OtherFormat(qint32 number)
{
    Report report = Failure(BatchJob::PolicyKind::WriteToFormat, ZTBatchMessage::UnsupportedOutputFormat);
    report.nearestFormat = QString(largestText, QLatin1Char('z'));
    Begin(number);
    Answer(number, report);
}

void Crashed(qint32 number)
{
    Begin(number);
    CrashQuietly();
    Crash();
}

} // namespace

const std::vector<Lie>& Lies()
{
    static const std::vector<Lie> lies{
        {"taken", "says each time that the name of the result is taken", &NameTaken},
        {"absent", "says that the result is written, and writes nothing", &Absent},
        {"early", "reports before it has begun, then stalls", &WithoutBeginning},
        {"twice", "reports twice, then stalls", &Twice},
        {"other", "reports for the next file, then stalls", &OtherFile},
        {"begins-other", "begins files that it was not given, then stalls", &BeginsOther},
        {"begins-crash", "begins the next file, then crashes", &BeginsOtherAndCrashes},
        {"ready", "says once more that it is ready, then stalls", &Ready},
        {"half", "sends half a message, then stalls", &HalfAFrame},
        {"half-end", "sends half a message, then ends with exit code 0", &HalfAFrameAndEnd},
        {"stall", "says nothing more", &Stalled},
        {"noise", "sends bytes that are no message, then stalls", &Noise},
        {"frame", "sends a message without end", &EndlessFrame},
        {"beginnings", "begins the file without end", &EndlessBeginnings},
        {"reports", "reports without end", &EndlessReports},
        {"errors", "writes to standard error without end", &EndlessErrors},
        {"giant", "reports with texts as large as a report may be", &GiantTexts},
        {"odd-text", "reports with control characters in its texts", &OddTexts},
        {"warnings", "reports with 10000 warnings", &ManyWarnings},
        {"countless", "reports with 2147483647 warnings, and sends none of them; then stalls", &CountlessWarnings},
        {"odd-failure", "reports a case and an error that there are not", &OddFailure},
        {"odd-format", "reports that only a format that there is not can hold the picture", &OtherFormat},
        {"crash", "crashes", &Crashed},
    };
    return lies;
}

void Say(const QByteArray& bytes)
{
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout);
    std::fflush(stdout);
}
