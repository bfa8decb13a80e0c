#include "Program.h"
#include "Startup.h"
#include "UsageError.h"

#include <QCoreApplication>

int main(int argc, char** argv)
{
    BatchCli::PrepareProcess();
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("velkora-batch"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VELKORA_BATCH_VERSION));
    try {
        return int(BatchCli::RunProgram(BatchCli::Arguments(argc, argv)));
    } catch (const UsageError& error) {
        return int(BatchCli::ReportUsageError(error.text));
    }
}
