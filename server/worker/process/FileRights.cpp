// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FileRights.h"

#include "server/protocol/SystemProtection.h"

#ifdef Q_OS_LINUX

#include <cerrno>
#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace BatchWorker {

namespace {

// What headers of older kernels lack: include/uapi/linux/landlock.h of Linux 6.15.
constexpr quint64 accessTruncate = 1ULL << 14;      // LANDLOCK_ACCESS_FS_TRUNCATE, version 3
constexpr quint64 accessDeviceControl = 1ULL << 15; // LANDLOCK_ACCESS_FS_IOCTL_DEV, version 5
constexpr quint64 accessBind = 1ULL << 0;           // LANDLOCK_ACCESS_NET_BIND_TCP, version 4
constexpr quint64 accessConnect = 1ULL << 1;        // LANDLOCK_ACCESS_NET_CONNECT_TCP, version 4
constexpr quint64 scopeAbstractSocket = 1ULL << 0;  // LANDLOCK_SCOPE_ABSTRACT_UNIX_SOCKET, version 6
constexpr quint64 scopeSignal = 1ULL << 1;          // LANDLOCK_SCOPE_SIGNAL, version 6

// struct landlock_ruleset_attr of version 6. Older kernels take it if what they do not know is 0.
struct Handled
{
    quint64 files = 0;
    quint64 network = 0;
    quint64 scopes = 0;
};

Handled HandledBy(int version)
{
    constexpr quint64 filesOfFirst = (LANDLOCK_ACCESS_FS_MAKE_SYM << 1) - 1;
    Handled handled;
    handled.files = version >= 1 ? filesOfFirst : 0;
    handled.files |= version >= 2 ? LANDLOCK_ACCESS_FS_REFER : 0;
    handled.files |= version >= 3 ? accessTruncate : 0;
    handled.network = version >= 4 ? accessBind | accessConnect : 0;
    handled.files |= version >= 5 ? accessDeviceControl : 0;
    handled.scopes = version >= 6 ? scopeAbstractSocket | scopeSignal : 0;
    return handled;
}

constexpr quint64 toRead = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_READ_DIR;
constexpr quint64 toWrite = toRead | LANDLOCK_ACCESS_FS_WRITE_FILE | accessTruncate | LANDLOCK_ACCESS_FS_MAKE_REG |
                            LANDLOCK_ACCESS_FS_REMOVE_FILE;
constexpr quint64 ofSingleFile = LANDLOCK_ACCESS_FS_READ_FILE | LANDLOCK_ACCESS_FS_WRITE_FILE | accessTruncate;

} // namespace

FileRights::FileRights()
{
    const Handled wanted = HandledBy(BatchProtocol::SystemProtection::OfThisSystem().fileAccess);
    if (wanted.files == 0) {
        return;
    }
    handled = wanted.files;
    rules = int(syscall(__NR_landlock_create_ruleset, &wanted, sizeof(wanted), 0));
    hasFailed = rules < 0;
}

FileRights::~FileRights()
{
    if (rules >= 0) {
        close(rules);
    }
}

void FileRights::AllowReading(const QByteArray& path)
{
    Allow(path, toRead);
}

void FileRights::AllowWriting(const QByteArray& path)
{
    Allow(path, toWrite);
}

void FileRights::Allow(const QByteArray& path, quint64 rights)
{
    if (rules < 0) {
        return;
    }
    const int place = open(path.constData(), O_PATH | O_CLOEXEC);
    if (place < 0) {
        return;
    }
    struct stat status;
    const bool isFolder = fstat(place, &status) == 0 && S_ISDIR(status.st_mode);
    landlock_path_beneath_attr rule{};
    rule.allowed_access = rights & handled & (isFolder ? rights : ofSingleFile);
    rule.parent_fd = place;
    hasFailed = hasFailed || syscall(__NR_landlock_add_rule, rules, LANDLOCK_RULE_PATH_BENEATH, &rule, 0) != 0;
    close(place);
}

bool FileRights::Restrict()
{
    if (rules < 0) {
        return !hasFailed;
    }
    return !hasFailed && prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 &&
           syscall(__NR_landlock_restrict_self, rules, 0) == 0;
}

} // namespace BatchWorker

#else

namespace BatchWorker {

FileRights::FileRights() = default;
FileRights::~FileRights() = default;

void FileRights::AllowReading(const QByteArray&) {}
void FileRights::AllowWriting(const QByteArray&) {}
void FileRights::Allow(const QByteArray&, quint64) {}

bool FileRights::Restrict()
{
    return true;
}

} // namespace BatchWorker

#endif
