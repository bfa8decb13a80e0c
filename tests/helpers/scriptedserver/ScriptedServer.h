#pragma once

#include "ServerScript.h"

#include <QByteArray>
#include <QHash>
#include <QLocalServer>
#include <QObject>
#include <QStringList>

class QLocalSocket;

/// A batch server that does what its script says and nothing by itself, except to end on message 21 when no rule speaks
/// of it. What happens is written down beside the executable: events as lines of "<executable>.events", the bytes of
/// the n-th connection in "<executable>.in.<n>".
///
/// Actions:
///
///     open              opens the pipe that the argument names
///     close             stops listening; connections stay
///     wait MS           does nothing for so long; what is triggered meanwhile waits too
///     send NAME FIELDS  a message on the latest connection, see Wire::Payload()
///     cut BYTES NAME .. the first bytes of such a message only
///     raw HEX           bytes on the latest connection
///     flood COUNT       progress messages 0 to COUNT - 1 in one burst; the event "flood NS" tells when it began
///     note TEXT         an event
///     disconnect        drops the latest connection
///     next              servers that start from now on play "<executable>.script.next"
///     exit CODE, crash, abort, hang
class ScriptedServer : public QObject
{
    Q_OBJECT

public:
    ScriptedServer(const QString& basePath, const QString& pipeName);

    void Begin();

private:
    void Trigger(const QString& trigger);
    void DoPending();
    void Do(const QString& action);
    void Open();
    void OnConnection();
    void OnBytes(QLocalSocket* socket, int number);
    void OnMessage(const QString& name, const QByteArray& payload);
    void Write(const QByteArray& bytes);
    void Flood(int count);
    void Note(const QString& event);

    QString m_basePath;
    QString m_pipeName;
    ServerScript m_script;
    QLocalServer m_server;
    QLocalSocket* m_latest = nullptr;
    QHash<QLocalSocket*, QByteArray> m_unparsed;
    QString m_sessionId;
    QStringList m_pending;
    bool m_isWaiting = false;
};
