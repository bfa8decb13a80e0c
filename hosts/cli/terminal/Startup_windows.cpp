// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Startup.h"

#include <QCoreApplication>

#include <cstdio>
#include <fcntl.h>
#include <io.h>
#include <qt_windows.h>

namespace BatchCli {

void PrepareProcess()
{
    SetConsoleOutputCP(CP_UTF8);
    // Programs that read the output get the same bytes on every system.
    _setmode(_fileno(stdout), _O_BINARY);
    _setmode(_fileno(stderr), _O_BINARY);
}

void OutliveReaders() {}

QStringList Arguments(int, char**)
{
    return QCoreApplication::arguments().mid(1);
}

} // namespace BatchCli
