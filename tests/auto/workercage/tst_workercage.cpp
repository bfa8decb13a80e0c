// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProgramFiles.h"
#include "Sanitizers.h"
#include "Text.h"

#include "server/protocol/SystemProtection.h"

#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <cerrno>

using namespace BatchProtocol;

/// What a worker can still do that a picture has taken over: a helper confines itself with the worker's own code and
/// tries. Each attempt is made outside of the cage, too, where it succeeds: so it is the cage that refuses it.
class tst_WorkerCage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void refuses_data();
    void refuses();
    void allows_data();
    void allows();
    void describesTheSystem_data();
    void describesTheSystem();

private:
    QByteArray Try(const char* where, const QByteArray& attempt) const;

    std::unique_ptr<QTemporaryDir> folder;
};

namespace {

enum class By {
    Calls,       ///< the list of system calls
    Files,       ///< the list of files
    Processes,   ///< the same, but the leak checker needs it
    NewerFiles,  ///< the same; truncation needs version 3
    SomeSystems, ///< the list of system calls, if the system does not refuse it anyway
    LeakChecker, ///< the same, but the leak checker needs it
};

} // namespace

Q_DECLARE_METATYPE(By)
Q_DECLARE_METATYPE(BatchProtocol::SystemProtection)

void tst_WorkerCage::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    const QDir place(folder->path());
    for (const char* name : {"secrets", "inputs/trip", "out", "tmp"}) {
        QVERIFY(place.mkpath(Text(name)));
    }
    for (const char* name : {"secrets/key", "secrets/profile", "inputs/photo", "inputs/trip/photo", "out/result"}) {
        QFile file(place.filePath(Text(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(QByteArray(5000, 'x')), qint64(5000));
    }
    QVERIFY(QFile::link(place.filePath(Text("secrets")), place.filePath(Text("out/wayout"))));
}

QByteArray tst_WorkerCage::Try(const char* where, const QByteArray& attempt) const
{
    QProcess helper;
    helper.setWorkingDirectory(folder->path());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(Text("TMPDIR"), folder->filePath(Text("tmp")));
    helper.setProcessEnvironment(environment);
    helper.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    helper.start(BuiltProgram(Text("escapes")), {Text(where), QString::fromUtf8(attempt)});
    if (!helper.waitForFinished() || helper.exitStatus() != QProcess::NormalExit || helper.exitCode() != 0) {
        return "the helper failed";
    }
    return helper.readAllStandardOutput().trimmed();
}

void tst_WorkerCage::refuses_data()
{
    QTest::addColumn<By>("by");
    const auto rows = [](By by, std::initializer_list<const char*> attempts) {
        for (const char* attempt : attempts) {
            QTest::newRow(attempt) << by;
        }
    };
    rows(By::Processes, {"read the list of processes", "read the environment of a process"});
    rows(By::Files, {"read a private key", "read the passwords of the system", "list a folder", "write a start-up file",
                     "make a start-up file", "make a nameless file elsewhere", "delete a file", "delete an input",
                     "write an input", "make a file among the inputs", "rename an input", "move a result out",
                     "link a result out", "link an input in", "follow a link out of the output folder", "make a folder",
                     "write into a process through its files", "read the memory of a process through its files"});
    rows(By::NewerFiles, {"empty an input by opening it"});
    rows(By::Calls, {"empty an input by its name",
                     "make a symbolic link",
                     "make a pipe with a name",
                     "change the permissions of a file",
                     "change the owner of a file",
                     "change the times of a file",
                     "write into a process",
                     "read the memory of a process",
                     "make memory that is writable and executable",
                     "make written memory executable",
                     "make written memory executable with a key",
                     "execute a written file",
                     "a file in memory",
                     "connect to a local service",
                     "a local socket",
                     "a network socket",
                     "a socket of the kernel",
                     "a pair of sockets",
                     "signal a process by its descriptor",
                     "signal a process through a file",
                     "take a file of a process",
                     "start a process by clone3",
                     "start a program",
                     "raise a limit",
                     "raise a limit of a process",
                     "leave the session",
                     "change the priority",
                     "control a device"});
    rows(By::SomeSystems,
         {"change the attributes of a file", "handle page faults", "take a key of the kernel", "mount",
          "change the root folder", "a namespace of users", "a process in a namespace of users by clone3", "io_uring",
          "a program in the kernel", "count events of the processor"});
    rows(By::LeakChecker,
         {"fork", "vfork", "a process in a namespace of users", "trace a process", "signal a process",
          "signal a thread of a process", "outlive the supervisor", "change whether memory is open to others"});
}

void tst_WorkerCage::refuses()
{
    QFETCH(const By, by);
    const SystemProtection system = SystemProtection::OfThisSystem();
    const bool isOfFiles = by == By::Files || by == By::Processes || by == By::NewerFiles;
    if (isOfFiles ? system.fileAccess < (by == By::NewerFiles ? 3 : 1) : !system.hasCallFilter) {
        QSKIP("this kernel cannot refuse it");
    }
    if ((by == By::LeakChecker || by == By::Processes) && isSanitized) {
        QSKIP("the leak checker needs it");
    }
    const QByteArray attempt = QTest::currentDataTag();
    const QByteArray inside = Try("caged", attempt);
    QVERIFY2(inside.toInt() == (isOfFiles ? EACCES : ENOSYS) || (isOfFiles && inside.toInt() == EXDEV),
             inside.constData());
    const QByteArray outside = Try("free", attempt);
    if ((by == By::SomeSystems || by == By::LeakChecker) && outside != "done") {
        QSKIP("this system refuses it anyway");
    }
    QCOMPARE(outside, QByteArray("done"));
}

void tst_WorkerCage::allows_data()
{
    QTest::addColumn<QByteArray>("attempt");
    for (const char* need :
         {"read an input", "read an input below a folder", "ask for an input that is missing", "ask about any file",
          "write a result", "replace a result", "name a result by a link", "flush the output folder",
          "a nameless file, opened a second time", "read the fonts' settings", "read a time zone", "start a thread",
          "signal itself", "read its limits"}) {
        QTest::newRow(need) << QByteArray("needed: ") + need;
    }
}

void tst_WorkerCage::allows()
{
    QFETCH(const QByteArray, attempt);
    QCOMPARE(Try("caged", attempt), QByteArray("done"));
}

void tst_WorkerCage::describesTheSystem_data()
{
    QTest::addColumn<SystemProtection>("system");
    QTest::addColumn<int>("missing");
    QTest::addColumn<QString>("word");
    QTest::newRow("everything") << SystemProtection{true, 7, true} << 0 << Text("Landlock 7, with scopes");
    QTest::newRow("no scopes") << SystemProtection{true, 5, true} << 1 << Text("Landlock 5, without scopes");
    QTest::newRow("no devices") << SystemProtection{true, 4, true} << 1 << Text("Landlock 4, without scopes");
    QTest::newRow("no truncation") << SystemProtection{true, 2, true} << 1 << Text("Landlock 2, without scopes");
    QTest::newRow("no Landlock") << SystemProtection{true, 0, true} << 1 << Text("has no Landlock");
    QTest::newRow("no filter") << SystemProtection{true, 7, false} << 1 << Text("has no seccomp");
    QTest::newRow("neither") << SystemProtection{true, 0, false} << 2 << Text("has no seccomp");
    QTest::newRow("another system") << SystemProtection{} << 1 << Text("not confined");
}

void tst_WorkerCage::describesTheSystem()
{
    QFETCH(const SystemProtection, system);
    QFETCH(const int, missing);
    QFETCH(const QString, word);
    QCOMPARE(system.Missing().size(), missing);
    const QString description = system.Description().join(QLatin1Char('\n'));
    QVERIFY2(description.contains(word), qUtf8Printable(description));
}

QTEST_GUILESS_MAIN(tst_WorkerCage)
#include "tst_workercage.moc"
