// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TaskbarProgress.h"

#include "DesktopNames.h"

#include <QDBusConnection>
#include <QDBusMessage>

namespace BatchDesktop {

/// The signal that docks and taskbars of several desktops listen to.
class TaskbarProgress::Link
{
public:
    void Update(const QVariantMap& properties) const
    {
        QDBusMessage update =
            QDBusMessage::createSignal(QStringLiteral("/com/canonical/unity/launcherentry/1"),
                                       QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
        update << QStringLiteral("application://%1.desktop").arg(desktopId) << properties;
        bus.send(update);
    }

    bool isShown = false;
    bool isUrgent = false;

private:
    QDBusConnection bus = QDBusConnection::sessionBus();
};

TaskbarProgress::TaskbarProgress(QWidget&)
    : link(std::make_unique<Link>())
{
}

TaskbarProgress::~TaskbarProgress()
{
    SetUrgent(false);
    Hide();
}

void TaskbarProgress::Show(int percent)
{
    link->isShown = true;
    link->Update({{QStringLiteral("progress"), double(percent) / 100}, {QStringLiteral("progress-visible"), true}});
}

void TaskbarProgress::SetUrgent(bool isUrgent)
{
    if (link->isUrgent != isUrgent) {
        link->isUrgent = isUrgent;
        link->Update({{QStringLiteral("urgent"), isUrgent}});
    }
}

void TaskbarProgress::Hide()
{
    if (link->isShown) {
        link->isShown = false;
        link->Update({{QStringLiteral("progress-visible"), false}});
    }
}

} // namespace BatchDesktop
