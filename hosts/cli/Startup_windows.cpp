#include "Startup.h"

#include <QCoreApplication>

#include <windows.h>

namespace BatchCli {

void PrepareProcess()
{
    SetConsoleOutputCP(CP_UTF8);
}

QStringList Arguments(int, char**)
{
    return QCoreApplication::arguments().mid(1);
}

} // namespace BatchCli
