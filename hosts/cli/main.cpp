// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/cli/commands/Program.h"
#include "hosts/cli/terminal/Startup.h"
#include "hosts/common/Language.h"

#include <QCoreApplication>

using namespace BatchCli;

int main(int argc, char** argv)
{
    BatchHost::UseLanguageOfUser();
    PrepareProcess();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("velkora-batch"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VELKORA_BATCH_VERSION));
    try {
        return int(RunProgram(Arguments(argc, argv)));
    } catch (const BatchHost::RequestError& error) {
        return int(Report(error));
    }
}
