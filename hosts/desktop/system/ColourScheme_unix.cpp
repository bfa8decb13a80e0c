// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourScheme_unix.h"

#include "BusCalls_unix.h"

#include <QDBusPendingReply>

namespace BatchDesktop {

namespace {

const BusObject settings{QStringLiteral("org.freedesktop.portal.Desktop"),
                         QStringLiteral("/org/freedesktop/portal/desktop"),
                         QStringLiteral("org.freedesktop.portal.Settings")};

const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString colourScheme = QStringLiteral("color-scheme");

/// The portal's number, which may come in several variants, one in the other.
ColourScheme::Preference PreferenceOf(QVariant value)
{
    while (value.canConvert<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    constexpr uint dark = 1;
    constexpr uint light = 2;
    const uint number = value.toUInt();
    return number == dark    ? ColourScheme::Preference::Dark
           : number == light ? ColourScheme::Preference::Light
                             : ColourScheme::Preference::None;
}

} // namespace

ColourScheme::Link::Link(ColourScheme& owner)
    : owner(owner)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    QDBusConnection(bus).connect(settings.service, settings.path, settings.interface, QStringLiteral("SettingChanged"),
                                 this, SLOT(OnSettingChanged(QString, QString, QDBusVariant)));
    CallOnBus(bus, settings, QStringLiteral("Read"), {appearance, colourScheme}, this,
              [this](const QDBusPendingReply<QDBusVariant>& reply) {
                  if (!reply.isError()) {
                      this->owner.Set(PreferenceOf(QVariant::fromValue(reply.value())));
                  }
              });
}

void ColourScheme::Link::OnSettingChanged(const QString& group, const QString& key, const QDBusVariant& value)
{
    if (group == appearance && key == colourScheme) {
        owner.Set(PreferenceOf(value.variant()));
    }
}

ColourScheme::ColourScheme(QObject* parent)
    : QObject(parent)
    , link(std::make_unique<Link>(*this))
{
}

ColourScheme::~ColourScheme() = default;

} // namespace BatchDesktop
