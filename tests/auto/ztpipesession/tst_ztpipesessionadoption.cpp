#include "DebugLines.h"
#include "PeerProcess.h"
#include "PrivateTempDir.h"
#include "ZTPipeSession.h"

#include <QLocalSocket>
#include <QSignalSpy>
#include <QtTest>

namespace {

// On Windows the temporary folder does not keep the pipes of tests apart, so their names do.
const QString pipeName = QStringLiteral("adoption-%1").arg(QCoreApplication::applicationPid());

/// "a", "bcd"
const QByteArray frame = QByteArray::fromHex("00000002"
                                             "0061"
                                             "00000003"
                                             "626364");

/// Queues an error for the worker that adopts it at the moment at which the worker leaves for the session's thread, and
/// so before anything runs there.
class TroubledSocket : public QLocalSocket
{
protected:
    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::ThreadChange && parent() != nullptr) {
            isErrorQueued = QMetaObject::invokeMethod(
                parent(), "OnError", Qt::QueuedConnection,
                Q_ARG(QLocalSocket::LocalSocketError, QLocalSocket::UnsupportedSocketOperationError));
        }
        return QLocalSocket::event(event);
    }

public:
    bool isErrorQueued = false;
};

} // namespace

/// What an adopted socket may have gone through before its session's thread runs.
class tst_ZTPipeSessionAdoption : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void errorBeforeTheThreadRuns();
};

void tst_ZTPipeSessionAdoption::errorBeforeTheThreadRuns()
{
    qRegisterMetaType<QLocalSocket::LocalSocketError>("QLocalSocket::LocalSocketError");
    const PrivateTempDir folder;
    const DebugLines lines;
    PeerProcess peer;
    QVERIFY(peer.Do(QStringLiteral("listen ") + pipeName));
    auto* const socket = new TroubledSocket;
    socket->connectToServer(pipeName);
    QVERIFY(peer.Do(QStringLiteral("accept")));
    QVERIFY(socket->waitForConnected());

    ZTPipeSession session(socket, nullptr);
    QVERIFY(socket->isErrorQueued);
    QSignalSpy messages(&session, &ZTPipeSession::IncomingMessage);
    QTRY_COMPARE(lines.CountEndingWith(QStringLiteral("] Socket error: 10")), 1);
    // The socket is connected still, and is read whatever the state says.
    QVERIFY(!session.IsConnected());
    QVERIFY(peer.Write(frame));
    QTRY_COMPARE(messages.count(), 1);
    QCOMPARE(messages.at(0), (QVariantList{QStringLiteral("a"), QByteArrayLiteral("bcd")}));
}

QTEST_GUILESS_MAIN(tst_ZTPipeSessionAdoption)
#include "tst_ztpipesessionadoption.moc"
