// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QDBusPendingCall>

#include <functional>

namespace BatchDesktop {

/// An object on a bus, with one of its interfaces.
struct BusObject
{
    QString service;
    QString path;
    QString interface;
};

/// Calls `method` without waiting. `answered` comes on the thread of `context`, with an error if the service is absent.
void CallOnBus(const QDBusConnection& bus, const BusObject& object, const QString& method,
               const QVariantList& arguments, QObject* context,
               const std::function<void(const QDBusPendingCall&)>& answered);

/// Calls `method` and asks for no answer.
void TellOnBus(const QDBusConnection& bus, const BusObject& object, const QString& method,
               const QVariantList& arguments);

} // namespace BatchDesktop
