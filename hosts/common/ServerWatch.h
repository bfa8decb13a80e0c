// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QTimer>

namespace BatchHost {

/// Notices when the server of a run has said nothing for too long, so that no state of a run lasts for ever. It counts
/// ticks instead of measuring time: after the host itself was suspended, messages that wait are read first.
class ServerWatch : public QObject
{
    Q_OBJECT

public:
    /// One set for the process, which only tests change.
    struct Times
    {
        int tick = 15'000; ///< ms
        int quiet = 2;     ///< ticks without a word until Quiet()
        int lost = 6;      ///< and until Lost()
        int end = 1;       ///< ticks from ExpectEnd() until Lost()

        static Times& InUse();
    };

    explicit ServerWatch(QObject* parent = nullptr);

    /// Begins anew.
    void Start();
    void Stop() { clock.stop(); }

    /// The server has said something.
    void Heard();

    /// The server was asked to end the run, or is ending: whatever it says no longer counts.
    void ExpectEnd();

Q_SIGNALS:
    /// It is time to ask for a sign of life. Emitted at each tick until the server says something.
    void Quiet();

    /// There will be nothing more.
    void Lost();

private:
    void Tick();

    QTimer clock;
    int ticks = 0;
    bool isEndExpected = false;
};

} // namespace BatchHost
