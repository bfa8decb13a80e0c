// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

class QLocalSocket;

/// Moves a local socket to another thread, before and after QObject::moveToThread().
///
/// On Windows moveToThread() alone is not enough: the completion of an overlapped read or write is delivered only to
/// the thread that started it. The socket would continue to read on the old thread and wait forever when it is closed.
/// On other systems nothing needs to be done.
class ZTSocketMove
{
public:
    /// Call on the old thread. Data that has arrived is kept for AttachToThread(), and nothing is read until then.
    /// Waits up to `msecs` milliseconds for pending writes; if the peer has not taken them by then, the connection is
    /// aborted.
    void DetachFromThread(QLocalSocket& socket, int msecs);

    /// Call on the new thread. Resumes reading, beginning with the data that was kept.
    void AttachToThread(QLocalSocket& socket);

private:
#ifdef Q_OS_WIN
    void StopReading(QLocalSocket& socket);

    QByteArray buffered;
#endif
};
