// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/desktop/estimate/ByteSum.h"
#include "hosts/desktop/estimate/Forecast.h"
#include "hosts/desktop/estimate/SampleChoice.h"

#include <QFile>
#include <QRandomGenerator>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

#include <cmath>

using namespace BatchDesktop;

/// Which pictures stand for a job, what their results say about the sum, and how that is told.
class tst_ByteSum : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void smallJobsAreAllSamples();
    void samplesSpreadOverKindsAndBytes();
    void vanishedFilesAreChosenToo();
    void allSamplesAreTheSum();
    void tooFewSamplesTellNothing();
    void equalResultsHaveNoError();
    void errorsByHand();
    void theSumIsMostlyWithinItsError();
    void roomThatIsTooLittleIsSaid_data();
    void roomThatIsTooLittleIsSaid();

private:
    QString Write(const QString& name, int bytes) const;

    QTemporaryDir folder;
};

QString tst_ByteSum::Write(const QString& name, int bytes) const
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(bytes, 'x')) != bytes) {
        qFatal("%s cannot be written", qUtf8Printable(name));
    }
    return file.fileName();
}

void tst_ByteSum::smallJobsAreAllSamples()
{
    QStringList files;
    for (int i = 0; i < 5; ++i) {
        files.append(Write(QStringLiteral("small%1.jpg").arg(i), i));
    }
    const SampleChoice choice = SampleChoice::Of(files);
    QCOMPARE(choice.files, 5);
    QSet<QString> chosen;
    QSet<int> places;
    for (const SampleChoice::Sample& sample : choice.samples) {
        chosen.insert(sample.file);
        places.insert(sample.place);
    }
    QCOMPARE(chosen, QSet<QString>(files.begin(), files.end()));
    QCOMPARE(places.size(), 5);
    QVERIFY(SampleChoice::Of({}).samples.isEmpty());
    QVERIFY(SampleChoice::Of(files, [] { return true; }).samples.isEmpty());
}

void tst_ByteSum::samplesSpreadOverKindsAndBytes()
{
    QStringList files;
    for (int i = 0; i < 80; ++i) {
        files.append(Write(QStringLiteral("%1.jpg").arg(i), 80 - i));
    }
    for (int i = 0; i < 80; ++i) {
        files.append(Write(QStringLiteral("%1.PNG").arg(i), i * 10));
    }
    const SampleChoice choice = SampleChoice::Of(files);
    QCOMPARE(choice.samples.size(), SampleChoice::most);
    for (const int count : {SampleChoice::most / 2, SampleChoice::most}) {
        QMap<int, QString> byPlace;
        for (const SampleChoice::Sample& sample : choice.samples.mid(0, count)) {
            byPlace.insert(sample.place, sample.file);
        }
        const QStringList inOrder = byPlace.values();
        QCOMPARE(inOrder.filter(QStringLiteral(".jpg")).size(), count / 2);
        qint64 before = -1;
        for (const QString& file : inOrder.mid(0, count / 2)) {
            QVERIFY(QFileInfo(file).size() > before);
            before = QFileInfo(file).size();
        }
    }
}

void tst_ByteSum::vanishedFilesAreChosenToo()
{
    const QStringList files{QStringLiteral("/nowhere/1.jpg"), QStringLiteral("/nowhere/2.jpg")};
    QCOMPARE(SampleChoice::Of(files).samples.size(), 2);
}

void tst_ByteSum::allSamplesAreTheSum()
{
    const auto sum = ByteSum::Of({{0, 10}, {1, 20}, {2, 70}}, 3);
    QCOMPARE(sum->bytes, 100.0);
    QCOMPARE(sum->error, 0.0);
    QCOMPARE(sum->Percent(), 0);
    QCOMPARE(ByteSum::Of({{0, 7}}, 1)->bytes, 7.0);
}

void tst_ByteSum::tooFewSamplesTellNothing()
{
    QVERIFY(!ByteSum::Of({}, 3));
    QVERIFY(!ByteSum::Of({{0, 10}}, 3));
    QVERIFY(!ByteSum::Of({{0, 0}, {1, 0}}, 2));
}

void tst_ByteSum::equalResultsHaveNoError()
{
    const auto sum = ByteSum::Of({{0, 10}, {4, 10}, {9, 10}}, 100);
    QCOMPARE(sum->bytes, 1000.0);
    QCOMPARE(sum->error, 0.0);
}

// (1 - 2/10) * 10 * (10 / 2) * (30 - 10)^2 / (2 * 1) = 8000
void tst_ByteSum::errorsByHand()
{
    const auto sum = ByteSum::Of({{0, 10}, {1, 30}}, 10);
    QCOMPARE(sum->bytes, 200.0);
    QCOMPARE(sum->error, 2 * std::sqrt(8000.0));
    QCOMPARE(sum->Percent(), 90);
}

// Results that grow with their place and vary by a third at random, as those of photos do.
void tst_ByteSum::theSumIsMostlyWithinItsError()
{
    constexpr int files = 500;
    constexpr int rounds = 400;
    QRandomGenerator random(7);
    int within = 0;
    for (int round = 0; round < rounds; ++round) {
        QVector<qint64> bytes;
        double sum = 0;
        for (int i = 0; i < files; ++i) {
            bytes.append(qint64((100'000 + 300.0 * i) * (2.0 / 3 + random.generateDouble() * 2 / 3)));
            sum += double(bytes.last());
        }
        QMap<int, qint64> samples;
        for (int place = 0; place < SampleChoice::most; ++place) {
            samples.insert(place, bytes[(2 * place + 1) * files / (2 * SampleChoice::most)]);
        }
        const auto estimated = ByteSum::Of(samples, files);
        within += std::abs(estimated->bytes - sum) <= estimated->error ? 1 : 0;
    }
    QVERIFY2(within >= rounds * 88 / 100, qPrintable(QString::number(within)));
}

void tst_ByteSum::roomThatIsTooLittleIsSaid_data()
{
    QTest::addColumn<double>("error");
    QTest::addColumn<qint64>("freeBytes");
    QTest::addColumn<QString>("text");
    QTest::newRow("enough") << 0.0 << qint64(2'000'000)
                            << QStringLiteral("2 pictures, 2 new. The results take 1.0 MB; 2.0 MB are free.");
    QTest::newRow("enough for the error too")
        << 100'000.0 << qint64(2'000'000)
        << QStringLiteral("2 pictures, 2 new. The results take about 1.0 MB (± 10 %); 2.0 MB are free.");
    QTest::newRow("not known") << 0.0 << qint64(-1) << QStringLiteral("2 pictures, 2 new. The results take 1.0 MB.");
    QTest::newRow("too little") << 0.0 << qint64(900'000)
                                << QStringLiteral("2 pictures, 2 new. There is too little room: the results take "
                                                  "1.0 MB, but only 900 kB are free.");
    QTest::newRow("perhaps too little")
        << 100'000.0 << qint64(1'050'000)
        << QStringLiteral("2 pictures, 2 new. There may be too little room: the results take about 1.0 MB (± 10 %), "
                          "but only 1.1 MB are free.");
}

void tst_ByteSum::roomThatIsTooLittleIsSaid()
{
    QFETCH(double, error);
    QFETCH(qint64, freeBytes);
    Forecast forecast;
    forecast.files = 2;
    forecast.areNamesKnown = true;
    forecast.newNames = 2;
    forecast.sum = ByteSum{1'000'000, error};
    forecast.freeBytes = freeBytes;
    QTEST(forecast.Text(), "text");
}

QTEST_GUILESS_MAIN(tst_ByteSum)
#include "tst_bytesum.moc"
