// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// Writes the manual page and the completions: shelldocs FRAME FOLDER.

#include "ShellDocs.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <cstdio>

using namespace BatchCli;

namespace {

bool Write(const QString& path, const QString& text)
{
    QFile file(path);
    const QByteArray bytes = text.toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationVersion(QStringLiteral(VELKORA_BATCH_VERSION));
    QFile frame(QCoreApplication::arguments().value(1));
    const QDir folder(QCoreApplication::arguments().value(2));
    if (argc != 3 || !frame.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "Usage: shelldocs FRAME FOLDER\n");
        return 2;
    }
    const bool isWritten =
        Write(folder.filePath(QStringLiteral("velkora-batch.1")), ManualPage(QString::fromUtf8(frame.readAll()))) &&
        Write(folder.filePath(QStringLiteral("velkora-batch.bash")), BashCompletion()) &&
        Write(folder.filePath(QStringLiteral("_velkora-batch")), ZshCompletion()) &&
        Write(folder.filePath(QStringLiteral("velkora-batch.fish")), FishCompletion());
    return isWritten ? 0 : 1;
}
