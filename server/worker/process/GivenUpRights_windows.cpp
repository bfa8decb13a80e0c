// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "GivenUpRights_windows.h"

#include <vector>

namespace BatchWorker {

namespace {

// Without it, every folder on the way to a file would have to be open to this user.
bool IsPassingThrough(const LUID& privilege)
{
    LUID passing = {};
    return LookupPrivilegeValueW(nullptr, L"SeChangeNotifyPrivilege", &passing) != 0 &&
           privilege.LowPart == passing.LowPart && privilege.HighPart == passing.HighPart;
}

void RemovePrivileges(HANDLE token)
{
    DWORD size = 0;
    GetTokenInformation(token, TokenPrivileges, nullptr, 0, &size);
    std::vector<BYTE> bytes(size);
    auto* const privileges = reinterpret_cast<TOKEN_PRIVILEGES*>(bytes.data());
    if (size == 0 || !GetTokenInformation(token, TokenPrivileges, privileges, size, &size)) {
        return;
    }
    for (DWORD i = 0; i < privileges->PrivilegeCount; ++i) {
        LUID_AND_ATTRIBUTES& privilege = privileges->Privileges[i];
        if (!IsPassingThrough(privilege.Luid)) {
            privilege.Attributes = SE_PRIVILEGE_REMOVED;
        }
    }
    AdjustTokenPrivileges(token, FALSE, privileges, 0, nullptr, nullptr);
}

} // namespace

void GiveUpRights()
{
    HANDLE token = nullptr;
    if (OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY | TOKEN_ADJUST_PRIVILEGES, &token)) {
        RemovePrivileges(token);
        CloseHandle(token);
    }
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_SYSTEM32);
    for (const MitigationPolicy& policy : givenUpPolicies) {
        DWORD flags = policy.flags;
        SetProcessMitigationPolicy(policy.kind, &flags, sizeof(flags));
    }
}

} // namespace BatchWorker
