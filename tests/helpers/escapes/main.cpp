// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Attempts.h"

#include "server/worker/process/Confinement.h"

#include <QCoreApplication>
#include <QDir>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

pid_t victim = 0;

// Ends with this process: by the end of a pipe, because the signal for that would come from inside of the cage.
void StartVictim()
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0) {
        std::perror("there is no pipe");
        std::exit(EXIT_FAILURE);
    }
    victim = fork();
    if (victim == 0) {
        prctl(PR_SET_PTRACER, PR_SET_PTRACER_ANY);
        std::signal(SIGUSR1, SIG_IGN);
        close(ends[1]);
        close(STDOUT_FILENO);
        close(STDERR_FILENO);
        char byte = 0;
        while (read(ends[0], &byte, 1) != 0) {
        }
        _exit(EXIT_SUCCESS);
    }
}

// A service of this user, in the current folder.
void StartService()
{
    const int service = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::snprintf(address.sun_path, sizeof(address.sun_path), "service");
    unlink(address.sun_path);
    if (bind(service, reinterpret_cast<const sockaddr*>(&address), sizeof(address)) != 0 || listen(service, 1) != 0) {
        std::perror("there is no service");
        std::exit(EXIT_FAILURE);
    }
}

// Something that can be raised without being root.
void LowerALimit()
{
    constexpr rlim_t few = 64;
    rlimit limit{};
    getrlimit(RLIMIT_NOFILE, &limit);
    limit.rlim_cur = few;
    setrlimit(RLIMIT_NOFILE, &limit);
}

} // namespace

volatile int victimsSecret = 1;

pid_t Victim()
{
    return victim;
}

int Outcome(long result)
{
    return result < 0 ? errno : 0;
}

/// Does what the second argument says in the current folder; with the first argument "caged" as a confined worker,
/// whose job reads the folder "inputs" and writes the folder "out". Prints "done", or the number of the system's error.
int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Attempts attempts = FileAttempts();
    attempts.merge(ProcessAttempts());
    attempts.merge(MemoryAttempts());
    attempts.merge(NeededWork());
    const auto attempt = argc == 3 ? attempts.find(argv[2]) : attempts.end();
    if (attempt == attempts.end()) {
        std::fprintf(stderr, "there is no such attempt\n");
        return EXIT_FAILURE;
    }
    StartService();
    StartVictim();
    LowerALimit();
    if (std::string(argv[1]) == "caged") {
        Confinement confinement;
        WorkerRights rights;
        rights.readable = QStringList(QDir::current().filePath(QStringLiteral("inputs")));
        rights.writable = QStringList(QDir::current().filePath(QStringLiteral("out")));
        rights.usesFonts = true;
        if (!confinement.Confine(rights, ServerLimits())) {
            return EXIT_FAILURE;
        }
    }
    const int problem = attempt->second();
    if (problem == 0) {
        std::printf("done\n");
    } else {
        std::printf("%d\n", problem);
    }
    return EXIT_SUCCESS;
}
