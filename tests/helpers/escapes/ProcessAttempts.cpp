// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Attempts.h"

#include <cerrno>
#include <csignal>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <linux/bpf.h>
#include <linux/io_uring.h>
#include <linux/perf_event.h>
#include <linux/sched.h>
#include <pthread.h>
#include <sched.h>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <thread>

namespace {

int Socket(int family, int type)
{
    return Outcome(socket(family, type | SOCK_CLOEXEC, 0));
}

int ConnectToService()
{
    const int own = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (own < 0) {
        return errno;
    }
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::snprintf(address.sun_path, sizeof(address.sun_path), "service");
    return Outcome(connect(own, reinterpret_cast<const sockaddr*>(&address), sizeof(address)));
}

int AfterChild(pid_t child)
{
    if (child == 0) {
        _exit(EXIT_SUCCESS);
    }
    return Outcome(child);
}

int VictimsFiles()
{
    return int(syscall(__NR_pidfd_open, Victim(), 0));
}

int RaiseLimit(pid_t process)
{
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = limit.rlim_max;
    return Outcome(prlimit(process, RLIMIT_NOFILE, &limit, nullptr));
}

int StartProcessByClone3(std::uint64_t flags)
{
    clone_args arguments{};
    arguments.flags = flags;
    arguments.exit_signal = SIGCHLD;
    return AfterChild(pid_t(syscall(__NR_clone3, &arguments, sizeof(arguments))));
}

std::atomic<bool> wasSignalled{false};

} // namespace

/// Other processes, programs, sockets and what makes the cage larger.
Attempts ProcessAttempts()
{
    return {
        {"connect to a local service", [] { return ConnectToService(); }},
        {"a local socket", [] { return Socket(AF_UNIX, SOCK_DGRAM); }},
        {"a network socket", [] { return Socket(AF_INET, SOCK_STREAM); }},
        {"a socket of the kernel", [] { return Socket(AF_NETLINK, SOCK_RAW); }},
        {"a pair of sockets",
         [] {
             int pair[2];
             return Outcome(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pair));
         }},
        {"signal a process", [] { return Outcome(kill(Victim(), SIGUSR1)); }},
        {"signal a thread of a process", [] { return Outcome(syscall(__NR_tgkill, Victim(), Victim(), SIGUSR1)); }},
        {"signal a process by its descriptor",
         [] {
             const int process = VictimsFiles();
             return process < 0 ? errno : Outcome(syscall(__NR_pidfd_send_signal, process, SIGUSR1, nullptr, 0));
         }},
        {"signal a process through a file",
         [] {
             int ends[2];
             return pipe2(ends, O_CLOEXEC) != 0 ? errno : Outcome(fcntl(ends[0], F_SETOWN, Victim()));
         }},
        {"take a file of a process",
         [] {
             const int process = VictimsFiles();
             return process < 0 ? errno : Outcome(syscall(__NR_pidfd_getfd, process, STDIN_FILENO, 0));
         }},
        {"fork", [] { return AfterChild(fork()); }},
        {"vfork",
         [] {
             // By its flag: the function itself would return twice in this frame.
             return AfterChild(pid_t(syscall(__NR_clone, CLONE_VFORK | SIGCHLD, nullptr, nullptr, nullptr, 0)));
         }},
        {"start a process by clone3", [] { return StartProcessByClone3(0); }},
        {"start a program",
         [] {
             execl("/bin/echo", "echo", "done", nullptr);
             return errno;
         }},
        {"a namespace of users", [] { return Outcome(unshare(CLONE_NEWUSER)); }},
        {"a process in a namespace of users",
         [] { return AfterChild(pid_t(syscall(__NR_clone, CLONE_NEWUSER | SIGCHLD, nullptr, nullptr, nullptr, 0))); }},
        {"a process in a namespace of users by clone3", [] { return StartProcessByClone3(CLONE_NEWUSER); }},
        {"mount",
         [] { return mount("none", "out", "tmpfs", 0, nullptr) != 0 ? errno : Outcome(umount2("out", MNT_DETACH)); }},
        {"change the root folder", [] { return Outcome(chroot("secrets")); }},
        {"raise a limit", [] { return RaiseLimit(0); }},
        {"raise a limit of a process", [] { return RaiseLimit(Victim()); }},
        {"outlive the supervisor", [] { return Outcome(prctl(PR_SET_PDEATHSIG, 0)); }},
        {"change whether memory is open to others", [] { return Outcome(prctl(PR_SET_DUMPABLE, 0)); }},
        {"leave the session", [] { return Outcome(setpgid(0, 0)); }},
        {"change the priority", [] { return Outcome(setpriority(PRIO_PROCESS, id_t(Victim()), 1)); }},
        {"control a device",
         [] {
             int ends[2];
             int waiting = 0;
             return pipe2(ends, O_CLOEXEC) != 0 ? errno : Outcome(ioctl(ends[0], FIONREAD, &waiting));
         }},
        {"io_uring",
         [] {
             io_uring_params parameters{};
             return Outcome(syscall(__NR_io_uring_setup, 1, &parameters));
         }},
        {"a program in the kernel",
         [] {
             bpf_attr attributes{};
             attributes.map_type = BPF_MAP_TYPE_ARRAY;
             attributes.key_size = sizeof(int);
             attributes.value_size = sizeof(int);
             attributes.max_entries = 1;
             return Outcome(syscall(__NR_bpf, BPF_MAP_CREATE, &attributes, sizeof(attributes)));
         }},
        {"count events of the processor",
         [] {
             perf_event_attr attributes{};
             attributes.type = PERF_TYPE_SOFTWARE;
             attributes.size = sizeof(attributes);
             attributes.config = PERF_COUNT_SW_TASK_CLOCK;
             return Outcome(syscall(__NR_perf_event_open, &attributes, 0, -1, -1, 0));
         }},
        {"needed: start a thread",
         [] {
             int answer = EAGAIN;
             std::thread([&answer] {
                 pthread_setname_np(pthread_self(), "worker");
                 answer = 0;
             }).join();
             return answer;
         }},
        {"needed: signal itself",
         [] {
             std::signal(SIGUSR2, [](int) { wasSignalled = true; });
             return raise(SIGUSR2) == 0 && wasSignalled ? 0 : EPERM;
         }},
        {"needed: read its limits",
         [] {
             rlimit limit{};
             return Outcome(getrlimit(RLIMIT_DATA, &limit));
         }},
    };
}
