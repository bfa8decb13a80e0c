// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerNotes.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMutex>

namespace {

/// The library tries once a second, and kills a server that has not opened its pipe after 25 seconds.
constexpr int attemptsOfSilentServer = 20;

QtMessageHandler nextHandler = nullptr;
QMutex mutex; // The pipe has a thread of its own, which writes lines too.
int attempts = 0;
bool isPipeOfAnotherUser = false;

void ReadLine(QtMsgType type, const QMessageLogContext& context, const QString& line)
{
    mutex.lock();
    const bool isNobodyThere =
        line.endsWith(QLatin1String("] Socket error: 0")) || line.endsWith(QLatin1String("] Socket error: 2"));
    attempts += isNobodyThere ? 1 : 0;
    isPipeOfAnotherUser |= line.endsWith(QLatin1String("] The pipe belongs to another user."));
    mutex.unlock();
    nextHandler(type, context, line);
}

QString Text(const char* text)
{
    return QCoreApplication::translate("ServerNotes", text);
}

} // namespace

void ServerNotes::Install()
{
    nextHandler = qInstallMessageHandler(&ReadLine);
}

void ServerNotes::Forget()
{
    const QMutexLocker locker(&mutex);
    attempts = 0;
    isPipeOfAnotherUser = false;
}

QString ServerNotes::Explanation()
{
    QString program = QCoreApplication::applicationDirPath() + QStringLiteral("/VelkoraBatchProcessing");
#ifdef Q_OS_WIN
    program += QStringLiteral(".exe");
#endif
    if (!QFileInfo(program).isExecutable()) {
        return Text("%1 is missing, or may not be run.").arg(program);
    }
    const QMutexLocker locker(&mutex);
    if (isPipeOfAnotherUser) {
        return Text("The pipe in the folder for temporary files belongs to another user.");
    }
    if (attempts >= attemptsOfSilentServer) {
        return Text("It has not opened its pipe in time.");
    }
    return Text("Its last words are on the standard error of this program.");
}
