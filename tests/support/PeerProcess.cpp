// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PeerProcess.h"

#include "ProgramFiles.h"

#include <QDeadlineTimer>
#include <QDebug>

namespace {
constexpr int answerLimit = 40000;
}

PeerProcess::PeerProcess()
{
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(BuiltProgram(QStringLiteral("peer")), QStringList());
    if (!process.waitForStarted()) {
        qFatal("The peer process did not start: %s", qUtf8Printable(process.errorString()));
    }
}

PeerProcess::~PeerProcess()
{
    if (process.state() == QProcess::NotRunning) {
        return;
    }
    process.closeWriteChannel();
    if (!process.waitForFinished(5000)) {
        process.kill();
        process.waitForFinished();
    }
}

bool PeerProcess::Do(const QString& command)
{
    const QByteArray answer = Ask(command);
    if (answer != "ok") {
        qWarning().noquote() << "peer:" << command.left(60) << "->" << answer;
    }
    return answer == "ok";
}

QByteArray PeerProcess::Read(int count)
{
    return QByteArray::fromHex(Ask(QStringLiteral("read %1").arg(count)));
}

bool PeerProcess::Write(const QByteArray& bytes)
{
    return Do(QStringLiteral("write ") + QString::fromLatin1(bytes.toHex()));
}

void PeerProcess::Die()
{
    process.write("die\n");
    process.waitForFinished();
}

QByteArray PeerProcess::Ask(const QString& command)
{
    process.write(command.toUtf8() + '\n');
    const QDeadlineTimer deadline(answerLimit);
    while (!process.canReadLine() && process.waitForReadyRead(static_cast<int>(deadline.remainingTime()))) {
    }
    return process.readLine().trimmed();
}
