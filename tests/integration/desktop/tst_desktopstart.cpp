// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PrivateTempDir.h"
#include "ProgramFiles.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

#include <memory>

/// The program as it is started, in folders of the test's own.
class tst_DesktopStart : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void saysItsVersionAndHelp_data();
    void saysItsVersionAndHelp();
    void secondStartLeavesTheWindowToTheFirst();
    void killedWindowsLeaveNothingInTheWay();

private:
    std::unique_ptr<QProcess> NewStart(const QStringList& arguments = {}) const;
    bool HasFirst() const;

    std::unique_ptr<PrivateTempDir> temporary;
    std::unique_ptr<QTemporaryDir> folder;
};

namespace {

constexpr int patience = 60'000; // ms

} // namespace

void tst_DesktopStart::init()
{
    temporary = std::make_unique<PrivateTempDir>();
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

void tst_DesktopStart::cleanup()
{
    folder.reset();
    temporary.reset();
}

std::unique_ptr<QProcess> tst_DesktopStart::NewStart(const QStringList& arguments) const
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* variable : {"XDG_RUNTIME_DIR", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
        environment.insert(QString::fromLatin1(variable), folder->path());
    }
    environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), QStringLiteral("unix:path=/nonexistent"));
    auto program = std::make_unique<QProcess>();
    program->setProcessEnvironment(environment);
    program->setProcessChannelMode(QProcess::MergedChannels);
    program->start(BuiltProgram(QStringLiteral("velkora-batch-desktop")), arguments);
    return program;
}

/// Whether a window listens to further starts.
bool tst_DesktopStart::HasFirst() const
{
    const QStringList entries = QDir(folder->path()).entryList(QDir::Files | QDir::System);
    return entries.filter(QStringLiteral("velkora-batch-desktop-")).size() == 2; // lock and socket
}

void tst_DesktopStart::saysItsVersionAndHelp_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QString>("expected");
    QTest::newRow("version") << QStringLiteral("--version") << QStringLiteral("velkora-batch-desktop 0.");
    QTest::newRow("help") << QStringLiteral("--help") << QStringLiteral("[path...]");
}

void tst_DesktopStart::saysItsVersionAndHelp()
{
    QFETCH(QString, option);
    QFETCH(QString, expected);
    const std::unique_ptr<QProcess> program = NewStart({option});
    QVERIFY(program->waitForFinished(patience));
    QCOMPARE(program->exitCode(), 0);
    const QString output = QString::fromUtf8(program->readAll());
    QVERIFY2(output.contains(expected), qPrintable(output));
}

void tst_DesktopStart::secondStartLeavesTheWindowToTheFirst()
{
    const std::unique_ptr<QProcess> first = NewStart();
    QTRY_VERIFY_WITH_TIMEOUT(HasFirst(), patience);
    for (const QStringList& arguments :
         {QStringList(), QStringList{QStringLiteral("photos/1.jpg")}, QStringList{QStringLiteral("--new-job")}}) {
        const std::unique_ptr<QProcess> second = NewStart(arguments);
        QVERIFY(second->waitForFinished(patience));
        QCOMPARE(second->exitStatus(), QProcess::NormalExit);
        QCOMPARE(second->exitCode(), 0);
        QCOMPARE(first->state(), QProcess::Running);
    }
    first->terminate();
    QVERIFY(first->waitForFinished(patience));
}

void tst_DesktopStart::killedWindowsLeaveNothingInTheWay()
{
    const std::unique_ptr<QProcess> first = NewStart();
    QTRY_VERIFY_WITH_TIMEOUT(HasFirst(), patience);
    first->kill();
    QVERIFY(first->waitForFinished(patience));
    QVERIFY(HasFirst()); // So it seems.
    const std::unique_ptr<QProcess> next = NewStart();
    QVERIFY(next->waitForStarted(patience));
    const std::unique_ptr<QProcess> other = NewStart();
    // One of the two is the first now, the other leaves the window to it.
    const auto oneIsLeft = [&] {
        return (next->state() == QProcess::NotRunning) != (other->state() == QProcess::NotRunning);
    };
    QTRY_VERIFY_WITH_TIMEOUT(oneIsLeft(), patience);
    QProcess& over = next->state() == QProcess::NotRunning ? *next : *other;
    QProcess& left = next->state() == QProcess::NotRunning ? *other : *next;
    QCOMPARE(over.exitStatus(), QProcess::NormalExit);
    QCOMPARE(over.exitCode(), 0);
    QCOMPARE(left.state(), QProcess::Running);
    left.kill();
    QVERIFY(left.waitForFinished(patience));
}

QTEST_GUILESS_MAIN(tst_DesktopStart)
#include "tst_desktopstart.moc"
