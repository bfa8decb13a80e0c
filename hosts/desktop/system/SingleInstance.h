// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QObject>
#include <QStringList>

#include <memory>

namespace BatchDesktop {

/// One window for each user and folder of settings: a second start hands what it was given to the first.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    enum class Place {
        First,  ///< it hears of further starts
        Second, ///< another one has taken over the arguments
        Alone   ///< another one is there but gives no answer, or nothing can be heard here
    };

    explicit SingleInstance(const QString& settingsFolder, QObject* parent = nullptr);

    /// Finds out which one this is. If it is not the first, the first gets `arguments`, whose paths are absolute.
    Place Begin(const QStringList& arguments);

Q_SIGNALS:
    /// Another start has handed over its arguments; there may be none.
    void Started(const QStringList& arguments);

private:
    bool HandOver(const QStringList& arguments) const;
    void OnConnection();

    const QString name; ///< of the socket or pipe
    QLockFile lock;     ///< the first one has it
    QLocalServer server;
};

} // namespace BatchDesktop
