// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Attempts.h"

#include <cerrno>
#include <fcntl.h>
#include <linux/keyctl.h>
#include <sys/mman.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <unistd.h>

#include <string>

namespace {

constexpr std::size_t pageSize = 4096;

int Map(int protection, int flags, int file)
{
    return mmap(nullptr, pageSize, protection, flags, file, 0) == MAP_FAILED ? errno : 0;
}

void* VictimsSecret()
{
    return const_cast<int*>(&victimsSecret);
}

int OpenVictimsMemory(int flags)
{
    return open(("/proc/" + std::to_string(Victim()) + "/mem").c_str(), flags | O_CLOEXEC);
}

} // namespace

/// Memory of other processes, and memory for new code.
Attempts MemoryAttempts()
{
    return {
        {"write into a process through its files",
         [] {
             const int memory = OpenVictimsMemory(O_RDWR);
             const int secret = 2;
             return memory < 0 ? errno
                               : Outcome(pwrite(memory, &secret, sizeof(secret), off_t(std::size_t(VictimsSecret()))));
         }},
        {"read the memory of a process through its files", [] { return Outcome(OpenVictimsMemory(O_RDONLY)); }},
        {"write into a process",
         [] {
             int secret = 2;
             const iovec from{&secret, sizeof(secret)};
             const iovec to{VictimsSecret(), sizeof(secret)};
             return Outcome(process_vm_writev(Victim(), &from, 1, &to, 1, 0));
         }},
        {"read the memory of a process",
         [] {
             int secret = 0;
             const iovec to{&secret, sizeof(secret)};
             const iovec from{VictimsSecret(), sizeof(secret)};
             return Outcome(process_vm_readv(Victim(), &to, 1, &from, 1, 0));
         }},
        {"trace a process", [] { return Outcome(ptrace(PTRACE_SEIZE, Victim(), nullptr, nullptr)); }},
        {"make memory that is writable and executable",
         [] { return Map(PROT_READ | PROT_WRITE | PROT_EXEC, MAP_PRIVATE | MAP_ANONYMOUS, -1); }},
        {"make written memory executable",
         [] {
             void* const memory = mmap(nullptr, pageSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
             return Outcome(mprotect(memory, pageSize, PROT_READ | PROT_EXEC));
         }},
        {"make written memory executable with a key",
         [] {
             void* const memory = mmap(nullptr, pageSize, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
             return Outcome(syscall(__NR_pkey_mprotect, memory, pageSize, PROT_READ | PROT_EXEC, -1));
         }},
        {"execute a written file",
         [] {
             const int file = open("out/result", O_RDWR | O_CLOEXEC);
             return file < 0 ? errno : Map(PROT_READ | PROT_EXEC, MAP_PRIVATE, file);
         }},
        {"a file in memory", [] { return Outcome(memfd_create("code", MFD_CLOEXEC)); }},
        {"handle page faults", [] { return Outcome(syscall(__NR_userfaultfd, O_CLOEXEC)); }},
        {"take a key of the kernel", [] { return Outcome(syscall(__NR_keyctl, KEYCTL_GET_KEYRING_ID, -3, 1)); }},
    };
}
