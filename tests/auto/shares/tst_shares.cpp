// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/values/Shares.h"

#include <QtTest>

#include <algorithm>
#include <atomic>
#include <vector>

/// Ranges of numbers that are shared between threads.
class tst_Shares : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachNumberOnce_data();
    void eachNumberOnce();
    void fewStayOnTheThread();
};

void tst_Shares::eachNumberOnce_data()
{
    QTest::addColumn<int>("count");
    for (const int count : {0, 1, 2, 499, 500, 999, 1000, 1001, 100'003}) {
        QTest::addRow("%d", count) << count;
    }
}

void tst_Shares::eachNumberOnce()
{
    QFETCH(int, count);
    std::vector<std::atomic<int>> seen(std::size_t(count) + 1);
    BatchJob::InShares(count, [&seen](int begin, int end) {
        for (int i = begin; i < end; ++i) {
            ++seen[std::size_t(i)];
        }
    });
    QVERIFY(std::all_of(seen.begin(), seen.end() - 1, [](const std::atomic<int>& times) { return times == 1; }));
    QCOMPARE(seen.back().load(), 0);
}

void tst_Shares::fewStayOnTheThread()
{
    QVector<QThread*> threads;
    BatchJob::InShares(100, [&threads](int, int) { threads.append(QThread::currentThread()); });
    QCOMPARE(threads, QVector<QThread*>{thread()});
}

QTEST_APPLESS_MAIN(tst_Shares)
#include "tst_shares.moc"
