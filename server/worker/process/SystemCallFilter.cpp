#include "SystemCallFilter.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <vector>

#if defined(__linux__) && (defined(__x86_64__) || defined(__aarch64__))
#include <linux/audit.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/syscall.h>

namespace BatchWorker {

namespace {

#ifdef __x86_64__
constexpr unsigned architecture = AUDIT_ARCH_X86_64;
#else
constexpr unsigned architecture = AUDIT_ARCH_AARCH64;
#endif

// Calls that start other programs, reach into other processes, or get around this filter. The leak checker of the
// sanitizers stops the process by ptrace.
constexpr std::array refusedCalls
{
    __NR_execve, __NR_execveat, __NR_process_vm_readv, __NR_process_vm_writev, __NR_io_uring_setup, __NR_bpf,
        __NR_perf_event_open, __NR_userfaultfd, __NR_keyctl, __NR_add_key, __NR_mount, __NR_unshare, __NR_setns,
        __NR_kexec_load, __NR_init_module, __NR_finit_module,
#if !defined(__SANITIZE_ADDRESS__)
        __NR_ptrace,
#endif
};

sock_filter Statement(unsigned code, unsigned value)
{
    return {static_cast<unsigned short>(code), 0, 0, value};
}

sock_filter Jump(unsigned value, unsigned char ifEqual, unsigned char ifNot)
{
    return {BPF_JMP | BPF_JEQ | BPF_K, ifEqual, ifNot, value};
}

std::vector<sock_filter> Program()
{
    constexpr unsigned load = BPF_LD | BPF_W | BPF_ABS;
    constexpr unsigned give = BPF_RET | BPF_K;
    const sock_filter refuse = Statement(give, SECCOMP_RET_ERRNO | EACCES);
    const sock_filter allow = Statement(give, SECCOMP_RET_ALLOW);
    // Other architectures number their calls differently: none of theirs is allowed.
    std::vector<sock_filter> program{Statement(load, offsetof(seccomp_data, arch)), Jump(architecture, 1, 0),
                                     Statement(give, SECCOMP_RET_KILL_PROCESS),
                                     Statement(load, offsetof(seccomp_data, nr))};
#ifdef __x86_64__
    // The same holds for the second table of calls that this architecture has.
    constexpr unsigned secondTable = 0x40000000;
    program.push_back({BPF_JMP | BPF_JGE | BPF_K, 0, 1, secondTable});
    program.push_back(refuse);
#endif
    for (const int call : refusedCalls) {
        program.push_back(Jump(unsigned(call), 0, 1));
        program.push_back(refuse);
    }
    program.push_back(Jump(__NR_socket, 1, 0));
    program.push_back(allow);
    program.push_back(Statement(load, offsetof(seccomp_data, args[0])));
    program.push_back(Jump(AF_UNIX, 0, 1));
    program.push_back(allow);
    program.push_back(refuse);
    return program;
}

} // namespace

bool FilterSystemCalls()
{
    std::vector<sock_filter> program = Program();
    const sock_fprog filter{static_cast<unsigned short>(program.size()), program.data()};
    return prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) == 0 && prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) == 0;
}

} // namespace BatchWorker

#else

namespace BatchWorker {

bool FilterSystemCalls()
{
    return false;
}

} // namespace BatchWorker

#endif
