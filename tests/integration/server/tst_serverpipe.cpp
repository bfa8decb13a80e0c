// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerRun.h"

#include <QtTest>

#include <qt_windows.h>
// Must follow the header above.
#include <aclapi.h>

/// Who may open the server's pipe, by the access list of the system.
class tst_ServerPipe : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void onlyItsOwnerHasAccess();
};

namespace {

QByteArray BytesOf(PSID id)
{
    return QByteArray(static_cast<const char*>(id), int(GetLengthSid(id)));
}

QByteArray OwnUser()
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) {
        return {};
    }
    DWORD size = 0;
    GetTokenInformation(token, TokenUser, nullptr, 0, &size);
    QByteArray information(int(size), '\0');
    const bool isKnown = GetTokenInformation(token, TokenUser, information.data(), size, &size);
    CloseHandle(token);
    return isKnown ? BytesOf(reinterpret_cast<const TOKEN_USER*>(information.constData())->User.Sid) : QByteArray();
}

} // namespace

void tst_ServerPipe::onlyItsOwnerHasAccess()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QVERIFY(run.Start());
    // The server learns of its host before it creates the next instance of the pipe.
    HANDLE pipe = INVALID_HANDLE_VALUE;
    QVERIFY(QTest::qWaitFor(
        [&pipe] {
            pipe = CreateFileW(L"\\\\.\\pipe\\VelkoraBatchProcessing", READ_CONTROL, 0, nullptr, OPEN_EXISTING, 0,
                               nullptr);
            return pipe != INVALID_HANDLE_VALUE;
        },
        30000));
    PACL list = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    const DWORD problem = GetSecurityInfo(pipe, SE_KERNEL_OBJECT, DACL_SECURITY_INFORMATION, nullptr, nullptr, &list,
                                          nullptr, &descriptor);
    CloseHandle(pipe);
    QCOMPARE(problem, DWORD(ERROR_SUCCESS));
    QVERIFY2(list, "everybody has access");
    QCOMPARE(int(list->AceCount), 1);
    void* entry = nullptr;
    QVERIFY(GetAce(list, 0, &entry));
    const auto* const allowed = static_cast<const ACCESS_ALLOWED_ACE*>(entry);
    QCOMPARE(int(allowed->Header.AceType), ACCESS_ALLOWED_ACE_TYPE);
    QCOMPARE(BytesOf(const_cast<DWORD*>(&allowed->SidStart)), OwnUser());
    LocalFree(descriptor);
}

QTEST_GUILESS_MAIN(tst_ServerPipe)
#include "tst_serverpipe.moc"
