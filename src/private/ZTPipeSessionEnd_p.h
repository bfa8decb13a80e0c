// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QThread>

#include <memory>

class QDeadlineTimer;
class ZTPipeSession;

/// Destroys a pipe session on a thread of its own. The destruction waits up to a second until the peer has taken what
/// was sent; this way the caller does not.
class ZTPipeSessionEnd : public QThread
{
public:
    /// Begins to destroy `session`, which has no parent and belongs to the current thread. Returns when that is done,
    /// at the latest at `deadline`. What is left then goes on by itself; the end of the application waits for it.
    static void Begin(std::unique_ptr<ZTPipeSession> session, const QDeadlineTimer& deadline);

    ~ZTPipeSessionEnd() override;

private:
    ZTPipeSessionEnd(std::unique_ptr<ZTPipeSession> session, QObject* parent);

    void run() override;

    std::unique_ptr<ZTPipeSession> session;
};
