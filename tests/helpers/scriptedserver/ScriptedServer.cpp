// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ScriptedServer.h"

#include "ProcessEnd.h"
#include "Wire.h"

#include <QCoreApplication>
#include <QFile>
#include <QLocalSocket>
#include <QThread>
#include <QTimer>

#include <chrono>
#include <cstdlib>

namespace {

// Of a host that has made the pipe already, see HostPipe.
constexpr char listenerVariable[] = "VELKORA_BATCH_LISTENER";

/// Appends in one write, so that a reader never sees part of a line.
void Append(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered) ||
        file.write(bytes) != bytes.size()) {
        qFatal("Nothing can be written to %s", qUtf8Printable(path));
    }
}

} // namespace

ScriptedServer::ScriptedServer(const QString& basePath, const QString& pipeName)
    : basePath(basePath)
    , pipeName(pipeName)
    , script(ServerScript::Load(basePath + QStringLiteral(".script")))
{
    connect(&server, &QLocalServer::newConnection, this, &ScriptedServer::OnConnection);
}

void ScriptedServer::Begin()
{
    Note(QStringLiteral("pid %1").arg(QCoreApplication::applicationPid()));
    Note(QStringLiteral("arguments ") + QCoreApplication::arguments().mid(1).join(QLatin1Char('|')));
    Trigger(QStringLiteral("start"));
}

void ScriptedServer::Trigger(const QString& trigger)
{
    pending += script.Actions(trigger);
    DoPending();
}

void ScriptedServer::DoPending()
{
    while (!pending.isEmpty() && !isWaiting) {
        Do(pending.takeFirst());
    }
}

void ScriptedServer::Do(const QString& action)
{
    const QStringList words = action.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    const QString verb = words.value(0);
    if (verb == QLatin1String("open")) {
        Open();
    } else if (verb == QLatin1String("close")) {
        server.close();
    } else if (verb == QLatin1String("wait")) {
        isWaiting = true;
        QTimer::singleShot(words.value(1).toInt(), this, [this] {
            isWaiting = false;
            DoPending();
        });
    } else if (verb == QLatin1String("send")) {
        Write(Wire::Frame(words.value(1), Wire::Payload(words.mid(2), sessionId)));
    } else if (verb == QLatin1String("cut")) {
        Write(Wire::Frame(words.value(2), Wire::Payload(words.mid(3), sessionId)).left(words.value(1).toInt()));
    } else if (verb == QLatin1String("raw")) {
        Write(QByteArray::fromHex(words.value(1).toLatin1()));
    } else if (verb == QLatin1String("flood")) {
        Flood(words.value(1).toInt());
    } else if (verb == QLatin1String("note")) {
        Note(action);
    } else if (verb == QLatin1String("disconnect")) {
        latestConnection->disconnectFromServer();
    } else if (verb == QLatin1String("next")) {
        const QString scriptFile = basePath + QStringLiteral(".script");
        QFile::remove(scriptFile);
        QFile::rename(scriptFile + QStringLiteral(".next"), scriptFile);
    } else if (verb == QLatin1String("exit")) {
        EndAtOnce(words.value(1).toInt());
    } else if (verb == QLatin1String("crash")) {
        Crash();
    } else if (verb == QLatin1String("abort")) {
        std::abort();
    } else if (verb == QLatin1String("hang")) {
        QThread::sleep(600);
    } else {
        qFatal("The script has an unknown action: %s", qUtf8Printable(action));
    }
}

void ScriptedServer::Open()
{
    bool isInherited = false;
    const int inherited = qEnvironmentVariableIntValue(listenerVariable, &isInherited);
    qunsetenv(listenerVariable);
    if (!isInherited) {
        QLocalServer::removeServer(pipeName);
    }
    if (!(isInherited ? server.listen(inherited) : server.listen(pipeName))) {
        qFatal("The pipe cannot be opened: %s", qUtf8Printable(server.errorString()));
    }
    Note(QStringLiteral("open"));
}

void ScriptedServer::OnConnection()
{
    while (QLocalSocket* socket = server.nextPendingConnection()) {
        int number = 1;
        while (QFile::exists(basePath + QStringLiteral(".in.%1").arg(number))) {
            ++number;
        }
        Append(basePath + QStringLiteral(".in.%1").arg(number), QByteArray());
        Note(QStringLiteral("connect %1").arg(number));
        latestConnection = socket;
        connect(socket, &QLocalSocket::readyRead, this, [this, socket, number] { OnBytes(socket, number); });
        connect(socket, &QLocalSocket::disconnected, this,
                [this, number] { Note(QStringLiteral("disconnect %1").arg(number)); });
        Trigger(QStringLiteral("connect"));
        OnBytes(socket, number);
    }
}

void ScriptedServer::OnBytes(QLocalSocket* socket, int number)
{
    const QByteArray bytes = socket->readAll();
    if (bytes.isEmpty()) {
        return;
    }
    Append(basePath + QStringLiteral(".in.%1").arg(number), bytes);
    QByteArray& stream = unparsed[socket];
    stream += bytes;
    QString name;
    QByteArray payload;
    while (Wire::TakeFrame(stream, name, payload)) {
        OnMessage(name, payload, number);
    }
}

void ScriptedServer::OnMessage(const QString& name, const QByteArray& payload, int number)
{
    Note(QStringLiteral("message ") + name);
    if (name == QLatin1String("0")) {
        sessionId = Wire::FirstText(payload);
    }
    if (name == QLatin1String("21") && !script.Has(name)) {
        server.close();
        EndAtOnce(0);
    }
    Trigger(name);
    Trigger(QStringLiteral("%1@%2").arg(name).arg(number));
}

void ScriptedServer::Write(const QByteArray& bytes)
{
    latestConnection->write(bytes);
    latestConnection->flush();
}

void ScriptedServer::Flood(int count)
{
    QByteArray burst;
    for (int i = 0; i < count; ++i) {
        burst += Wire::Frame(QStringLiteral("7"), Wire::Text(sessionId) + Wire::Int(i));
    }
    // The receiving process uses the same clock.
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    Note(QStringLiteral("flood %1").arg(std::chrono::duration_cast<std::chrono::nanoseconds>(now).count()));
    Write(burst);
}

void ScriptedServer::Note(const QString& event)
{
    Append(basePath + QStringLiteral(".events"), event.toUtf8() + '\n');
}
