// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTPipeSession.h"

#include <QDir>
#include <QSignalSpy>
#include <QtTest>

#include <pwd.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

/// A pipe session whose pipe was opened by another user, in a temporary folder that all users share.
class tst_ForeignServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void isNotTalkedTo();
    void isNotTalkedToLater();

private:
    void Listen();
    int EndOfServer();
    QString Pipe() const { return folder->filePath(QStringLiteral("pipe")); }

    std::unique_ptr<QTemporaryDir> folder;
    pid_t server = -1;
};

void tst_ForeignServer::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QCOMPARE(::chmod(folder->path().toUtf8().constData(), 01777), 0);
}

void tst_ForeignServer::cleanup()
{
    if (server > 0) {
        ::kill(server, SIGKILL);
        ::waitpid(server, nullptr, 0);
        server = -1;
    }
}

/// Starts a process of another user that accepts a connection and ends with 0 if that brings nothing.
void tst_ForeignServer::Listen()
{
    const passwd* nobody = ::getpwnam("nobody");
    if (::geteuid() != 0 || !nobody) {
        QSKIP("Only root can become another user.");
    }
    const QByteArray path = Pipe().toUtf8();
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, (path + ".new").constData(), sizeof(address.sun_path));
    server = ::fork();
    if (server == 0) {
        if (::setgid(nobody->pw_gid) != 0 || ::setuid(nobody->pw_uid) != 0) {
            ::_exit(1);
        }
        const int listener = ::socket(AF_UNIX, SOCK_STREAM, 0);
        if (::bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof(address)) != 0 ||
            ::chmod(address.sun_path, 0777) != 0 || ::listen(listener, 5) != 0 ||
            ::rename(address.sun_path, path.constData()) != 0) {
            ::_exit(2);
        }
        char byte = 0;
        const ssize_t count = ::read(::accept(listener, nullptr, nullptr), &byte, 1);
        ::_exit(count > 0 ? 3 : 0);
    }
    QTRY_VERIFY(::access(path.constData(), F_OK) == 0);
}

int tst_ForeignServer::EndOfServer()
{
    int status = -1;
    if (!QTest::qWaitFor([&] { return ::waitpid(server, &status, WNOHANG) == server; }, 30'000)) {
        return -1;
    }
    server = -1;
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void tst_ForeignServer::isNotTalkedTo()
{
    Listen();
    ZTPipeSession session(Pipe(), nullptr);
    QSignalSpy connected(&session, SIGNAL(SessionConnected()));
    QSignalSpy down(&session, SIGNAL(SessionDown()));
    session.Send(QStringLiteral("0"), "secret");
    QCOMPARE(EndOfServer(), 0);
    QVERIFY(!session.IsConnected());
    QCOMPARE(connected.count(), 0);
    QCOMPARE(down.count(), 0);
}

void tst_ForeignServer::isNotTalkedToLater()
{
    ZTPipeSession session(Pipe(), nullptr);
    Listen();
    QSignalSpy connected(&session, SIGNAL(SessionConnected()));
    session.Reconnect(Pipe());
    session.Send(QStringLiteral("0"), "secret");
    QCOMPARE(EndOfServer(), 0);
    QVERIFY(!session.IsConnected());
    QCOMPARE(connected.count(), 0);
}

QTEST_GUILESS_MAIN(tst_ForeignServer)
#include "tst_foreignserver.moc"
