// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Notifier.h"

#include "BusCalls_unix.h"
#include "DesktopNames.h"

#include <QDBusPendingReply>

#include <optional>

namespace BatchDesktop {

namespace {

const BusObject notifications{QStringLiteral("org.freedesktop.Notifications"),
                              QStringLiteral("/org/freedesktop/Notifications"),
                              QStringLiteral("org.freedesktop.Notifications")};

const QString keyOfNotice = QStringLiteral("default");

} // namespace

/// One call at a time: while its answer is awaited, what is wanted may change.
class Notifier::Link : public QObject
{
    Q_OBJECT

public:
    explicit Link(Notifier& owner)
        : QObject(&owner)
        , owner(owner)
    {
        bus.connect(notifications.service, notifications.path, notifications.interface, QStringLiteral("ActionInvoked"),
                    this, SLOT(OnActionInvoked(uint, QString)));
        bus.connect(notifications.service, notifications.path, notifications.interface,
                    QStringLiteral("NotificationClosed"), this, SLOT(OnNotificationClosed(uint)));
    }

    void Want(const std::optional<Notice>& notice)
    {
        wanted = notice;
        isStale = true;
        Proceed();
    }

private Q_SLOTS:
    void OnActionInvoked(uint id, const QString& key)
    {
        if (id == shown) {
            Q_EMIT owner.Chosen(key == keyOfNotice ? QString() : key);
        }
    }

    void OnNotificationClosed(uint id)
    {
        if (id == shown) {
            shown = 0;
        }
    }

private:
    void Proceed()
    {
        if (isCalling || !isStale) {
            return;
        }
        if (!wanted) {
            isStale = false;
            if (shown != 0) {
                TellOnBus(bus, notifications, QStringLiteral("CloseNotification"), {shown});
                shown = 0;
            }
        } else if (!capabilities) {
            AskCapabilities();
        } else {
            isStale = false;
            Notify();
        }
    }

    void AskCapabilities()
    {
        isCalling = true;
        CallOnBus(bus, notifications, QStringLiteral("GetCapabilities"), {}, this,
                  [this](const QDBusPendingReply<QStringList>& reply) {
                      isCalling = false;
                      capabilities = reply.isError() ? QStringList() : reply.value();
                      Proceed();
                  });
    }

    void Notify()
    {
        QStringList actions;
        if (capabilities->contains(QStringLiteral("actions"))) {
            actions << keyOfNotice << QString(); // It has no button of its own.
            for (const Action& action : wanted->actions) {
                actions << action.key << action.label;
            }
        }
        const bool hasMarkup = capabilities->contains(QStringLiteral("body-markup"));
        const QVariantMap hints{{QStringLiteral("desktop-entry"), desktopId}};
        constexpr int usualTime = -1;
        isCalling = true;
        CallOnBus(bus, notifications, QStringLiteral("Notify"),
                  {applicationTitle, shown, desktopId, wanted->summary,
                   hasMarkup ? wanted->body.toHtmlEscaped() : wanted->body, actions, hints, usualTime},
                  this, [this](const QDBusPendingReply<uint>& reply) {
                      isCalling = false;
                      shown = reply.isError() ? 0 : reply.value();
                      Proceed();
                  });
    }

    Notifier& owner;
    QDBusConnection bus = QDBusConnection::sessionBus();
    std::optional<QStringList> capabilities;
    std::optional<Notice> wanted;
    bool isStale = false; ///< what is shown is not what is wanted
    bool isCalling = false;
    uint shown = 0; ///< number of the notification on the screen; 0 without one
};

Notifier::Notifier(QObject* parent)
    : QObject(parent)
    , link(new Link(*this))
{
}

Notifier::~Notifier() = default;

void Notifier::Show(const Notice& notice)
{
    link->Want(notice);
}

void Notifier::Withdraw()
{
    link->Want({});
}

} // namespace BatchDesktop

#include "Notifier_unix.moc"
