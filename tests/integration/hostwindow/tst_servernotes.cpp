// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerNotes.h"

#include "ManagerRun.h"
#include "OwnFolder.h"

#include <QFile>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#endif

/// What a host learns when ConnectionFailed() comes: the debug lines that docs/reference/diagnostics.md lists are
/// written, and the guide's window makes a sentence of them.
class tst_ServerNotes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void explainsTheFailure_data();
    void explainsTheFailure();
    void pipeOfAnotherUser();
    void forgetsWhatIsOver();
};

namespace {

/// Reads the library's lines as long as it exists, and hands them on to those of the run.
class NotesGuard
{
public:
    NotesGuard()
        : before(qInstallMessageHandler(nullptr))
    {
        qInstallMessageHandler(before);
        ServerNotes::Install();
        ServerNotes::Forget();
    }

    ~NotesGuard() { qInstallMessageHandler(before); }

private:
    Q_DISABLE_COPY(NotesGuard)

    const QtMessageHandler before;
};

bool IsDocumented(const QString& line)
{
    QFile page(QStringLiteral(DIAGNOSTICS_PAGE));
    return page.open(QIODevice::ReadOnly) &&
           QString::fromUtf8(page.readAll()).contains(QStringLiteral("`%1`").arg(line));
}

} // namespace

void tst_ServerNotes::explainsTheFailure_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<bool>("isInstalled");
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("explanation");

    const QString lastWords = QStringLiteral("Its last words are on the standard error of this program.");
    const QString silent = QStringLiteral("It has not opened its pipe in time.");
    QTest::newRow("missing") << QString() << false << QString() << QStringLiteral(" is missing, or may not be run.");
    QTest::newRow("ends at once") << QStringLiteral("start: exit 1") << true << QString() << lastWords;
    QTest::newRow("crashes") << QStringLiteral("start: crash") << true << QString() << lastWords;
    QTest::newRow("never opens its pipe") << QString() << true << QStringLiteral("Socket error: 2") << silent;
}

void tst_ServerNotes::explainsTheFailure()
{
    QFETCH(QString, rule);
    QFETCH(bool, isInstalled);
    QFETCH(QString, line);
    QFETCH(QString, explanation);

    ManagerRun run({rule});
    const NotesGuard notes;
    run.timings.reconnectInterval = 50;
    run.timings.startupTimeout = 3000;
    if (!isInstalled) {
        run.stage.HideServer();
    }
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return run.log.Count(HostLines::failed) == 1; }));
    const QString text = ServerNotes::Explanation();
    run.stage.ShowServer();
    QVERIFY2(text.endsWith(explanation), qPrintable(text));
    if (!line.isEmpty()) {
        QVERIFY(run.debugLines.CountEndingWith(QStringLiteral("] ") + line) >= 20);
        QVERIFY(IsDocumented(line));
    }
}

void tst_ServerNotes::pipeOfAnotherUser()
{
#ifdef Q_OS_UNIX
    if (::geteuid() != 0) {
        QSKIP("Only root can become another user.");
    }
    ManagerRun run({QString()});
    const NotesGuard notes;
    run.timings.startupTimeout = 500;

    const QByteArray path = run.folder.FilePath(ServerStage::PipeName()).toUtf8();
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, path.constData(), sizeof(address.sun_path));
    const int listener = ::socket(AF_UNIX, SOCK_STREAM, 0);
    const auto closeListener = qScopeGuard([listener] { ::close(listener); });
    QCOMPARE(::bind(listener, reinterpret_cast<sockaddr*>(&address), sizeof(address)), 0);
    // A peer is the user who listens.
    constexpr uid_t nobody = 65534;
    QCOMPARE(::seteuid(nobody), 0);
    const int listening = ::listen(listener, 5);
    QCOMPARE(::seteuid(0), 0);
    QCOMPARE(listening, 0);

    run.Manager()->Start();
    QVERIFY(Eventually([&] { return run.log.Count(HostLines::failed) == 1; }));
    QCOMPARE(ServerNotes::Explanation(),
             QStringLiteral("The pipe in the folder for temporary files belongs to another user."));
    const QString line = QStringLiteral("The pipe belongs to another user.");
    QVERIFY(run.debugLines.CountEndingWith(QStringLiteral("] ") + line) >= 1);
    QVERIFY(IsDocumented(line));
#endif
}

void tst_ServerNotes::forgetsWhatIsOver()
{
    ManagerRun run({QStringLiteral("start: exit 1")});
    const NotesGuard notes;
    for (int i = 0; i < 30; ++i) {
        qDebug("[src\\private\\ZTPipeSession_p:1] Socket error: 2");
    }
    QCOMPARE(ServerNotes::Explanation(), QStringLiteral("It has not opened its pipe in time."));
    ServerNotes::Forget();
    run.Manager()->Start();
    QVERIFY(Eventually([&] { return run.log.Count(HostLines::failed) == 1; }));
    QCOMPARE(ServerNotes::Explanation(), QStringLiteral("Its last words are on the standard error of this program."));
}

OWN_FOLDER_TEST_MAIN(tst_ServerNotes)
#include "tst_servernotes.moc"
