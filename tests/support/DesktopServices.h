// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "PrivateBus.h"

#include <QDBusUnixFileDescriptor>
#include <QDBusVariant>
#include <QObject>
#include <QVariantMap>

/// Services of a desktop, which keep account of what they are asked. Each is on the bus as long as it lives.

/// A service's name and object on a connection of its own.
class BusService : public QObject
{
    Q_OBJECT

public:
    BusService(PrivateBus& bus, const QString& service, const QString& path);
    ~BusService() override;

protected:
    /// To be called by the constructor of the service itself, when its slots can be seen.
    void Register();

private:
    QDBusConnection connection;
    const QString service;
    const QString path;
};

class NotificationService : public BusService
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Notification
    {
        QString application;
        uint replaces = 0;
        QString icon;
        QString summary;
        QString body;
        QStringList actions;
        QVariantMap hints;
    };

    explicit NotificationService(PrivateBus& bus);

    QList<Notification> shown;
    QList<uint> closed;
    QStringList capabilities{QStringLiteral("actions"), QStringLiteral("body"), QStringLiteral("body-markup")};

public Q_SLOTS:
    QStringList GetCapabilities() const { return capabilities; }
    uint Notify(const QString& application, uint replaces, const QString& icon, const QString& summary,
                const QString& body, const QStringList& actions, const QVariantMap& hints, int time);
    void CloseNotification(uint id) { closed.append(id); }

Q_SIGNALS:
    void ActionInvoked(uint id, const QString& key);
    void NotificationClosed(uint id, uint reason);
};

class LoginService : public BusService
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.login1.Manager")

public:
    explicit LoginService(PrivateBus& bus);
    ~LoginService() override;

    /// Whether a descriptor that was handed out is still open.
    bool IsBlocked() const;

    QList<QStringList> asked;

public Q_SLOTS:
    QDBusUnixFileDescriptor Inhibit(const QString& what, const QString& who, const QString& why, const QString& mode);

private:
    QList<int> readers;
};

class PowerService : public BusService
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.PowerManagement.Inhibit")

public:
    explicit PowerService(PrivateBus& bus);

    int asked = 0;
    QList<uint> open; ///< cookies that have not come back

public Q_SLOTS:
    uint Inhibit(const QString& application, const QString& reason);
    void UnInhibit(uint cookie) { open.removeAll(cookie); }
};

class PortalService : public BusService
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    PortalService(PrivateBus& bus, uint scheme);

    /// As if the user had changed it.
    void Change(uint newScheme);

    QList<QStringList> asked;

public Q_SLOTS:
    QDBusVariant Read(const QString& group, const QString& key);

Q_SIGNALS:
    void SettingChanged(const QString& group, const QString& key, const QDBusVariant& value);

private:
    uint scheme;
};

/// Hears what programs say of their symbols.
class Dock : public QObject
{
    Q_OBJECT

public:
    explicit Dock(PrivateBus& bus);

    QStringList programs;
    QList<QVariantMap> updates;

private Q_SLOTS:
    void OnUpdate(const QString& program, const QVariantMap& properties);

private:
    QDBusConnection connection;
};
