// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PrivateBus.h"

#include <QFile>

namespace {

const char configuration[] = R"(<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <listen>unix:path=%1</listen>
  <auth>EXTERNAL</auth>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

PrivateBus::PrivateBus()
{
    QFile file(folder.filePath(QStringLiteral("bus.conf")));
    if (!file.open(QIODevice::WriteOnly)) {
        error = file.errorString();
        return;
    }
    file.write(QString::fromLatin1(configuration).arg(folder.filePath(QStringLiteral("bus"))).toUtf8());
    file.close();
    daemon.setStandardErrorFile(folder.filePath(QStringLiteral("log")));
    daemon.start(QStringLiteral("dbus-daemon"),
                 {QStringLiteral("--nofork"), QStringLiteral("--nopidfile"), QStringLiteral("--nosyslog"),
                  QStringLiteral("--print-address"), QStringLiteral("--config-file=") + file.fileName()});
    constexpr int patience = 30'000; // ms
    while (daemon.state() != QProcess::NotRunning && !daemon.canReadLine()) {
        if (!daemon.waitForReadyRead(patience)) {
            break;
        }
    }
    address = QString::fromLatin1(daemon.readLine().trimmed());
    if (address.isEmpty()) {
        error = QStringLiteral("dbus-daemon gives no address: ") + daemon.errorString();
        return;
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", address.toLatin1());
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", address.toLatin1());
}

PrivateBus::~PrivateBus()
{
    for (const QString& name : connections) {
        QDBusConnection::disconnectFromBus(name);
    }
    daemon.kill();
    daemon.waitForFinished();
}

QDBusConnection PrivateBus::NewConnection()
{
    connections.append(QStringLiteral("test-%1").arg(connections.size()));
    return QDBusConnection::connectToBus(address, connections.last());
}
