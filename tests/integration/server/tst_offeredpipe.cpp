// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PrivateTempDir.h"
#include "ProgramFiles.h"

#include "hosts/common/OfferedPipe.h"
#include "server/protocol/HostPipe.h"

#include "ZTBatchMessage.h"
#include "ZTBatchPayload.h"
#include "ZTPipeSession.h"

#include <QDir>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QtTest>

#include <optional>
#include <unistd.h>

using namespace BatchProtocol;

/// A pipe that the host makes and the server takes over, with the real server.
class tst_OfferedPipe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void serverTakesOver();
    void onlyItsUserMayConnect();
    void serversThatEndAreNoticed();
    void whatIsNoPipeIsIgnored_data();
    void whatIsNoPipeIsIgnored();
    void othersPipesAreClosed();
    void pipesThatAnswerStay();
    void socketsOfDeadServersAreReplaced();
    void tooLongPathsAreLeftToTheServer();

private:
    void StartServer();
    bool EndsAfter(ZTPipeSession& pipe);

    std::unique_ptr<PrivateTempDir> folder;
    std::unique_ptr<QProcess> server;
};

namespace {

constexpr int patience = 30'000;

bool CanConnect()
{
    QLocalSocket socket;
    socket.connectToServer(HostPipe::Name());
    return socket.state() == QLocalSocket::ConnectedState;
}

/// A descriptor that child processes inherit, for the life of this object.
class InheritedCopy
{
public:
    explicit InheritedCopy(qintptr original)
        : descriptor(::dup(int(original)))
    {
        qputenv(HostPipe::listenerVariable, QByteArray::number(descriptor));
    }

    ~InheritedCopy()
    {
        qunsetenv(HostPipe::listenerVariable);
        ::close(descriptor);
    }

private:
    Q_DISABLE_COPY(InheritedCopy)

    const int descriptor;
};

} // namespace

void tst_OfferedPipe::init()
{
    folder = std::make_unique<PrivateTempDir>();
    server = std::make_unique<QProcess>();
    server->setProcessChannelMode(QProcess::ForwardedChannels);
}

void tst_OfferedPipe::cleanup()
{
    server.reset();
    qunsetenv(HostPipe::listenerVariable);
    folder.reset();
}

void tst_OfferedPipe::StartServer()
{
    server->start(BuiltProgram(QStringLiteral("VelkoraBatchProcessing")), {HostPipe::Name()});
    QVERIFY(server->waitForStarted(patience));
}

/// Whether the server at the other end ends as it is told.
bool tst_OfferedPipe::EndsAfter(ZTPipeSession& pipe)
{
    pipe.Send(ZTBatchMessage::Name(ZTBatchMessage::MsgCloseServer),
              ZTBatchPayload::Pack(ZTBatchPayload::ToServer<ZTBatchMessage::MsgCloseServer>{}));
    return server->waitForFinished(patience) && server->exitStatus() == QProcess::NormalExit && server->exitCode() == 0;
}

void tst_OfferedPipe::serverTakesOver()
{
    std::optional<BatchHost::OfferedPipe> offered(std::in_place);
    ZTPipeSession early(HostPipe::Name(), nullptr);
    QVERIFY(early.WaitForConnected(patience));
    StartServer();
    offered.reset();
    QVERIFY(!qEnvironmentVariableIsSet(HostPipe::listenerVariable));
    ZTPipeSession late(HostPipe::Name(), nullptr);
    QVERIFY(late.WaitForConnected(patience));
    QVERIFY(EndsAfter(early));
    QVERIFY(!QFileInfo::exists(HostPipe::SocketPath(HostPipe::Name())));
}

void tst_OfferedPipe::onlyItsUserMayConnect()
{
    const BatchHost::OfferedPipe offered;
    const QFileInfo socket(HostPipe::SocketPath(HostPipe::Name()));
    QVERIFY(socket.exists());
    constexpr auto others =
        QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    QCOMPARE(int(socket.permissions() & others), 0);
}

// The host is connected before the server runs. If the server does not start, the connection closes.
void tst_OfferedPipe::serversThatEndAreNoticed()
{
    std::optional<BatchHost::OfferedPipe> offered(std::in_place);
    QLocalSocket host;
    host.connectToServer(HostPipe::Name());
    QCOMPARE(host.state(), QLocalSocket::ConnectedState);
    server->start(BuiltProgram(QStringLiteral("VelkoraBatchProcessing")), QStringList()); // without its argument
    QVERIFY(server->waitForFinished(patience));
    QCOMPARE(server->exitCode(), 2);
    QCOMPARE(host.state(), QLocalSocket::ConnectedState);
    offered.reset();
    QVERIFY(host.waitForDisconnected(patience) || host.state() == QLocalSocket::UnconnectedState);
}

void tst_OfferedPipe::whatIsNoPipeIsIgnored_data()
{
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("empty") << QByteArray("");
    QTest::newRow("a word") << QByteArray("pipe");
    QTest::newRow("negative") << QByteArray("-1");
    QTest::newRow("standard input") << QByteArray("0");
    QTest::newRow("standard error") << QByteArray("2");
    QTest::newRow("not open") << QByteArray("4095");
    QTest::newRow("too large") << QByteArray("99999999999");
    QTest::newRow("a file") << QByteArray("file");
}

void tst_OfferedPipe::whatIsNoPipeIsIgnored()
{
    QFETCH(QByteArray, value);
    QFile file(folder->FilePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const InheritedCopy copy(file.handle());
    if (value != "file") {
        qputenv(HostPipe::listenerVariable, value);
    }
    StartServer();
    QVERIFY(QTest::qWaitFor(&CanConnect, patience));
    ZTPipeSession host(HostPipe::Name(), nullptr);
    QVERIFY(EndsAfter(host));
}

// A server that was started with another name, or in another temporary folder.
void tst_OfferedPipe::othersPipesAreClosed()
{
    const QString otherName = QStringLiteral("other");
    QLocalServer other;
    QVERIFY(other.listen(otherName));
    QLocalSocket waiting;
    waiting.connectToServer(otherName);
    QCOMPARE(waiting.state(), QLocalSocket::ConnectedState);
    {
        const InheritedCopy copy(other.socketDescriptor());
        StartServer();
    }
    QVERIFY(QTest::qWaitFor(&CanConnect, patience));
    other.close();
    QVERIFY(waiting.waitForDisconnected(patience) || waiting.state() == QLocalSocket::UnconnectedState);
    ZTPipeSession host(HostPipe::Name(), nullptr);
    QVERIFY(EndsAfter(host));
}

void tst_OfferedPipe::pipesThatAnswerStay()
{
    QLocalServer running;
    QVERIFY(running.listen(HostPipe::Name()));
    const BatchHost::OfferedPipe offered;
    QVERIFY(!qEnvironmentVariableIsSet(HostPipe::listenerVariable));
    QVERIFY(CanConnect());
    QTRY_VERIFY(running.hasPendingConnections());
}

void tst_OfferedPipe::socketsOfDeadServersAreReplaced()
{
    StartServer();
    QVERIFY(QTest::qWaitFor(&CanConnect, patience));
    server->kill();
    QVERIFY(server->waitForFinished(patience));
    QVERIFY(QFileInfo::exists(HostPipe::SocketPath(HostPipe::Name())));
    // Copies of the killed server that have not become workers yet still answer.
    QVERIFY(QTest::qWaitFor([] { return !CanConnect(); }, patience));
    const BatchHost::OfferedPipe offered;
    QVERIFY(qEnvironmentVariableIsSet(HostPipe::listenerVariable));
    QVERIFY(CanConnect());
}

void tst_OfferedPipe::tooLongPathsAreLeftToTheServer()
{
    const QByteArray before = qgetenv("TMPDIR");
    const QString longFolder = folder->FilePath(QString(100, QLatin1Char('x')));
    QVERIFY(QDir().mkpath(longFolder));
    qputenv("TMPDIR", QFile::encodeName(longFolder));
    {
        const BatchHost::OfferedPipe offered;
        QVERIFY(!qEnvironmentVariableIsSet(HostPipe::listenerVariable));
    }
    qputenv("TMPDIR", before);
}

QTEST_GUILESS_MAIN(tst_OfferedPipe)
#include "tst_offeredpipe.moc"
