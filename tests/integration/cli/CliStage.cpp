// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"

#include "ProgramFiles.h"
#include "ServerRules.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace {

const QString serverName = QStringLiteral("VelkoraBatchProcessing");

} // namespace

CliStage::CliStage(Server server)
    : environment(QProcessEnvironment::systemEnvironment())
{
    Place(QStringLiteral("velkora-batch"), QStringLiteral("velkora-batch"));
    if (server == Server::Scripted) {
        Place(QStringLiteral("scriptedserver"), serverName);
    } else if (server != Server::Missing) {
        Place(serverName, serverName);
    }
    if (server == Server::StandIn) {
        PlaceWorker();
    }
    environment.insert(QStringLiteral("TMPDIR"), programs.path());
    environment.insert(QStringLiteral("VELKORA_BATCH_WORKERS"), QStringLiteral("2"));
#ifdef Q_OS_WIN
    environment.insert(QStringLiteral("TMP"), QDir::toNativeSeparators(programs.path()));
    // Windows finds libraries beside the executable or on this path.
    environment.insert(QStringLiteral("PATH"), QDir::toNativeSeparators(QCoreApplication::applicationDirPath()) +
                                                   QLatin1Char(';') + environment.value(QStringLiteral("PATH")));
#endif
}

QString CliStage::Program() const
{
    return Executable(QStringLiteral("velkora-batch"));
}

void CliStage::PlaceWorker() const
{
    Place(QStringLiteral("standinworker"), QStringLiteral("VelkoraBatchWorker"));
}

void CliStage::Play(const QStringList& rules) const
{
    WriteServerRules(Executable(serverName), rules);
}

void CliStage::PlayNext(const QStringList& rules) const
{
    WriteNextServerRules(Executable(serverName), rules);
}

QString CliStage::Write(const QString& name, const QByteArray& content) const
{
    const QString path = Path(name);
    QFile file(path);
    if (!QDir().mkpath(QFileInfo(path).path()) || !file.open(QIODevice::WriteOnly) ||
        file.write(content) != content.size()) {
        qFatal("%s cannot be written", qUtf8Printable(path));
    }
    return path;
}

QByteArray CliStage::Content(const QString& name) const
{
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? QByteArray("") + file.readAll() : QByteArray();
}

QStringList CliStage::Names(const QString& folder) const
{
    return QDir(Path(folder)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
}

QStringList CliStage::Arguments(const QString& arguments) const
{
    QStringList all = arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (all.value(0) == QLatin1String("run") || all.value(0) == QLatin1String("watch")) {
        all << QStringLiteral("--settings") << Path(QStringLiteral("settings"));
    }
    return all;
}

QString CliStage::Executable(const QString& name) const
{
    return programs.filePath(ProgramFileName(name));
}

void CliStage::Place(const QString& built, const QString& name) const
{
    const QString from = BuiltProgram(built);
    if (!QFile::copy(from, Executable(name))) {
        qFatal("%s cannot be copied", qUtf8Printable(from));
    }
}
