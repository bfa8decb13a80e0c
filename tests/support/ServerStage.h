#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// The test's side of the scripted server beside its executable, see ScriptedServer: gives it its script and reads what
/// it writes down. Made first thing in a test; at its end no server is left.
class ServerStage
{
public:
    ServerStage();
    ~ServerStage();

    /// The rules for every server that starts from now on.
    void Play(const QStringList& rules);

    /// The server's executable; takes it away and puts it back.
    static QString ServerPath();
    void HideServer();
    void ShowServer();

    /// The events of all servers so far, in order.
    QStringList Events() const;
    int Count(const QString& event) const;

    /// The bytes that came on the n-th connection.
    QByteArray Received(int connection = 1) const;

    /// The identifier in the first message of the first connection, which creates a session; empty before it came.
    QString SessionId() const;

    /// The servers that live now.
    QList<qint64> LivingServers() const;

private:
    Q_DISABLE_COPY(ServerStage)

    void RemoveRecords();
};
