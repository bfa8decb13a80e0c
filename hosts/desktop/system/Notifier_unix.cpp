// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Notifier_unix.h"

#include "BusCalls_unix.h"
#include "DesktopNames.h"

#include <QDBusPendingReply>

namespace BatchDesktop {

namespace {

const BusObject notifications{QStringLiteral("org.freedesktop.Notifications"),
                              QStringLiteral("/org/freedesktop/Notifications"),
                              QStringLiteral("org.freedesktop.Notifications")};

const QString keyOfNotice = QStringLiteral("default");

} // namespace

Notifier::Link::Link(Notifier& owner)
    : QObject(&owner)
    , owner(owner)
{
    bus.connect(notifications.service, notifications.path, notifications.interface, QStringLiteral("ActionInvoked"),
                this, SLOT(OnActionInvoked(uint, QString)));
    bus.connect(notifications.service, notifications.path, notifications.interface,
                QStringLiteral("NotificationClosed"), this, SLOT(OnNotificationClosed(uint)));
}

void Notifier::Link::Want(const std::optional<Notice>& notice)
{
    wanted = notice;
    isStale = true;
    Proceed();
}

void Notifier::Link::OnActionInvoked(uint id, const QString& key)
{
    if (id == shown) {
        Q_EMIT owner.Chosen(key == keyOfNotice ? QString() : key);
    }
}

void Notifier::Link::OnNotificationClosed(uint id)
{
    if (id == shown) {
        shown = 0;
    }
}

void Notifier::Link::Proceed()
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

void Notifier::Link::AskCapabilities()
{
    isCalling = true;
    CallOnBus(bus, notifications, QStringLiteral("GetCapabilities"), {}, this,
              [this](const QDBusPendingReply<QStringList>& reply) {
                  isCalling = false;
                  capabilities = reply.isError() ? QStringList() : reply.value();
                  Proceed();
              });
}

void Notifier::Link::Notify()
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
