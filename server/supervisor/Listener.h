#pragma once

#include <QLocalServer>
#include <QObject>
#include <QString>

class QLocalSocket;

namespace BatchSupervisor {

/// The end of the pipe that hosts connect to. Only processes of this user get through.
class Listener : public QObject
{
    Q_OBJECT

public:
    explicit Listener(QObject* parent = nullptr);

    /// Opens the pipe. What is left of a server that has gone is removed; a server that lives is left alone, and then
    /// this returns false. See Error().
    bool Listen(const QString& pipeName);

    QString Error() const { return error; }

    void Close() { server.close(); }

Q_SIGNALS:
    /// A host has connected. The receiver owns the socket.
    void Connected(QLocalSocket* socket);

private:
    void Accept();

    QLocalServer server;
    QString error;
};

} // namespace BatchSupervisor
