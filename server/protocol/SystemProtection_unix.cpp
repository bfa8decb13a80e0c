// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SystemProtection.h"

#ifdef Q_OS_LINUX
#include <linux/landlock.h>
#include <linux/seccomp.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

namespace BatchProtocol {

SystemProtection SystemProtection::OfThisSystem()
{
    SystemProtection protection;
#ifdef Q_OS_LINUX
    protection.canConfine = true;
    const long version = syscall(__NR_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    protection.fileAccess = version > 0 ? int(version) : 0;
    const unsigned action = SECCOMP_RET_ERRNO;
    protection.hasCallFilter = syscall(__NR_seccomp, SECCOMP_GET_ACTION_AVAIL, 0, &action) == 0;
#endif
    return protection;
}

} // namespace BatchProtocol
