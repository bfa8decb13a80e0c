#include "Startup.h"

#include "hosts/common/RequestError.h"

#include <QFile>

#include <clocale>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <langinfo.h>
#include <unistd.h>

#ifdef Q_OS_LINUX
#include <pthread.h>
#include <sys/prctl.h>
#endif

using namespace BatchHost;

namespace BatchCli {

namespace {

/// Where standard input, output or error is closed, the next file that is opened would take its place, and get what is
/// meant for it. They are opened the wrong way round, so that reading and writing fails as before.
void FillStandardChannels()
{
    for (int channel = STDIN_FILENO; channel <= STDERR_FILENO; ++channel) {
        if (fcntl(channel, F_GETFD) == -1) {
            open("/dev/null", channel == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}

#ifdef Q_OS_LINUX

pid_t ownId = 0;

void EndWithThisProcess()
{
    prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (getppid() != ownId) {
        _exit(1); // It has gone already.
    }
}

/// QProcess starts a program from a copy of this process, which may wait for a word of this one first. If this one were
/// killed meanwhile, the copy would wait for ever, and hold on to the lock of the run, which nobody could take up
/// again. The server that it becomes sets itself free.
void BindCopies()
{
    ownId = getpid();
    pthread_atfork(nullptr, nullptr, EndWithThisProcess);
}

#else

void BindCopies() {}

#endif

} // namespace

void PrepareProcess()
{
    FillStandardChannels();
    BindCopies();
    // Qt opens files by the locale's encoding. In the C locale of scripts and containers every name with an accent
    // would be out of reach, for the server too.
    std::setlocale(LC_ALL, "");
    if (std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0) {
        setenv("LC_ALL", "C.UTF-8", 1);
        std::setlocale(LC_ALL, "");
    }
}

void OutliveReaders()
{
    std::signal(SIGPIPE, SIG_IGN);
}

QStringList Arguments(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i) {
        const QString argument = QFile::decodeName(argv[i]);
        if (QFile::encodeName(argument) != argv[i]) {
            throw RequestError{QStringLiteral("argument %1 (%2) is not valid UTF-8").arg(i).arg(argument)};
        }
        arguments.append(argument);
    }
    return arguments;
}

} // namespace BatchCli
