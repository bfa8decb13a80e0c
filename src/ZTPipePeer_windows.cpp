// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTPipePeer.h"

#include <QByteArray>
#include <QLocalSocket>

#include <qt_windows.h>

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

bool ZTPipePeer::IsOfThisUser(const QLocalSocket& socket)
{
    const auto pipe = reinterpret_cast<HANDLE>(socket.socketDescriptor());
    DWORD flags = 0;
    ULONG peerId = 0;
    if (!GetNamedPipeInfo(pipe, &flags, nullptr, nullptr, nullptr)) {
        return false;
    }
    const bool isServer = (flags & PIPE_SERVER_END) != 0;
    if (!(isServer ? GetNamedPipeClientProcessId(pipe, &peerId) : GetNamedPipeServerProcessId(pipe, &peerId))) {
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
