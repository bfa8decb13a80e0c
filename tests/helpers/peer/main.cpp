// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// The other end of a pipe, in a process of its own: a bare local socket. It executes the commands on its standard
// input, one per line, and answers each with one line. It knows no messages, only the bytes that the tests give it.
//
//   listen NAME          opens the pipe NAME                          ok
//   accept               waits for a connection                       ok
//   connect NAME         connects to the pipe NAME                    ok
//   write HEX            writes the bytes, answers when all are sent  ok
//   dribble HEX          the same, each byte on its own               ok
//   fill PREFIX COUNT    writes the bytes PREFIX, then COUNT times the bytes 0 to 255 in turn   ok
//   read COUNT           reads exactly COUNT bytes                    HEX
//   check COUNT          reads exactly COUNT bytes of "fill"          ok
//   closed               waits until the other end has disconnected   ok
//   disconnect           closes the connection                        ok
//   die                  ends without closing anything
//
// Every wait ends after 30 seconds with an answer that begins with "error".

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStringList>

#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

namespace {

constexpr int waitLimit = 30000;
constexpr qint64 blockSize = 1 << 16;

class Peer
{
public:
    QByteArray Do(const QList<QByteArray>& words);

private:
    bool Write(const QByteArray& bytes);
    QByteArray Read(qint64 count);
    QByteArray Fill(const QByteArray& prefix, qint64 count);
    QByteArray Check(qint64 count);

    QLocalServer server;
    std::unique_ptr<QLocalSocket> connection;
};

QByteArray Pattern(qint64 offset, qint64 count)
{
    QByteArray bytes(static_cast<int>(count), Qt::Uninitialized);
    for (int i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>((offset + i) & 0xFF);
    }
    return bytes;
}

QByteArray Answer(bool good, const QString& error)
{
    return good ? QByteArrayLiteral("ok") : "error " + error.toUtf8();
}

bool Peer::Write(const QByteArray& bytes)
{
    connection->write(bytes);
    while (connection->bytesToWrite() > 0) {
        if (!connection->waitForBytesWritten(waitLimit)) {
            return false;
        }
    }
    return true;
}

QByteArray Peer::Read(qint64 count)
{
    while (connection->bytesAvailable() < count) {
        if (!connection->waitForReadyRead(waitLimit)) {
            break;
        }
    }
    return connection->read(count);
}

QByteArray Peer::Fill(const QByteArray& prefix, qint64 count)
{
    bool good = Write(prefix);
    for (qint64 offset = 0; good && offset < count; offset += blockSize) {
        good = Write(Pattern(offset, std::min(blockSize, count - offset)));
    }
    return Answer(good, connection->errorString());
}

QByteArray Peer::Check(qint64 count)
{
    for (qint64 offset = 0; offset < count;) {
        const qint64 step = std::min(blockSize, count - offset);
        if (Read(step) != Pattern(offset, step)) {
            return "error other bytes than expected after " + QByteArray::number(offset);
        }
        offset += step;
    }
    return QByteArrayLiteral("ok");
}

QByteArray Peer::Do(const QList<QByteArray>& words)
{
    const QByteArray command = words.value(0);
    const QByteArray argument = words.value(1);
    if (command == "listen") {
        // A peer that was killed has left its socket file behind.
        QLocalServer::removeServer(QString::fromUtf8(argument));
        return Answer(server.listen(QString::fromUtf8(argument)), server.errorString());
    }
    if (command == "accept") {
        const bool good = server.hasPendingConnections() || server.waitForNewConnection(waitLimit);
        connection.reset(good ? server.nextPendingConnection() : nullptr);
        return Answer(good, server.errorString());
    }
    if (command == "connect") {
        connection = std::make_unique<QLocalSocket>();
        connection->connectToServer(QString::fromUtf8(argument));
        return Answer(connection->waitForConnected(waitLimit), connection->errorString());
    }
    if (command == "die") {
        std::_Exit(3);
    }
    if (!connection) {
        return QByteArrayLiteral("error no connection");
    }
    if (command == "write") {
        return Answer(Write(QByteArray::fromHex(argument)), connection->errorString());
    }
    if (command == "dribble") {
        bool good = true;
        for (const char byte : QByteArray::fromHex(argument)) {
            good = good && Write(QByteArray(1, byte));
        }
        return Answer(good, connection->errorString());
    }
    if (command == "fill") {
        return Fill(QByteArray::fromHex(argument), words.value(2).toLongLong());
    }
    if (command == "read") {
        return Read(argument.toLongLong()).toHex();
    }
    if (command == "check") {
        return Check(argument.toLongLong());
    }
    if (command == "closed") {
        const bool good =
            connection->state() == QLocalSocket::UnconnectedState || connection->waitForDisconnected(waitLimit);
        return Answer(good, connection->errorString());
    }
    if (command == "disconnect") {
        connection.reset();
        return QByteArrayLiteral("ok");
    }
    return "error unknown command " + command;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Peer peer;
    std::string line;
    while (std::getline(std::cin, line)) {
        const QByteArray answer = peer.Do(QByteArray::fromStdString(line).split(' '));
        std::cout << answer.constData() << std::endl;
    }
    return 0;
}
