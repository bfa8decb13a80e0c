// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "BusCalls_unix.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

namespace BatchDesktop {

namespace {

QDBusMessage NewCall(const BusObject& object, const QString& method, const QVariantList& arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(object.service, object.path, object.interface, method);
    call.setArguments(arguments);
    return call;
}

} // namespace

void CallOnBus(const QDBusConnection& bus, const BusObject& object, const QString& method,
               const QVariantList& arguments, QObject* context,
               const std::function<void(const QDBusPendingCall&)>& answered)
{
    auto* const watcher = new QDBusPendingCallWatcher(bus.asyncCall(NewCall(object, method, arguments)), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context, [answered](QDBusPendingCallWatcher* call) {
        call->deleteLater();
        answered(*call);
    });
}

void TellOnBus(const QDBusConnection& bus, const BusObject& object, const QString& method,
               const QVariantList& arguments)
{
    bus.send(NewCall(object, method, arguments));
}

} // namespace BatchDesktop
