// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PrivateTempDir.h"
#include "ServerLife.h"
#include "ServerStage.h"
#include "ZTBatchManager.h"

#include <QElapsedTimer>
#include <QLocalServer>
#include <QLocalSocket>
#include <QtTest>

#include <algorithm>
#include <limits>

/// KillExistingBatchProcess(false) against a server that accepts connections but does not read.
class tst_KillExistingListener : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void doesNotWaitForAReader();
};

void tst_KillExistingListener::doesNotWaitForAReader()
{
    const PrivateTempDir folder;
    // No event loop turns here before the calls have returned, so nothing reads.
    QLocalServer listener;
    QVERIFY2(listener.listen(ServerStage::PipeName()), qPrintable(listener.errorString()));
    constexpr int calls = 3;
    qint64 shortest = std::numeric_limits<qint64>::max();
    for (int i = 0; i < calls; ++i) {
        QElapsedTimer clock;
        clock.start();
        ZTBatchManager::KillExistingBatchProcess(false);
        shortest = std::min(shortest, clock.elapsed());
    }
    // Connecting may take 100 ms. The quickest call counts, since the machine may be busy.
    QVERIFY2(shortest < 500, qPrintable(QString::number(shortest)));

    // The last message still gets through to a server that reads later.
    QByteArray received;
    for (int i = 0; i < calls; ++i) {
        QVERIFY(listener.hasPendingConnections() || listener.waitForNewConnection(10000));
        QLocalSocket* const connection = listener.nextPendingConnection();
        received.clear();
        while (received.size() < CloseServerFrame().size() &&
               (connection->bytesAvailable() > 0 || connection->waitForReadyRead(10000))) {
            received += connection->readAll();
        }
    }
    QCOMPARE(received, CloseServerFrame());
}

QTEST_GUILESS_MAIN(tst_KillExistingListener)
#include "tst_killexistinglistener.moc"
