// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Startup.h"

#include "hosts/common/RequestError.h"
#include "job/values/Phrase.h"
#include "server/protocol/ChildProcess.h"

#include <QFile>

#include <clocale>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <langinfo.h>
#include <unistd.h>

using namespace BatchHost;

namespace BatchCli {

namespace {

/// If a standard channel is closed, the next file that is opened takes its number, and receives what is meant for it.
/// Here they are opened in the wrong direction, so that reading and writing still fail.
void FillStandardChannels()
{
    for (int channel = STDIN_FILENO; channel <= STDERR_FILENO; ++channel) {
        if (fcntl(channel, F_GETFD) == -1) {
            open("/dev/null", channel == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}

/// Qt opens files in the locale's encoding. In the C locale of scripts and containers, neither this process nor the
/// server could open a file whose name has an accent. With other locales the system's messages would be in their
/// language, and would get into reports and JSON.
void UsePlainLocale()
{
    std::setlocale(LC_ALL, "");
    const bool isUtf8 = std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0;
    const QByteArray previous = qgetenv("LC_ALL");
    setenv("LC_ALL", "C.UTF-8", 1);
    if (std::setlocale(LC_ALL, "") == nullptr && isUtf8) {
        // A system without that locale.
        qputenv("LC_ALL", previous);
        std::setlocale(LC_ALL, "");
    }
}

} // namespace

void PrepareProcess()
{
    FillStandardChannels();
    BatchProtocol::EndForkedCopiesWithThisProcess();
    // A file that grows beyond the system's limit is a failed write, such as one to a full disk.
    std::signal(SIGXFSZ, SIG_IGN);
    UsePlainLocale();
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
            throw RequestError{BatchJob::Phrase::English("argument %1 (%2) is not valid UTF-8").arg(i).arg(argument)};
        }
        arguments.append(argument);
    }
    return arguments;
}

} // namespace BatchCli
