#include "PeerUser.h"

#include <QByteArray>
#include <QLocalSocket>

#include <qt_windows.h>

namespace BatchSupervisor {

namespace {

/// The user of a process; empty when it cannot be determined.
QByteArray UserOf(HANDLE process)
{
    HANDLE token = nullptr;
    if (!OpenProcessToken(process, TOKEN_QUERY, &token)) {
        return {};
    }
    DWORD size = 0;
    GetTokenInformation(token, TokenUser, nullptr, 0, &size);
    QByteArray information(int(size), '\0');
    QByteArray user;
    if (GetTokenInformation(token, TokenUser, information.data(), size, &size)) {
        const PSID id = reinterpret_cast<const TOKEN_USER*>(information.constData())->User.Sid;
        user = QByteArray(static_cast<const char*>(id), int(GetLengthSid(id)));
    }
    CloseHandle(token);
    return user;
}

} // namespace

bool IsPeerOfThisUser(const QLocalSocket& socket)
{
    const auto pipe = reinterpret_cast<HANDLE>(socket.socketDescriptor());
    ULONG peerId = 0;
    if (!GetNamedPipeClientProcessId(pipe, &peerId)) {
        return false;
    }
    const HANDLE peer = OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, peerId);
    if (!peer) {
        return false;
    }
    const QByteArray user = UserOf(peer);
    CloseHandle(peer);
    return !user.isEmpty() && user == UserOf(GetCurrentProcess());
}

} // namespace BatchSupervisor
