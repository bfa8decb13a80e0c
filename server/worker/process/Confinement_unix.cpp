// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Confinement.h"

#include "FileRights.h"
#include "FontFiles.h"

#include <QDir>
#include <QFile>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <sys/resource.h>
#include <sys/stat.h>

#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

using namespace BatchProtocol;

namespace BatchWorker {

namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool isSanitized = true;
#else
constexpr bool isSanitized = false;
#endif

// What libraries read while they work: modules of character sets, time zones, profiles.
constexpr std::initializer_list<const char*> systemPlaces{
    "/lib",       "/lib32",           "/lib64",         "/usr/lib",       "/usr/lib32", "/usr/lib64",
    "/usr/share", "/usr/local/share", "/usr/local/lib", "/etc/localtime", "/dev/null",  "/dev/urandom",
};

void Bound(__rlimit_resource resource, qint64 value)
{
    rlimit limit{};
    if (getrlimit(resource, &limit) == 0 && rlim_t(value) < limit.rlim_max) {
        limit.rlim_cur = rlim_t(value);
        limit.rlim_max = rlim_t(value);
        setrlimit(resource, &limit);
    }
}

void BoundResources(const ServerLimits& limits)
{
    Bound(RLIMIT_FSIZE, limits.LargestFile());
    // Sanitizers reserve more address space than any limit.
    if (!isSanitized) {
        Bound(RLIMIT_DATA, limits.workerMemory);
    }
}

#if defined(__SANITIZE_ADDRESS__)
// The checker of leaks reads at the end of the process which ones do not count. Its reports name threads, and places in
// libraries.
void AllowReports(FileRights& files)
{
    const QByteArray key = "suppressions=";
    for (const QByteArray& option : qgetenv("LSAN_OPTIONS").split(':')) {
        if (option.startsWith(key)) {
            files.AllowReading(option.mid(key.size()));
        }
    }
    files.AllowReading("/proc");
}
#else
void AllowReports(FileRights&) {}
#endif

bool RestrictFiles(const WorkerRights& rights)
{
    FileRights files;
    for (const char* place : systemPlaces) {
        files.AllowReading(place);
    }
    if (rights.usesFonts) {
        for (const QByteArray& place : FontFiles()) {
            files.AllowReading(place);
        }
    }
    for (const QString& path : rights.readable) {
        files.AllowReading(QFile::encodeName(path));
    }
    for (const QString& path : rights.writable) {
        files.AllowWriting(QFile::encodeName(path));
    }
    // The supervisor gives each worker a temporary folder of its own.
    files.AllowWriting(QFile::encodeName(QDir::tempPath()));
    AllowReports(files);
    return files.Restrict();
}

// The restrictions of files hold for one thread and those that it starts.
bool HasOneThread()
{
#ifdef Q_OS_LINUX
    constexpr nlink_t linksOfFolder = 2;
    struct stat threads;
    if (stat("/proc/self/task", &threads) == 0 && threads.st_nlink != linksOfFolder + 1) {
        errno = EBUSY;
        return false;
    }
#endif
    return true;
}

} // namespace

Confinement::Confinement()
{
#ifdef Q_OS_LINUX
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
#endif
    Bound(RLIMIT_CORE, 0);
    // A file that exceeds its limit and a supervisor that has ended are reported by the calls; signals would end the
    // process.
    std::signal(SIGXFSZ, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

bool Confinement::Confine(const WorkerRights& rights, const ServerLimits& limits)
{
    BoundResources(limits);
    if (HasOneThread() && RestrictFiles(rights) && filter.Load()) {
        return true;
    }
    std::fprintf(stderr, "VelkoraBatchWorker: the process cannot be confined: %s\n", std::strerror(errno));
    return false;
}

} // namespace BatchWorker
