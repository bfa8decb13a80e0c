// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "server/worker/encode/QualitySearch.h"

#include <QtTest>

using BatchWorker::QualitySearch;

/// The search for a quality, by files whose size grows with the quality.
class tst_QualitySearch : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void findsTheBest_data();
    void findsTheBest();
};

void tst_QualitySearch::findsTheBest_data()
{
    QTest::addColumn<int>("least");
    QTest::addColumn<int>("best");
    QTest::newRow("all") << 1 << 100;
    QTest::newRow("usual") << 30 << 85;
    QTest::newRow("two") << 84 << 85;
    QTest::newRow("one") << 85 << 85;
}

void tst_QualitySearch::findsTheBest()
{
    QFETCH(int, least);
    QFETCH(int, best);
    constexpr int mostAttempts = 8;
    for (int largestThatFits = least - 1; largestThatFits <= best; ++largestThatFits) {
        QualitySearch search(least, best);
        int found = least - 1;
        QVector<int> tried;
        while (const std::optional<int> quality = search.Next()) {
            QVERIFY(*quality >= least && *quality <= best);
            QVERIFY(!tried.contains(*quality));
            tried.append(*quality);
            search.Note(*quality <= largestThatFits);
            found = *quality <= largestThatFits ? std::max(found, *quality) : found;
        }
        QCOMPARE(found, largestThatFits);
        QCOMPARE(tried.first(), best);
        QVERIFY(tried.size() <= mostAttempts);
    }
}

QTEST_APPLESS_MAIN(tst_QualitySearch)
#include "tst_qualitysearch.moc"
