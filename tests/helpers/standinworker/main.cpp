// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// A worker that makes no pictures, but executes the command in the first line of its input file. Without a command the
// result is a file with the input's content.
//
//     crash | hang | stop | exit | outofmemory   ends or hangs, and leaves a temporary file in the folder
//     eat                                        takes memory until it is ended
//     garbage | alien | flood                    sends an invalid answer: no frame, a wrong number, an endless frame
//     late garbage | late crash                  misbehaves after it has answered
//     held                                       reports only after it has begun the next task
//     wait PATH                                  waits for the file PATH
//     input CODE | output CODE | ...             reports a failure of that case with the error code
//     format NAME                                can write this format only
//     warn KIND TEXT                             writes the result, with a warning
//     claim                                      writes the result, and says of it what no picture has
//     detail TEXT                                reports a damaged file, with what a library says of it
//     describe                                   writes a result with its process id, its temporary folder, and the
//                                                numbers of its open files, a line each
//     crashprobe | hangprobe | eatprobe          does as crash, hang and eat when the file is probed
//
// With a file "start.script" beside the executable it ends at once, with "job.script" when it gets a job.

#include "ProcessEnd.h"

#include "server/protocol/TemporaryFile.h"
#include "server/protocol/WorkerMessages.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QThread>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <vector>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#include <qt_windows.h>
#else
#include <fcntl.h>
#include <unistd.h>
#endif

using namespace BatchProtocol;

namespace {

bool IsTold(const char* script)
{
    return QFile::exists(QDir(QCoreApplication::applicationDirPath()).filePath(QLatin1String(script)));
}

void Say(const QByteArray& bytes)
{
    std::fwrite(bytes.constData(), 1, std::size_t(bytes.size()), stdout);
    std::fflush(stdout);
}

Report Failure(BatchJob::PolicyKind kind, int code, const QString& nearest = {})
{
    Report report;
    report.failure = kind;
    report.errorCode = code;
    report.reason = QStringLiteral("as the script says");
    report.nearestFormat = nearest;
    return report;
}

[[noreturn]] void SleepForEver()
{
    for (;;) {
        QThread::sleep(1);
    }
}

/// Stops until another process continues this one.
void Stop()
{
#ifdef Q_OS_WIN
    SuspendThread(GetCurrentThread());
#else
    std::raise(SIGSTOP);
#endif
}

/// Standard channels carry bytes, not lines of text.
void PrepareStreams()
{
#ifdef Q_OS_WIN
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#endif
}

/// Reads what is available on standard input, and waits only if nothing is. Returns 0 or less at its end. On Windows
/// QFile would wait until the buffer is full.
int ReadInput(char* buffer, unsigned size)
{
    constexpr int standardInput = 0;
    return int(::read(standardInput, buffer, size));
}

[[noreturn]] void EatMemory()
{
    constexpr std::size_t step = 8 << 20;
    std::vector<std::vector<char>> eaten;
    for (;;) {
        eaten.emplace_back(step, 'x');
        QThread::msleep(5);
    }
}

QByteArray Description()
{
    QByteArrayList numbers;
#ifdef Q_OS_LINUX
    for (int number = 0; number < 1000; ++number) {
        if (fcntl(number, F_GETFD) >= 0) {
            numbers.append(QByteArray::number(number));
        }
    }
#endif
    return QByteArray::number(QCoreApplication::applicationPid()) + '\n' + QFile::encodeName(QDir::tempPath()) + '\n' +
           numbers.join(' ') + '\n';
}

Report WriteResult(const PictureTask& task, const QByteArray& content)
{
    TemporaryFile file(task.outputFile, task.outputRoot);
    QFile bytes;
    if (!file.Create() || !bytes.open(file.Descriptor(), QIODevice::WriteOnly | QIODevice::Unbuffered) ||
        bytes.write(content) != content.size()) {
        Report report = Failure(BatchJob::PolicyKind::Output, ZTBatchMessage::WriteOutputFormatError);
        report.reason = file.Error();
        return report;
    }
    switch (file.Place(task.replaceExisting)) {
    case TemporaryFile::Placement::NameTaken:
        return Failure(BatchJob::PolicyKind::Naming, ZTBatchMessage::FileNameAlreadyExists);
    case TemporaryFile::Placement::Failed:
        return Failure(BatchJob::PolicyKind::Output, ZTBatchMessage::WriteOutputFormatError);
    case TemporaryFile::Placement::Done:
        break;
    }
    Report report;
    report.facts.inputSize = QSize(64, 48);
    report.facts.outputSize = QSize(32, 24);
    report.facts.quality = 85;
    report.facts.milliseconds = 12;
    return report;
}

/// Executes the commands that prevent an answer.
void Misbehave(const QByteArray& command, const PictureTask& task)
{
    const QList<QByteArray> endings{"crash", "hang", "stop", "exit", "outofmemory", "eat"};
    if (!endings.contains(command)) {
        return;
    }
    TemporaryFile half(task.outputFile, task.outputRoot);
    half.Create();
    if (command == "crash") {
        CrashQuietly();
        Crash();
    } else if (command == "hang") {
        SleepForEver();
    } else if (command == "stop") {
        Stop();
    } else if (command == "eat") {
        EatMemory();
    }
    std::_Exit(command == "outofmemory" ? workerOutOfMemory : 3);
}

Report Make(const PictureTask& task)
{
    QFile input(task.inputFile);
    if (!input.open(QIODevice::ReadOnly)) {
        return Failure(BatchJob::PolicyKind::Input, ZTBatchMessage::ReadFileError);
    }
    const QByteArray content = input.readAll();
    input.close(); // The result may replace it, which Windows allows for closed files only.
    const QList<QByteArray> line = content.split('\n')[0].split(' ');
    const QByteArray command = line[0];
    const QByteArray argument = line.value(1);
    Misbehave(command, task);
    if (command == "garbage") {
        Say(QByteArray(100, '\xFF'));
        SleepForEver();
    } else if (command == "alien") {
        Report report;
        report.number = task.number + 1;
        Say(FrameFromWorker(report));
        SleepForEver();
    } else if (command == "flood") {
        Say(QByteArray("\x0F\0\0\0", 4));
        for (;;) {
            Say(QByteArray(1 << 20, 'x'));
        }
    } else if (command == "wait") {
        while (!QFile::exists(QString::fromUtf8(argument))) {
            QThread::msleep(5);
        }
    } else if (command == "format" && task.format != QString::fromUtf8(argument)) {
        return Failure(BatchJob::PolicyKind::WriteToFormat, ZTBatchMessage::UnsupportedOutputFormat,
                       QString::fromUtf8(argument));
    }
    const QList<QByteArray> cases{"", "input", "output", "processing", "naming", "write"};
    const int kind = cases.indexOf(command);
    if (kind > 0) {
        return Failure(BatchJob::PolicyKind(kind - 1), argument.toInt());
    }
    if (command == "detail") {
        Report report = Failure(BatchJob::PolicyKind::Input, ZTBatchMessage::ReadFileError);
        report.detail = QString::fromUtf8(content.mid(command.size() + 1));
        return report;
    }
    Report report = WriteResult(task, command == "describe" ? Description() : content);
    if (command == "warn") {
        report.warnings.append({BatchJob::WarningKindOf(QString::fromUtf8(argument)),
                                QString::fromUtf8(content.mid(command.size() + argument.size() + 2))});
    }
    if (command == "claim") {
        report.facts = {QSize(-5, 7), QSize(2'000'000'000, 1), 0, 101, -1'000'000};
    }
    return report;
}

Report Probe(const ProbeTask& task)
{
    Report report;
    QFile input(task.inputFile);
    if (!input.open(QIODevice::ReadOnly)) {
        return Failure(BatchJob::PolicyKind::Input, ZTBatchMessage::ReadFileError);
    }
    const QByteArray command = input.readLine().trimmed();
    if (command == "crashprobe") {
        CrashQuietly();
        Crash();
    } else if (command == "hangprobe") {
        SleepForEver();
    } else if (command == "eatprobe") {
        EatMemory();
    }
    report.inputFormat = QStringLiteral("PSD");
    report.nearestFormat = QStringLiteral("PNG");
    report.captured = QDateTime(QDate(2024, 5, 1), QTime(10, 20, 30));
    report.facts.inputSize = QSize(64, 48);
    return report;
}

QByteArray FirstLine(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readLine().trimmed() : QByteArray();
}

void Handle(const ToWorker& message)
{
    static QByteArray held;
    QByteArray answer;
    QByteArray command;
    if (const auto* task = std::get_if<PictureTask>(&message)) {
        Say(FrameFromWorker(Beginning{task->number}));
        Report report = Make(*task);
        report.number = task->number;
        answer = FrameFromWorker(report);
        command = FirstLine(task->inputFile);
    } else if (const auto* probe = std::get_if<ProbeTask>(&message)) {
        Say(FrameFromWorker(Beginning{probe->number}));
        Report report = Probe(*probe);
        report.number = probe->number;
        answer = FrameFromWorker(report);
    } else {
        if (IsTold("job.script")) {
            std::_Exit(4);
        }
        return;
    }
    if (command == "held") {
        held += answer;
        return;
    }
    Say(held + answer);
    held.clear();
    if (command == "late garbage") {
        Say(QByteArray(100, '\xFF'));
        SleepForEver();
    } else if (command == "late crash") {
        CrashQuietly();
        Crash();
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    PrepareStreams();
    if (IsTold("start.script")) {
        std::fprintf(stderr, "told to end\n");
        return 4;
    }
    Report ready;
    ready.number = workerIsReady;
    Say(FrameFromWorker(ready));

    FrameReader reader;
    char buffer[65536];
    for (int count = ReadInput(buffer, sizeof(buffer)); count > 0; count = ReadInput(buffer, sizeof(buffer))) {
        reader.Append(QByteArray(buffer, count));
        for (auto message = reader.NextToWorker(); message; message = reader.NextToWorker()) {
            Handle(*message);
        }
    }
    return 0;
}
