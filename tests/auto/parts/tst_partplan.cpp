// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "job/parts/PartPlan.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <cmath>
#include <memory>
#include <numeric>

using namespace BatchJob;

namespace {

constexpr double leastWeight = 1000;

double WeightOf(qint64 bytes)
{
    return std::max(leastWeight, double(bytes));
}

PartPlan PlanOf(int jobs)
{
    PartPlan plan;
    plan.folder = QStringLiteral("/web");
    for (int i = 0; i < jobs; ++i) {
        plan.jobs.append({QString::number(i), QStringLiteral("<!DOCTYPE batch>\n<root name=\"\"/>\n"), plan.folder});
    }
    plan.makers.insert(QStringLiteral("velkora-batch"), QStringLiteral("1.0"));
    return plan;
}

/// Some in one folder, some without a stamp, some with results that are not to be made.
QVector<PlannedFile> FilesOf(int count, int jobs)
{
    const QStringList folders{QStringLiteral("/photos/a"), QStringLiteral("/photos/\"b\"\n\u00e4"), QString()};
    QVector<PlannedFile> files;
    for (int i = 0; i < count; ++i) {
        PlannedFile file;
        file.input = folders.at(i / 3 % folders.size()) + QStringLiteral("/%1 \u5199.jpg").arg(i);
        if (i % 5 != 4) {
            file.stamp = {qint64(i) << 32, 1'795'444'584'377'050'454 + i, 0};
        }
        for (int job = 0; job < jobs; ++job) {
            PlannedResult result;
            result.name = {QStringLiteral("%1/%2.jpg").arg(job).arg(i), {}, 1};
            if ((i + job) % 7 == 3) {
                result.code = 5;
                result.reason = QStringLiteral("\"%1\" exists already").arg(i);
            } else {
                result.name.format = i % 2 == 0 ? QStringLiteral("JPEG") : QStringLiteral("PNG");
                result.name.number = 1'000'000'000'000 + i;
                result.name.isRenamed = i % 3 == 0;
                result.name.isOverwriting = i % 4 == 0;
                result.name.hasOtherFormat = i % 6 == 0;
            }
            file.results.append(result);
        }
        files.append(file);
    }
    return files;
}

QString TextOf(const PlannedFile& file)
{
    QStringList texts{file.input, QString::number(file.stamp.bytes), QString::number(file.stamp.modified)};
    for (const PlannedResult& result : file.results) {
        const FixedName& name = result.name;
        texts << name.output << name.format << QString::number(name.number)
              << QStringLiteral("%1%2%3").arg(name.isRenamed).arg(name.isOverwriting).arg(name.hasOtherFormat)
              << QString::number(result.code) << result.reason;
    }
    return texts.join(QLatin1Char('|'));
}

QStringList TextsOf(const QVector<PlannedFile>& files)
{
    QStringList texts;
    for (const PlannedFile& file : files) {
        texts.append(TextOf(file));
    }
    return texts;
}

} // namespace

/// How files are cut into parts, and how their plan is written and read.
class tst_PartPlan : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { root = std::make_unique<QTemporaryDir>(); }
    void cut_data();
    void cut();
    void randomCuts();
    void writtenAndRead_data();
    void writtenAndRead();
    void manyParts();
    void abandoned();
    void unwritable();
    void damagedLines_data();
    void damagedLines();

private:
    QString Path() const { return root->filePath(QStringLiteral("job.plan")); }
    PartPlan Write(const QVector<PlannedFile>& files, const QVector<int>& counts, int jobs)
    {
        PartPlan plan = PlanOf(jobs);
        PlanWriter writer(Path(), plan, counts);
        for (const PlannedFile& file : files) {
            writer.Add(file);
        }
        QString problem;
        return writer.Commit(problem) ? plan : PartPlan();
    }
    PartPlan Read() const
    {
        QString problem;
        return ReadPlan(Path(), problem).value_or(PartPlan());
    }

    std::unique_ptr<QTemporaryDir> root;
};

void tst_PartPlan::cut_data()
{
    using Sizes = QVector<qint64>;
    using Counts = QVector<int>;
    QTest::addColumn<Sizes>("sizes");
    QTest::addColumn<Counts>("counts");
    QTest::newRow("one") << Sizes{5000} << Counts{1};
    QTest::newRow("equal") << Sizes(8, 5000) << Counts{2, 2, 2, 2};
    QTest::newRow("as many as files") << Sizes{1, 100'000, 1} << Counts{1, 1, 1};
    QTest::newRow("large one first") << Sizes{90'000, 10'000, 10'000, 10'000} << Counts{1, 3};
    QTest::newRow("large one last") << Sizes{10'000, 10'000, 10'000, 90'000} << Counts{3, 1};
    QTest::newRow("nothing but missing files") << Sizes(6, -1) << Counts{2, 2, 2};
    QTest::newRow("small files count too") << Sizes{0, 0, 0, 0, 4000} << Counts{4, 1};
}

void tst_PartPlan::cut()
{
    QFETCH(QVector<qint64>, sizes);
    QFETCH(QVector<int>, counts);
    QCOMPARE(CutIntoParts(sizes, counts.size()), counts);
}

void tst_PartPlan::randomCuts()
{
    constexpr int rounds = 2000;
    constexpr quint32 seed = 7;
    QRandomGenerator random(seed);
    for (int round = 0; round < rounds; ++round) {
        QVector<qint64> sizes(random.bounded(1, 200));
        for (qint64& size : sizes) {
            size = qint64(std::pow(10.0, random.bounded(9.0))) - 1;
        }
        const int count = random.bounded(1, sizes.size() + 1);
        const QVector<int> counts = CutIntoParts(sizes, count);
        QCOMPARE(counts.size(), count);
        QCOMPARE(std::accumulate(counts.begin(), counts.end(), 0), sizes.size());
        QVERIFY(std::all_of(counts.begin(), counts.end(), [](int files) { return files >= 1; }));

        // Each part ends where it should, give or take half a file, unless a part would then be empty.
        QVector<double> ends{0};
        for (const qint64 size : qAsConst(sizes)) {
            ends.append(ends.last() + WeightOf(size));
        }
        const double largest = WeightOf(*std::max_element(sizes.begin(), sizes.end()));
        int taken = 0;
        for (int part = 1; part <= count; ++part) {
            taken += counts.at(part - 1);
            const bool isForced = counts.at(part - 1) == 1 || sizes.size() - taken == count - part;
            const double distance = std::abs(ends.at(taken) - ends.last() / count * part);
            QVERIFY2(isForced || distance <= largest / 2 + 1, qPrintable(QString::number(round)));
        }
    }
}

void tst_PartPlan::writtenAndRead_data()
{
    QTest::addColumn<int>("files");
    QTest::addColumn<int>("jobs");
    QTest::addColumn<QVector<int>>("counts");
    QTest::newRow("one file") << 1 << 1 << QVector<int>{1};
    QTest::newRow("parts") << 20 << 1 << QVector<int>{7, 1, 12};
    QTest::newRow("several results") << 20 << 3 << QVector<int>{7, 1, 12};
    QTest::newRow("more than one block") << 3000 << 2 << QVector<int>{2500, 500};
}

void tst_PartPlan::writtenAndRead()
{
    QFETCH(int, files);
    QFETCH(int, jobs);
    QFETCH(QVector<int>, counts);
    const QVector<PlannedFile> planned = FilesOf(files, jobs);
    const PartPlan written = Write(planned, counts, jobs);
    const PartPlan read = Read();
    QVERIFY(!read.id.isEmpty());
    QCOMPARE(read.id, written.id);
    QCOMPARE(read.FileCount(), files);
    QCOMPARE(read.parts.size(), counts.size());
    QVector<PlannedFile> found;
    for (int part = 0; part < counts.size(); ++part) {
        const int first = found.size();
        QVERIFY(ReadPart(Path(), read, part, [&found](const PlannedFile& file) { found.append(file); }));
        QCOMPARE(found.size() - first, counts.at(part));
        const qint64 bytes =
            std::accumulate(found.begin() + first, found.end(), qint64(0), [](qint64 sum, const PlannedFile& file) {
                return sum + std::max<qint64>(0, file.stamp.bytes);
            });
        QCOMPARE(read.parts.at(part).inputBytes, bytes);
    }
    QCOMPARE(TextsOf(found), TextsOf(planned));
}

/// The room for the header is enough, whatever the parts are.
void tst_PartPlan::manyParts()
{
    constexpr int count = 2000;
    const QVector<PlannedFile> planned = FilesOf(count, 1);
    Write(planned, QVector<int>(count, 1), 1);
    const PartPlan read = Read();
    QCOMPARE(read.parts.size(), count);
    QStringList texts;
    QVERIFY(ReadPart(Path(), read, count - 1, [&texts](const PlannedFile& file) { texts.append(TextOf(file)); }));
    QCOMPARE(texts, QStringList{TextOf(planned.last())});
}

void tst_PartPlan::abandoned()
{
    PartPlan plan = PlanOf(1);
    {
        PlanWriter writer(Path(), plan, {2});
        writer.Add(FilesOf(1, 1).first());
    }
    QVERIFY(QDir(root->path()).isEmpty());
}

void tst_PartPlan::unwritable()
{
    PartPlan plan = PlanOf(1);
    PlanWriter writer(root->filePath(QStringLiteral("missing/job.plan")), plan, {1});
    writer.Add(FilesOf(1, 1).first());
    QString problem;
    QVERIFY(!writer.Commit(problem));
    QVERIFY(!problem.isEmpty());
}

void tst_PartPlan::damagedLines_data()
{
    QTest::addColumn<int>("fromEnd");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("another name") << 20 << QByteArray("x");
    QTest::newRow("no line feed") << 1 << QByteArray(" ");
    QTest::newRow("one more line feed") << 20 << QByteArray("\n");
    QTest::newRow("cut") << 20 << QByteArray();
}

void tst_PartPlan::damagedLines()
{
    QFETCH(int, fromEnd);
    QFETCH(QByteArray, bytes);
    Write(FilesOf(20, 1), {10, 10}, 1);
    QFile file(Path());
    QVERIFY(file.open(QIODevice::ReadWrite));
    if (bytes.isEmpty()) {
        QVERIFY(file.resize(file.size() - fromEnd));
    } else {
        QVERIFY(file.seek(file.size() - fromEnd) && file.write(bytes) == bytes.size());
    }
    file.close();
    const PartPlan plan = Read();
    QCOMPARE(plan.parts.size(), 2);
    const auto take = [](const PlannedFile&) {};
    QVERIFY(ReadPart(Path(), plan, 0, take));
    QVERIFY(!ReadPart(Path(), plan, 1, take));
}

QTEST_GUILESS_MAIN(tst_PartPlan)
#include "tst_partplan.moc"
