// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "SleepBlocker.h"

#include "BusCalls_unix.h"
#include "DesktopNames.h"

#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>

#include <optional>

namespace BatchDesktop {

namespace {

const BusObject loginManager{QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1"),
                             QStringLiteral("org.freedesktop.login1.Manager")};

const BusObject powerManagement{QStringLiteral("org.freedesktop.PowerManagement"),
                                QStringLiteral("/org/freedesktop/PowerManagement/Inhibit"),
                                QStringLiteral("org.freedesktop.PowerManagement.Inhibit")};

} // namespace

/// The login manager blocks as long as the descriptor is open that it hands out; where it is absent, a power manager
/// gives a cookie. An answer that comes when sleep is allowed again is given back at once.
class SleepBlocker::Link : public QObject
{
public:
    void Block(const QString& reasonOfBlock)
    {
        isWanted = true;
        reason = reasonOfBlock;
        AskLoginManager();
    }

    void Release()
    {
        isWanted = false;
        descriptor = {};
        if (cookie) {
            TellOnBus(session, powerManagement, QStringLiteral("UnInhibit"), {*cookie});
            cookie.reset();
        }
    }

private:
    void AskLoginManager()
    {
        if (isAsking || descriptor.isValid() || cookie) {
            return;
        }
        isAsking = true;
        CallOnBus(system, loginManager, QStringLiteral("Inhibit"),
                  {QStringLiteral("sleep:idle"), applicationTitle, reason, QStringLiteral("block")}, this,
                  [this](const QDBusPendingReply<QDBusUnixFileDescriptor>& reply) {
                      if (reply.isError()) {
                          AskPowerManagement();
                          return;
                      }
                      isAsking = false;
                      descriptor = isWanted ? reply.value() : QDBusUnixFileDescriptor();
                  });
    }

    void AskPowerManagement()
    {
        CallOnBus(session, powerManagement, QStringLiteral("Inhibit"), {applicationTitle, reason}, this,
                  [this](const QDBusPendingReply<uint>& reply) {
                      isAsking = false;
                      if (reply.isError()) {
                          return;
                      }
                      cookie = reply.value();
                      if (!isWanted) {
                          Release();
                      }
                  });
    }

    QDBusConnection system = QDBusConnection::systemBus();
    QDBusConnection session = QDBusConnection::sessionBus();
    bool isWanted = false;
    bool isAsking = false;
    QString reason;
    QDBusUnixFileDescriptor descriptor;
    std::optional<uint> cookie;
};

SleepBlocker::SleepBlocker()
    : link(std::make_unique<Link>())
{
}

SleepBlocker::~SleepBlocker()
{
    link->Release();
}

void SleepBlocker::Block(const QString& reason)
{
    link->Block(reason);
}

void SleepBlocker::Release()
{
    link->Release();
}

} // namespace BatchDesktop
