// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerStage.h"

#include "ProcessEnd.h"
#include "ProgramFiles.h"
#include "ServerRules.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtEndian>

namespace {

const QString hidden = QStringLiteral(".hidden");

QByteArray Content(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

ServerStage::ServerStage()
{
    RemoveRecords();
    SetRules({});
}

ServerStage::~ServerStage()
{
    for (const qint64 pid : LivingServers()) {
        KillProcess(pid);
    }
    ShowServer();
    RemoveRecords();
}

void ServerStage::SetRules(const QStringList& rules)
{
    WriteServerRules(ServerPath(), rules);
}

QString ServerStage::ServerPath()
{
    return BuiltProgram(QStringLiteral("VelkoraBatchProcessing"));
}

QString ServerStage::PipeName()
{
    return QStringLiteral("\\\\.\\pipe\\VelkoraBatchProcessing");
}

void ServerStage::HideServer()
{
    QFile::rename(ServerPath(), ServerPath() + hidden);
}

void ServerStage::ShowServer()
{
    if (QFile::exists(ServerPath() + hidden)) {
        QFile::remove(ServerPath());
        QFile::rename(ServerPath() + hidden, ServerPath());
    }
}

QStringList ServerStage::Events() const
{
    return QString::fromUtf8(Content(ServerPath() + QStringLiteral(".events")))
        .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

int ServerStage::Count(const QString& event) const
{
    return Events().count(event);
}

QByteArray ServerStage::Received(int connection) const
{
    return Content(ServerPath() + QStringLiteral(".in.%1").arg(connection));
}

QString ServerStage::SessionId() const
{
    // Name: count 2, "0". Payload: its count, then the identifier's count and UTF-16.
    const QByteArray bytes = Received();
    constexpr int countPosition = 4 + 2 + 4;
    if (bytes.size() < countPosition + 4) {
        return QString();
    }
    const quint32 count = qFromBigEndian<quint32>(bytes.constData() + countPosition);
    QString id;
    for (int i = countPosition + 4; i + 1 < bytes.size() && i < countPosition + 4 + static_cast<int>(count); i += 2) {
        id.append(QChar(qFromBigEndian<quint16>(bytes.constData() + i)));
    }
    return id;
}

QList<qint64> ServerStage::LivingServers() const
{
    QList<qint64> living;
    for (const QString& event : Events()) {
        if (event.startsWith(QLatin1String("pid ")) && IsProcessAlive(event.mid(4).toLongLong())) {
            living.append(event.mid(4).toLongLong());
        }
    }
    return living;
}

void ServerStage::RemoveRecords()
{
    const QFileInfo server(ServerPath());
    const QDir folder = server.dir();
    const QStringList records =
        folder.entryList({server.fileName() + QStringLiteral(".script"), server.fileName() + QStringLiteral(".events"),
                          server.fileName() + QStringLiteral(".in.*")},
                         QDir::Files);
    for (const QString& record : records) {
        QFile::remove(folder.filePath(record));
    }
}
