// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "AccidentStage.h"

#include "ProcessEnd.h"
#include "ProgramFiles.h"

#include "job/values/PathVariable.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTest>

namespace {

constexpr int patience = 240'000; // ms

void Place(const QString& built, const QString& folder, const QString& name)
{
    if (!QFile::copy(BuiltProgram(built), QDir(folder).filePath(ProgramFileName(name)))) {
        qFatal("%s cannot be copied", qUtf8Printable(built));
    }
}

} // namespace

AccidentStage::AccidentStage()
    : environment(QProcessEnvironment::systemEnvironment())
    , program(BuiltProgram(QStringLiteral("velkora-batch")))
{
    QDir().mkpath(Path(QStringLiteral("tmp")));
    for (const char* const name : BatchJob::TemporaryFolderVariables()) {
        environment.insert(QLatin1String(name), QDir::toNativeSeparators(Path(QStringLiteral("tmp"))));
    }
#ifdef Q_OS_WIN
    // Windows finds libraries beside the executable or on this path.
    environment.insert(QStringLiteral("PATH"), QDir::toNativeSeparators(QCoreApplication::applicationDirPath()) +
                                                   QLatin1Char(';') + environment.value(QStringLiteral("PATH")));
#endif
}

AccidentStage::~AccidentStage()
{
    if (process && process->state() != QProcess::NotRunning) {
        Kill();
    }
}

QString AccidentStage::Write(const QString& name, const QByteArray& content) const
{
    const QString path = Path(name);
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) ||
        file.write(content) != content.size()) {
        qFatal("%s cannot be written", qUtf8Printable(path));
    }
    return path;
}

QByteArray AccidentStage::Content(const QString& name) const
{
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? QByteArray("") + file.readAll() : QByteArray();
}

QStringList AccidentStage::Names(const QString& folder) const
{
    return QDir(Path(folder))
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

void AccidentStage::UseStandIn()
{
    const QString folder = Path(QStringLiteral("programs"));
    QDir().mkpath(folder);
    Place(QStringLiteral("velkora-batch"), folder, QStringLiteral("velkora-batch"));
    Place(QStringLiteral("VelkoraBatchProcessing"), folder, QStringLiteral("VelkoraBatchProcessing"));
    Place(QStringLiteral("standinworker"), folder, QStringLiteral("VelkoraBatchWorker"));
    program = QDir(folder).filePath(ProgramFileName(QStringLiteral("velkora-batch")));
}

void AccidentStage::Start(const QStringList& arguments)
{
    out.clear();
    err.clear();
    process = std::make_unique<QProcess>();
    process->setProcessEnvironment(environment);
    process->start(program, arguments + QStringList{QStringLiteral("--json"), QStringLiteral("--settings"),
                                                    Path(QStringLiteral("settings"))});
    process->closeWriteChannel();
}

bool AccidentStage::WaitFor(const QByteArray& text, int count)
{
    while (out.count(text) < count) {
        if (!process->waitForReadyRead(patience)) {
            err += process->readAllStandardError();
            return false;
        }
        out += process->readAllStandardOutput();
    }
    return true;
}

int AccidentStage::End()
{
    const bool hasEnded = process->waitForFinished(patience) && process->exitStatus() == QProcess::NormalExit;
    out += process->readAllStandardOutput();
    err += process->readAllStandardError();
    return hasEnded ? process->exitCode() : -1;
}

int AccidentStage::Run(const QStringList& arguments)
{
    Start(arguments);
    return End();
}

bool AccidentStage::Kill()
{
    const qint64 server = Server();
    process->kill();
    return process->waitForFinished(patience) && server != 0 &&
           QTest::qWaitFor([server] { return !IsProcessAlive(server); }, patience);
}

QList<qint64> AccidentStage::Workers() const
{
    return ChildrenOf(Server());
}

qint64 AccidentStage::Server() const
{
    return ChildrenOf(process->processId()).value(0);
}
