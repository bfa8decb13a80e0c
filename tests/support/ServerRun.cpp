// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerRun.h"

#include "ProcessEnd.h"
#include "ProgramFiles.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTest>

#include <algorithm>
#include <filesystem>
#include <system_error>

#ifdef Q_OS_WIN
#include <qt_windows.h>
// After it.
#include <psapi.h>
#else
#include <csignal>
#include <sys/types.h>
#endif

namespace {

constexpr int patience = 30000; // ms

const QString serverFile = ProgramFileName(QStringLiteral("VelkoraBatchProcessing"));
const QString workerFile = ProgramFileName(QStringLiteral("VelkoraBatchWorker"));
const QString pipeName = QStringLiteral("\\\\.\\pipe\\VelkoraBatchProcessing");

void Place(const QString& from, const QString& to)
{
#ifndef Q_OS_WIN // It would not remove a link to an executable that runs.
    std::error_code error;
    std::filesystem::create_hard_link(from.toStdString(), to.toStdString(), error);
    if (!error) {
        return;
    }
#endif
    if (!QFile::copy(from, to)) {
        qFatal("%s cannot be copied", qPrintable(from));
    }
}

} // namespace

ServerRun::ServerRun(Worker worker)
    : environment(QProcessEnvironment::systemEnvironment())
{
    Place(BuiltProgram(QStringLiteral("VelkoraBatchProcessing")), Path(serverFile));
    if (worker != Worker::Missing) {
        const QString name = worker == Worker::Real      ? QStringLiteral("VelkoraBatchWorker")
                             : worker == Worker::StandIn ? QStringLiteral("standinworker")
                                                         : QStringLiteral("lyingworker");
        Place(BuiltProgram(name), Path(workerFile));
    }
    environment.insert(QStringLiteral("VELKORA_BATCH_WORKERS"), QStringLiteral("2"));
    connect(&server, &QProcess::readyReadStandardError, this,
            [this] { errors += QString::fromUtf8(server.readAllStandardError()); });
}

ServerRun::~ServerRun()
{
    // The session waits until its last messages are written.
    pipe.reset();
    if (server.state() != QProcess::NotRunning) {
        server.kill();
        server.waitForFinished();
    }
}

QString ServerRun::Write(const QString& name, const QByteArray& content)
{
    const QString path = Path(name);
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) ||
        file.write(content) != content.size()) {
        qFatal("%s cannot be written", qPrintable(path));
    }
    return path;
}

QByteArray ServerRun::Content(const QString& name) const
{
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? QByteArray("") + file.readAll() : QByteArray();
}

QStringList ServerRun::Names(const QString& folderName) const
{
    return QDir(Path(folderName))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

bool ServerRun::Start()
{
    if (!StartServer() || !Connect()) {
        return false;
    }
    Send<ZTBatchMessage::MsgCreateSession>();
    return true;
}

bool ServerRun::StartServer()
{
    server.setProcessEnvironment(environment);
    server.start(Path(serverFile), {pipeName});
    if (!server.waitForStarted(patience)) {
        qWarning("%s: %s", qPrintable(server.program()), qPrintable(server.errorString()));
        return false;
    }
    return true;
}

bool ServerRun::Connect()
{
    // The server needs a moment to open its pipe; each attempt is a new session.
    return QTest::qWaitFor(
        [this] {
            pipe = std::make_unique<ZTPipeSession>(pipeName, nullptr);
            if (!pipe->WaitForConnected(0)) {
                return false;
            }
            connect(pipe.get(), &ZTPipeSession::IncomingMessage, this, &ServerRun::Note);
            connect(pipe.get(), &ZTPipeSession::SessionDown, this, [this] { lines.append(QStringLiteral("down")); });
            return true;
        },
        patience);
}

bool ServerRun::KillServer()
{
#ifdef Q_OS_UNIX
    // It starts no further process while somebody counts them.
    ::kill(pid_t(server.processId()), SIGSTOP);
#endif
    const QList<qint64> children = WorkerIds();
    server.kill();
    return server.waitForFinished(patience) &&
           QTest::qWaitFor([&] { return std::all_of(children.begin(), children.end(), HasEnded); }, patience);
}

QString ServerRun::Job(const QStringList& inputs, const std::function<void(ZTBatchDocument&)>& change) const
{
    ZTBatchDocument job;
    ZTBatchOutputSettings& settings = *job.GetOutputSettings();
    settings.SetPath(Path(QStringLiteral("out")));
    settings.SetFormat(QStringLiteral("JPEG"), {});
    settings.SetNamingTemplate(ZTBatchOutputSettings::PartMiddle, ZTBatchOutputSettings::TemplateOriginalName);
    settings.SetNamingTemplate(ZTBatchOutputSettings::PartSuffix, ZTBatchOutputSettings::TemplateNothing);
    int number = 0;
    for (const QString& input : inputs) {
        auto* const node = new TreeNode<BatchNodeData>;
        // The nodes are sorted by this text.
        node->data.inputText = QStringLiteral("%1").arg(number++, 6, 10, QLatin1Char('0'));
        node->data.fileName = input;
        node->data.type = File;
        node->data.fileNodesCount = 1;
        job.GetInputModel()->InsertBranch(node, QModelIndex());
    }
    if (change) {
        change(job);
    }
    return job.Serialize(nullptr);
}

void ServerRun::Process(const QString& job, const Policies& policies)
{
    Send<ZTBatchMessage::MsgProcess>(job, policies.input, policies.output, policies.processing, policies.naming,
                                     policies.format);
}

void ServerRun::SendRaw(ZTBatchMessage::Message message, const QByteArray& payload)
{
    pipe->Send(ZTBatchMessage::Name(message), payload);
}

bool ServerRun::WaitFor(const QString& line)
{
    return QTest::qWaitFor([&] { return Count(line) > 0; }, patience);
}

int ServerRun::WaitForEnd()
{
    const bool hasEnded = QTest::qWaitFor([this] { return server.state() == QProcess::NotRunning; }, patience) &&
                          server.exitStatus() == QProcess::NormalExit;
    return hasEnded ? server.exitCode() : -1;
}

QStringList ServerRun::Lines(const QString& begin) const
{
    QStringList found;
    for (const QString& line : lines) {
        if (line.startsWith(begin)) {
            found.append(line);
        }
    }
    return found;
}

QString ServerRun::Report() const
{
    return lines.join(QLatin1Char('\n')) + QStringLiteral("\nserver says: ") + errors;
}

bool ServerRun::HasEnded(qint64 process)
{
    return !IsProcessAlive(process);
}

QList<qint64> ServerRun::WorkerIds() const
{
    return server.state() == QProcess::NotRunning ? QList<qint64>() : ChildrenOf(server.processId());
}

qint64 ServerRun::PeakMemory() const
{
#ifdef Q_OS_WIN
    const HANDLE process =
        OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION | PROCESS_VM_READ, FALSE, DWORD(server.processId()));
    PROCESS_MEMORY_COUNTERS counters = {};
    const bool isKnown = process && GetProcessMemoryInfo(process, &counters, sizeof(counters));
    CloseHandle(process);
    return isKnown ? qint64(counters.PeakWorkingSetSize) : 0;
#else
    QFile status(QStringLiteral("/proc/%1/status").arg(server.processId()));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:")) {
            return line.simplified().split(' ').value(1).toLongLong() * 1024;
        }
    }
    return 0;
#endif
}

QString ServerRun::Short(const QString& path) const
{
    const QString root = Path(QString()) + QLatin1Char('/');
    return path.startsWith(root) ? path.mid(root.size()) : path;
}

void ServerRun::Note(const QString& name, const QByteArray& payload)
{
    using namespace ZTBatchPayload;
    switch (ZTBatchMessage::FromName(name)) {
    case ZTBatchMessage::MsgFinished:
        lines.append(QStringLiteral("finished"));
        break;
    case ZTBatchMessage::MsgProgress:
        lines.append(QStringLiteral("progress %1").arg(Unpack<Progress>(payload).value));
        break;
    case ZTBatchMessage::MsgFileInProgress:
        lines.append(QStringLiteral("file [%1]").arg(Short(Unpack<InputFile>(payload).inputFileName)));
        break;
    case ZTBatchMessage::MsgFileProcessed: {
        const auto files = Unpack<FilePair>(payload);
        lines.append(
            QStringLiteral("processed [%1] [%2]").arg(Short(files.inputFileName), Short(files.outputFileName)));
        break;
    }
    case ZTBatchMessage::MsgLog:
        lines.append(QStringLiteral("log ") +
                     Unpack<Log>(payload).text.replace(Path(QString()) + QLatin1Char('/'), QString()));
        break;
    case ZTBatchMessage::MsgProgressRange: {
        const auto range = Unpack<ProgressRange>(payload);
        lines.append(QStringLiteral("range %1 %2").arg(range.minimum).arg(range.maximum));
        break;
    }
    case ZTBatchMessage::MsgPaused:
        lines.append(QStringLiteral("paused"));
        break;
    case ZTBatchMessage::MsgResumed:
        lines.append(QStringLiteral("resumed"));
        break;
    case ZTBatchMessage::MsgCancelled:
        lines.append(QStringLiteral("cancelled"));
        break;
    case ZTBatchMessage::MsgError: {
        const auto error = Unpack<Error>(payload);
        lines.append(QStringLiteral("error [%1] [%2] %3 %4")
                         .arg(Short(error.inputFileName), Short(error.outputFileName))
                         .arg(error.action)
                         .arg(error.errorCode));
        break;
    }
    case ZTBatchMessage::MsgInputQuestion:
        lines.append(QStringLiteral("input question"));
        break;
    case ZTBatchMessage::MsgOutputQuestion:
        lines.append(QStringLiteral("output question"));
        break;
    case ZTBatchMessage::MsgProcessingQuestion:
        lines.append(QStringLiteral("processing question"));
        break;
    case ZTBatchMessage::MsgNamingQuestion:
        lines.append(QStringLiteral("naming question"));
        break;
    case ZTBatchMessage::MsgWriteToFormatQuestion:
        lines.append(QStringLiteral("format question"));
        break;
    default:
        lines.append(QStringLiteral("unexpected message ") + name);
        break;
    }
}
