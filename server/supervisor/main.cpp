// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JobReader.h"
#include "ProcessSetup.h"
#include "Server.h"

#include "job/journal/LockFiles.h"
#include "job/values/VisibleText.h"
#include "server/protocol/ServerLimits.h"
#include "server/protocol/WorkerProgram.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>

using namespace BatchSupervisor;

namespace {

/// Standard error is the host's terminal, and a line may quote a worker.
void WriteLine(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (BatchJob::IsWarningOfLocks(text)) {
        return;
    }
    std::fprintf(stderr, "%s\n", BatchJob::VisibleText(text).toUtf8().constData());
    if (type == QtFatalMsg) {
        std::abort();
    }
}

} // namespace

int main(int argc, char** argv)
{
    const auto limits = BatchProtocol::ServerLimits::FromEnvironment();
    ProcessSetup::Prepare(limits.isInBackground);
    qInstallMessageHandler(&WriteLine);
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (arguments.size() != 1 || arguments[0].isEmpty()) {
        std::fprintf(stderr, "Usage: VelkoraBatchProcessing PIPE\n"
                             "PIPE is the name of the pipe on which the server listens for its host.\n");
        return 2;
    }
    if (arguments[0] == QLatin1String(JobReader::argument)) {
        return JobReader::RunProcess();
    }
    Server server(BatchProtocol::WorkerProgram(), limits);
    // Before any host can connect: it may ask for the end at once.
    ProcessSetup::OnEndRequest([&server] { server.End(); });
    ProcessSetup::OnStarterGone([&server] { server.EndWithoutHost(); });
    if (!server.Start(arguments[0])) {
        std::fprintf(stderr, "VelkoraBatchProcessing: the pipe \"%s\" cannot be opened: %s\n",
                     qUtf8Printable(arguments[0]), qUtf8Printable(server.Error()));
        return 1;
    }
    return QCoreApplication::exec();
}
