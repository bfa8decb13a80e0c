// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SingleInstance.h"

#include "DesktopNames.h"
#include "InstancePlace.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QLocalSocket>
#include <QThread>

namespace BatchDesktop {

namespace {

constexpr int patience = 5'000;             // ms, for an answer of the first one
constexpr int mostBytes = 16 * 1024 * 1024; // of arguments
constexpr char answer = '1';

/// It tells users and folders apart: on Windows pipes belong to the whole machine.
QString NameFor(const QString& settingsFolder)
{
    const QString whose = QDir::homePath() + QLatin1Char('\n') + QDir(settingsFolder).absolutePath();
    constexpr int digits = 16; // The path of a socket has little room.
    const QByteArray hash = QCryptographicHash::hash(whose.toUtf8(), QCryptographicHash::Sha256).toHex().left(digits);
    return desktopId + QLatin1Char('-') + QString::fromLatin1(hash);
}

/// Each argument ends with a zero byte, which no argument has, and one more ends the message.
QByteArray MessageOf(const QStringList& arguments)
{
    QByteArray message;
    for (const QString& argument : arguments) {
        message += argument.toUtf8() + '\0';
    }
    return message + '\0';
}

bool IsWhole(const QByteArray& message)
{
    return message == QByteArray(1, '\0') || message.endsWith(QByteArray(2, '\0'));
}

QStringList PathsOf(const QByteArray& message)
{
    QStringList arguments;
    for (const QByteArray& argument : message.split('\0')) {
        if (!argument.isEmpty()) {
            arguments += QString::fromUtf8(argument);
        }
    }
    return arguments;
}

} // namespace

SingleInstance::SingleInstance(const QString& settingsFolder, QObject* parent)
    : QObject(parent)
    , name(NameFor(settingsFolder))
    , lock(QDir(InstancePlace::Folder()).filePath(name + QStringLiteral(".lock")))
{
    lock.setStaleLockTime(0); // A lock is stale when its process is gone, however old it is.
    server.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&server, &QLocalServer::newConnection, this, &SingleInstance::OnConnection);
}

SingleInstance::Place SingleInstance::Begin(const QStringList& arguments)
{
    QElapsedTimer clock;
    clock.start();
    do {
        if (lock.tryLock(0)) {
            QLocalServer::removeServer(InstancePlace::Socket(name)); // It may be left by one that was killed.
            return server.listen(InstancePlace::Socket(name)) ? Place::First : Place::Alone;
        }
        if (lock.error() != QLockFile::LockFailedError) {
            return Place::Alone;
        }
        if (HandOver(arguments)) {
            return Place::Second;
        }
        constexpr unsigned long pause = 20; // ms; the first one may be about to listen, or to end
        QThread::msleep(pause);
    } while (clock.elapsed() < patience);
    return Place::Alone;
}

bool SingleInstance::HandOver(const QStringList& arguments) const
{
    QLocalSocket socket;
    socket.connectToServer(InstancePlace::Socket(name));
    if (!socket.waitForConnected(patience)) {
        return false;
    }
    const QByteArray message = MessageOf(arguments);
    if (message.size() > mostBytes) {
        return false;
    }
    InstancePlace::LetOthersComeToFront();
    socket.write(message);
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(patience)) {
            return false;
        }
    }
    return socket.waitForReadyRead(patience) && socket.read(1) == QByteArray(1, answer);
}

void SingleInstance::OnConnection()
{
    while (QLocalSocket* const socket = server.nextPendingConnection()) {
        socket->setParent(this);
        socket->setReadBufferSize(mostBytes + 1);
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        const auto read = [this, socket] {
            const QByteArray message = socket->peek(mostBytes + 1);
            if (message.size() > mostBytes) {
                socket->abort();
            } else if (IsWhole(message)) {
                socket->readAll();
                socket->write(&answer, 1);
                socket->flush();
                Q_EMIT Started(PathsOf(message));
            }
        };
        connect(socket, &QLocalSocket::readyRead, this, read);
        read(); // What has come already.
    }
}

} // namespace BatchDesktop
