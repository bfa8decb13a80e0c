// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

/// A message bus of the test's own, which is the session bus and the system bus of this process and its children. It
/// starts no services. To be created before anything asks for a bus.
class PrivateBus
{
public:
    PrivateBus();
    ~PrivateBus();

    /// Why there is no bus; empty if there is one.
    QString Error() const { return error; }

    /// A connection besides those of the program, for a service.
    QDBusConnection NewConnection();

private:
    Q_DISABLE_COPY(PrivateBus)

    QTemporaryDir folder;
    QProcess daemon;
    QString address;
    QString error;
    QStringList connections;
};
