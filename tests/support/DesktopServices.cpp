// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "DesktopServices.h"

#include <algorithm>

#include <fcntl.h>
#include <unistd.h>

BusService::BusService(PrivateBus& bus, const QString& service, const QString& path)
    : connection(bus.NewConnection())
    , service(service)
    , path(path)
{
}

BusService::~BusService()
{
    connection.unregisterService(service);
    connection.unregisterObject(path);
}

void BusService::Register()
{
    connection.registerObject(path, this, QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals);
    connection.registerService(service);
}

NotificationService::NotificationService(PrivateBus& bus)
    : BusService(bus, QStringLiteral("org.freedesktop.Notifications"), QStringLiteral("/org/freedesktop/Notifications"))
{
    Register();
}

uint NotificationService::Notify(const QString& application, uint replaces, const QString& icon, const QString& summary,
                                 const QString& body, const QStringList& actions, const QVariantMap& hints, int)
{
    shown.append({application, replaces, icon, summary, body, actions, hints});
    return replaces != 0 ? replaces : uint(shown.size());
}

LoginService::LoginService(PrivateBus& bus)
    : BusService(bus, QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"))
{
    Register();
}

LoginService::~LoginService()
{
    for (const int reader : readers) {
        close(reader);
    }
}

QDBusUnixFileDescriptor LoginService::Inhibit(const QString& what, const QString& who, const QString& why,
                                              const QString& mode)
{
    asked.append({what, who, why, mode});
    int ends[2];
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) {
        return {};
    }
    readers.append(ends[0]);
    QDBusUnixFileDescriptor descriptor(ends[1]); // It has a copy.
    close(ends[1]);
    return descriptor;
}

bool LoginService::IsBlocked() const
{
    return std::any_of(readers.cbegin(), readers.cend(), [](int reader) {
        char byte = 0;
        return read(reader, &byte, 1) != 0; // The end of the file is there when nobody has the other end.
    });
}

PowerService::PowerService(PrivateBus& bus)
    : BusService(bus, QStringLiteral("org.freedesktop.PowerManagement"),
                 QStringLiteral("/org/freedesktop/PowerManagement/Inhibit"))
{
    Register();
}

uint PowerService::Inhibit(const QString&, const QString&)
{
    open.append(uint(++asked));
    return uint(asked);
}

PortalService::PortalService(PrivateBus& bus, uint scheme)
    : BusService(bus, QStringLiteral("org.freedesktop.portal.Desktop"),
                 QStringLiteral("/org/freedesktop/portal/desktop"))
    , scheme(scheme)
{
    Register();
}

void PortalService::Change(uint newScheme)
{
    scheme = newScheme;
    Q_EMIT SettingChanged(QStringLiteral("org.freedesktop.appearance"), QStringLiteral("color-scheme"),
                          QDBusVariant(scheme));
}

// The portal puts its answer into one variant more than is needed.
QDBusVariant PortalService::Read(const QString& group, const QString& key)
{
    asked.append({group, key});
    return QDBusVariant(QVariant::fromValue(QDBusVariant(scheme)));
}

Dock::Dock(PrivateBus& bus)
    : connection(bus.NewConnection())
{
    connection.connect({}, {}, QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"), this,
                       SLOT(OnUpdate(QString, QVariantMap)));
}

void Dock::OnUpdate(const QString& program, const QVariantMap& properties)
{
    programs.append(program);
    updates.append(properties);
}
