// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Notifier.h"

#include <QDBusConnection>

#include <optional>

namespace BatchDesktop {

/// One call at a time: while its answer is awaited, what is wanted may change.
class Notifier::Link : public QObject
{
    Q_OBJECT

public:
    explicit Link(Notifier& owner);

    void Want(const std::optional<Notice>& notice);

private Q_SLOTS:
    void OnActionInvoked(uint id, const QString& key);
    void OnNotificationClosed(uint id);

private:
    void Proceed();
    void AskCapabilities();
    void Notify();

    Notifier& owner;
    QDBusConnection bus = QDBusConnection::sessionBus();
    std::optional<QStringList> capabilities;
    std::optional<Notice> wanted;
    bool isStale = false; ///< what is shown is not what is wanted
    bool isCalling = false;
    uint shown = 0; ///< number of the notification on the screen; 0 without one
};

} // namespace BatchDesktop
