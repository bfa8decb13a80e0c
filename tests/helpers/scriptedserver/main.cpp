// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ProcessEnd.h"
#include "ScriptedServer.h"

#include <QCoreApplication>
#include <QTimer>

#include <cstdlib>

int main(int argc, char** argv)
{
    EndWithParent();
    CrashQuietly();
    QCoreApplication application(argc, argv);

    // Longer than any test waits: a server that a test has forgotten ends by itself.
    QTimer::singleShot(300000, [] { std::_Exit(99); });

    ScriptedServer server(QCoreApplication::applicationFilePath(), QCoreApplication::arguments().value(1));
    QTimer::singleShot(0, &server, &ScriptedServer::Begin);
    return QCoreApplication::exec();
}
