// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SystemCallFilter.h"

#include "server/protocol/SystemProtection.h"

#ifdef Q_OS_LINUX

#include <array>
#include <cerrno>
#include <fcntl.h>
#include <initializer_list>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace BatchWorker {

namespace {

// By name: architectures have some of them only, and number them differently.
constexpr std::array allowedCalls
{
    // memory
    "brk", "madvise", "mincore", "mremap", "munmap",
        // threads
        "exit", "futex", "futex_waitv", "get_robust_list", "getcpu", "membarrier", "rseq", "sched_getaffinity",
        "sched_getattr", "sched_getparam", "sched_getscheduler", "sched_yield", "set_robust_list", "set_tid_address",
        // the process
        "exit_group", "getegid", "geteuid", "getgid", "getpid", "getppid", "getrandom", "getrlimit", "getrusage",
        "getresgid", "getresuid", "gettid", "getuid", "restart_syscall", "rt_sigaction", "rt_sigpending",
        "rt_sigprocmask", "rt_sigreturn", "rt_sigsuspend", "rt_sigtimedwait", "sigaltstack", "sigreturn", "sysinfo",
        "times", "ugetrlimit", "uname",
        // time
        "clock_getres", "clock_gettime", "clock_gettime64", "clock_nanosleep", "clock_nanosleep_time64", "gettimeofday",
        "nanosleep", "time",
        // open files
        "_llseek", "close", "close_range", "copy_file_range", "dup", "dup2", "dup3", "fadvise64", "fadvise64_64",
        "fallocate", "fdatasync", "flock", "fstat", "fstat64", "fstatfs", "fstatfs64", "fsync", "ftruncate",
        "ftruncate64", "lseek", "pread64", "preadv", "preadv2", "pwrite64", "pwritev", "pwritev2", "read", "readv",
        "sendfile", "sendfile64", "sync_file_range", "write", "writev",
        // files by their names: Landlock says which
        "access", "faccessat", "faccessat2", "fstatat64", "getcwd", "getdents", "getdents64", "link", "linkat", "lstat",
        "lstat64", "mkdir", "mkdirat", "newfstatat", "open", "openat", "openat2", "readlink", "readlinkat", "rename",
        "renameat", "renameat2", "stat", "stat64", "statfs", "statfs64", "statx", "umask", "unlink", "unlinkat",
        // waiting
        "_newselect", "epoll_create1", "epoll_ctl", "epoll_pwait", "epoll_wait", "eventfd2", "pipe", "pipe2", "poll",
        "ppoll", "ppoll_time64", "pselect6", "pselect6_time64", "select",
#if defined(__SANITIZE_ADDRESS__)
        // The leak checker stops the threads of this process by a tracer, which is a process that shares its memory.
        "clone", "prctl", "ptrace", "wait4", "waitid", "tgkill", "kill",
#endif
};

// Commands of fcntl() that concern this process and its files only. Others have the kernel send signals.
constexpr std::array fileCommands{F_DUPFD, F_DUPFD_CLOEXEC, F_GETFD,  F_SETFD,     F_GETFL,     F_SETFL,
                                  F_GETLK, F_SETLK,         F_SETLKW, F_OFD_GETLK, F_OFD_SETLK, F_OFD_SETLKW};

// The flags of clone() that make something else than a thread of this process.
constexpr scmp_datum_t aThread = CLONE_THREAD | CLONE_VM | CLONE_SIGHAND;
constexpr scmp_datum_t moreThanAThread = CLONE_NEWNS | CLONE_NEWCGROUP | CLONE_NEWUTS | CLONE_NEWIPC | CLONE_NEWUSER |
                                         CLONE_NEWPID | CLONE_NEWNET | CLONE_PARENT | CLONE_VFORK | CLONE_PTRACE;

// Compares the bits of `mask` in an argument. The upper half of an argument that is an `int` may hold anything.
scmp_arg_cmp Bits(unsigned argument, scmp_datum_t mask, scmp_datum_t value)
{
    return {argument, SCMP_CMP_MASKED_EQ, mask, value};
}

scmp_arg_cmp IsInt(unsigned argument, scmp_datum_t value)
{
    constexpr scmp_datum_t bitsOfInt = 0xFFFFFFFF;
    return Bits(argument, bitsOfInt, value & bitsOfInt);
}

scmp_arg_cmp IsNull(unsigned argument)
{
    return {argument, SCMP_CMP_EQ, 0, 0};
}

/// Adds rules to a filter, and notes whether one of them failed.
class Rules
{
public:
    explicit Rules(scmp_filter_ctx context)
        : context(context)
    {
    }

    void Allow(const char* call, std::initializer_list<scmp_arg_cmp> conditions = {})
    {
        const int number = seccomp_syscall_resolve_name(call);
        const bool isKnown = number >= 0;
        if (isKnown && seccomp_rule_add_array(context, SCMP_ACT_ALLOW, number, unsigned(conditions.size()),
                                              conditions.begin()) != 0) {
            hasFailed = true;
        }
    }

    bool HasFailed() const { return hasFailed; }

private:
    scmp_filter_ctx context;
    bool hasFailed = false;
};

void AllowAll(Rules& rules)
{
    for (const char* call : allowedCalls) {
        rules.Allow(call);
    }
    for (const int command : fileCommands) {
        rules.Allow("fcntl", {IsInt(1, scmp_datum_t(command))});
        rules.Allow("fcntl64", {IsInt(1, scmp_datum_t(command))});
    }
    for (const char* call : {"mmap", "mmap2", "mprotect"}) {
        rules.Allow(call, {Bits(2, PROT_EXEC, 0)});
    }
    // Times of open files, not of files by their names, which Landlock does not protect.
    rules.Allow("utimensat", {IsNull(1)});
    rules.Allow("utimensat_time64", {IsNull(1)});
    // Limits can be read, those of this process.
    rules.Allow("prlimit64", {IsInt(0, 0), IsNull(2)});
#if !defined(__SANITIZE_ADDRESS__)
    // clone3() hides its flags behind a pointer; where it is missing, libraries call clone().
    rules.Allow("clone", {Bits(0, aThread | moreThanAThread, aThread)});
    rules.Allow("prctl", {IsInt(0, PR_SET_NAME)});
    // A process that aborts signals itself.
    rules.Allow("tgkill", {IsInt(0, scmp_datum_t(getpid()))});
#endif
}

} // namespace

SystemCallFilter::SystemCallFilter()
{
    if (!BatchProtocol::SystemProtection::OfThisSystem().hasCallFilter) {
        return;
    }
    context = seccomp_init(SCMP_ACT_ERRNO(ENOSYS));
    if (!context) {
        hasFailed = true;
        return;
    }
    constexpr unsigned asATree = 2; // so that a call costs few comparisons
    Rules rules(context);
    AllowAll(rules);
    hasFailed = rules.HasFailed() || seccomp_attr_set(context, SCMP_FLTATR_CTL_OPTIMIZE, asATree) != 0 ||
                seccomp_attr_set(context, SCMP_FLTATR_CTL_TSYNC, 1) != 0;
}

SystemCallFilter::~SystemCallFilter()
{
    if (context) {
        seccomp_release(context);
    }
}

bool SystemCallFilter::Load()
{
    return !hasFailed && (!context || seccomp_load(context) == 0);
}

} // namespace BatchWorker

#else

namespace BatchWorker {

SystemCallFilter::SystemCallFilter() = default;
SystemCallFilter::~SystemCallFilter() = default;

bool SystemCallFilter::Load()
{
    return true;
}

} // namespace BatchWorker

#endif
