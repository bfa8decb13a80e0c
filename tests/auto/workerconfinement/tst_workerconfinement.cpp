// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "server/worker/process/Confinement.h"
#include "server/worker/process/GivenUpRights_windows.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <array>
#include <qt_windows.h>
#include <string>

using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

constexpr qint64 memory = qint64(700) << 20;

// Wine accepts what it does not keep.
bool IsWine()
{
    return GetProcAddress(GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

} // namespace

/// What a worker on Windows may no longer do: this process confines itself as a worker does, and asks the system.
class tst_WorkerConfinement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void boundsMemoryAndProcesses();
    void removesPrivileges();
    void setsPolicies_data();
    void setsPolicies();
    void startsNoProcess();
    void loadsLibrariesOfTheSystemOnly();
    void readsAndWritesFiles();
};

void tst_WorkerConfinement::initTestCase()
{
    ServerLimits limits;
    limits.workerMemory = memory;
    Confinement confinement;
    QVERIFY(confinement.Confine({}, limits));
}

void tst_WorkerConfinement::boundsMemoryAndProcesses()
{
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    QVERIFY(QueryInformationJobObject(nullptr, JobObjectExtendedLimitInformation, &limits, sizeof(limits), nullptr));
    const DWORD flags = limits.BasicLimitInformation.LimitFlags;
    if (IsWine() && flags == 0) {
        QSKIP("Wine keeps no limits of jobs.");
    }
    QVERIFY((flags & JOB_OBJECT_LIMIT_PROCESS_MEMORY) != 0);
    QCOMPARE(qint64(limits.ProcessMemoryLimit), memory);
    QVERIFY((flags & JOB_OBJECT_LIMIT_ACTIVE_PROCESS) != 0);
    QCOMPARE(limits.BasicLimitInformation.ActiveProcessLimit, DWORD(1));
}

void tst_WorkerConfinement::removesPrivileges()
{
    HANDLE token = nullptr;
    QVERIFY(OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token));
    alignas(TOKEN_PRIVILEGES) std::array<BYTE, 4096> bytes{};
    DWORD size = 0;
    const bool isKnown = GetTokenInformation(token, TokenPrivileges, bytes.data(), DWORD(bytes.size()), &size) != 0;
    CloseHandle(token);
    QVERIFY(isKnown);
    const auto* const privileges = reinterpret_cast<const TOKEN_PRIVILEGES*>(bytes.data());
    QVERIFY(privileges->PrivilegeCount <= 1);
    for (DWORD i = 0; i < privileges->PrivilegeCount; ++i) {
        std::array<wchar_t, 64> name{};
        auto length = DWORD(name.size());
        LUID privilege = privileges->Privileges[i].Luid;
        QVERIFY(LookupPrivilegeNameW(nullptr, &privilege, name.data(), &length));
        QCOMPARE(QString::fromWCharArray(name.data()), QStringLiteral("SeChangeNotifyPrivilege"));
    }
}

void tst_WorkerConfinement::setsPolicies_data()
{
    QTest::addColumn<int>("index");
    const std::array names{"dynamic code", "signatures", "images", "processes", "extension points", "fonts"};
    for (std::size_t i = 0; i < givenUpPolicies.size(); ++i) {
        QTest::newRow(names.at(i)) << int(i);
    }
}

void tst_WorkerConfinement::setsPolicies()
{
    QFETCH(const int, index);
    const MitigationPolicy& policy = givenUpPolicies.at(std::size_t(index));
    DWORD flags = 0;
    const bool isKnown = GetProcessMitigationPolicy(GetCurrentProcess(), policy.kind, &flags, sizeof(flags)) != 0;
    if (IsWine() && (!isKnown || flags == 0)) {
        QSKIP("Wine keeps no such policy.");
    }
    QVERIFY(isKnown);
    QCOMPARE(flags & policy.flags, policy.flags);
}

void tst_WorkerConfinement::startsNoProcess()
{
    std::wstring command = L"cmd.exe /c exit";
    STARTUPINFOW start = {};
    start.cb = sizeof(start);
    PROCESS_INFORMATION process = {};
    const bool isStarted = CreateProcessW(nullptr, &command[0], nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                                          nullptr, &start, &process) != 0;
    if (isStarted) {
        WaitForSingleObject(process.hProcess, INFINITE);
        CloseHandle(process.hThread);
        CloseHandle(process.hProcess);
    }
    if (isStarted && IsWine()) {
        QSKIP("Wine enforces no limit of processes.");
    }
    QVERIFY(!isStarted);
}

void tst_WorkerConfinement::loadsLibrariesOfTheSystemOnly()
{
    QVERIFY(LoadLibraryW(L"winmm.dll"));
    // A library of the program's own folder that it has not loaded.
    std::array<wchar_t, MAX_PATH> own{};
    GetModuleFileNameW(nullptr, own.data(), DWORD(own.size()));
    const QString folder = QString::fromWCharArray(own.data()).section(QLatin1Char('\\'), 0, -2);
    QVERIFY(QFile::exists(folder + QStringLiteral("\\velkorautils.dll")));
    QVERIFY(!GetModuleHandleW(L"velkorautils.dll"));
    QVERIFY(!LoadLibraryW(L"velkorautils.dll"));
}

void tst_WorkerConfinement::readsAndWritesFiles()
{
    QTemporaryDir place;
    QFile file(place.filePath(QStringLiteral("file")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write("bytes"), qint64(5));
    file.close();
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), QByteArray("bytes"));
}

QTEST_GUILESS_MAIN(tst_WorkerConfinement)
#include "tst_workerconfinement.moc"
