// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QVector>

namespace BatchDesktop {

/// The desktop's notifications, one at a time. Where nothing shows them, nothing happens.
class Notifier : public QObject
{
    Q_OBJECT

public:
    struct Action
    {
        QString key;
        QString label;
    };

    struct Notice
    {
        QString summary;
        QString body; ///< plain text
        QVector<Action> actions;
    };

    explicit Notifier(QObject* parent = nullptr);
    ~Notifier() override;

    /// Replaces what was shown before.
    void Show(const Notice& notice);

    /// What is shown is pointless now.
    void Withdraw();

Q_SIGNALS:
    /// The user has chosen the action `key`; it is empty if the notification itself was.
    void Chosen(const QString& key);

private:
    class Link;

    Link* const link;
};

} // namespace BatchDesktop
