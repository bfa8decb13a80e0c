// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Events.h"
#include "PictureStage.h"

#include "TestPictures.h"

#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

/// What events and reports of real runs say of each picture: sizes, bytes, quality and times.
class tst_CliEvents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void everyEventHasATime();
    void writtenPicturesHaveFacts();
    void qualityIsThatOfTheFormat_data();
    void qualityIsThatOfTheFormat();
    void reportsHaveTheSameFacts();
    void tablesHaveTheSameFacts();
    void earlierResultsHaveTheirFacts();
    void failuresHaveWhatIsKnown();

private:
    void WriteBroken(const QString& name) const;

    std::unique_ptr<PictureStage> stage;
};

namespace {

QJsonValue Field(const QJsonObject& object, const char* name)
{
    return object.value(QLatin1String(name));
}

QDateTime TimeIn(const QJsonObject& object, const char* name)
{
    return QDateTime::fromString(Field(object, name).toString(), Qt::ISODateWithMs);
}

/// The facts that are equal in events and reports.
QJsonObject FactsOf(const QJsonObject& object)
{
    QJsonObject facts;
    for (const char* name :
         {"input", "inputWidth", "inputHeight", "inputBytes", "output", "width", "height", "bytes", "quality"}) {
        facts.insert(QLatin1String(name), Field(object, name));
    }
    return facts;
}

} // namespace

void tst_CliEvents::init()
{
    stage = std::make_unique<PictureStage>();
    stage->Write(QStringLiteral("photos/1.jpg"), QSize(300, 200), {{}, 6});
    stage->Write(QStringLiteral("photos/2.png"), QSize(90, 60), {});
}

void tst_CliEvents::everyEventHasATime()
{
    const QDateTime before = QDateTime::currentDateTimeUtc();
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --json -q"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QDateTime after = QDateTime::currentDateTimeUtc();
    QDateTime last = before;
    for (const QJsonObject& event : EventsOf(run.out)) {
        const QString text = Field(event, "time").toString();
        const QDateTime time = TimeIn(event, "time");
        QVERIFY2(text.endsWith(QLatin1Char('Z')) && time.isValid(), run.out.constData());
        QVERIFY2(time >= last && time <= after, run.out.constData());
        last = time;
    }
}

void tst_CliEvents::writtenPicturesHaveFacts()
{
    const QDateTime before = QDateTime::currentDateTimeUtc();
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --size 50 --format jpg --format-option quality=77 "
                                                 "--effect border:left=4 --json -q"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QVector<QJsonObject> written = EventsOf(run.out, QStringLiteral("written"));
    QCOMPARE(written.size(), 2);
    for (const QJsonObject& event : written) {
        const QString input = Field(event, "input").toString();
        const QString output = Field(event, "output").toString();
        const bool isTurned = input.endsWith(QLatin1String("1.jpg"));
        QCOMPARE(QSize(Field(event, "inputWidth").toInt(), Field(event, "inputHeight").toInt()),
                 isTurned ? QSize(200, 300) : QSize(90, 60));
        QCOMPARE(qint64(Field(event, "inputBytes").toDouble()), QFileInfo(input).size());
        const BatchWorker::Picture result = ReadPicture(output);
        QCOMPARE(Field(event, "width").toInt(), result.width());
        QCOMPARE(Field(event, "height").toInt(), result.height());
        QCOMPARE(qint64(Field(event, "bytes").toDouble()), QFileInfo(output).size());
        QCOMPARE(Field(event, "quality").toInt(), 77);
        QVERIFY(Field(event, "seconds").isDouble());
        QVERIFY(Field(event, "seconds").toDouble() >= 0 && Field(event, "seconds").toDouble() < 60);
        QVERIFY(TimeIn(event, "finished") >= before && TimeIn(event, "finished") <= TimeIn(event, "time"));
    }
}

void tst_CliEvents::qualityIsThatOfTheFormat_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<int>("quality");
    QTest::newRow("JPEG, its default") << QStringLiteral("--format jpg") << 85;
    QTest::newRow("WebP, its default") << QStringLiteral("--format webp") << 80;
    QTest::newRow("WebP, given") << QStringLiteral("--format webp --format-option quality=31") << 31;
    QTest::newRow("WebP, without loss") << QStringLiteral("--format webp --format-option lossless=yes") << 0;
    QTest::newRow("PNG has none") << QStringLiteral("--format png") << 0;
    QTest::newRow("TIFF without loss") << QStringLiteral("--format tif") << 0;
    QTest::newRow("TIFF with JPEG") << QStringLiteral("--format tif --format-option compression=jpeg") << 85;
}

void tst_CliEvents::qualityIsThatOfTheFormat()
{
    QFETCH(QString, options);
    QFETCH(int, quality);
    const CliRun run = stage->Run(QStringLiteral("run photos/2.png -o out --json -q ") + options);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QJsonObject event = EventsOf(run.out, QStringLiteral("written")).value(0);
    QCOMPARE(event.contains(QLatin1String("quality")), quality != 0);
    QCOMPARE(Field(event, "quality").toInt(), quality);
}

void tst_CliEvents::reportsHaveTheSameFacts()
{
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --size 50 --json -q --report r.json"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QFile file(stage->Path(QStringLiteral("r.json")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QJsonArray entries = QJsonDocument::fromJson(file.readAll()).array();
    QCOMPARE(entries.size(), 2);
    for (const QJsonObject& event : EventsOf(run.out, QStringLiteral("written"))) {
        const bool isFirst = Field(event, "input").toString().endsWith(QLatin1String("1.jpg"));
        const QJsonObject entry = entries[isFirst ? 0 : 1].toObject();
        QVERIFY(entry.contains(QLatin1String("width")));
        QCOMPARE(FactsOf(entry), FactsOf(event));
        QCOMPARE(Field(entry, "seconds"), Field(event, "seconds"));
        QCOMPARE(Field(entry, "finished"), Field(event, "finished"));
    }
}

void tst_CliEvents::tablesHaveTheSameFacts()
{
    const CliRun run = stage->Run(QStringLiteral("run photos -o out --size 50 --json -q --report r.csv"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QFile file(stage->Path(QStringLiteral("r.csv")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QStringLiteral("\r\n"));
    const QStringList names = lines[0].split(QLatin1Char(','));
    for (const QJsonObject& event : EventsOf(run.out, QStringLiteral("written"))) {
        const bool isFirst = Field(event, "input").toString().endsWith(QLatin1String("1.jpg"));
        const QStringList columns = lines[isFirst ? 1 : 2].split(QLatin1Char(','));
        QCOMPARE(columns.size(), names.size());
        QVERIFY2(names.contains(QLatin1String("finished")), qPrintable(lines[0]));
        for (const char* name : {"inputWidth", "inputHeight", "inputBytes", "width", "height", "bytes", "seconds"}) {
            QCOMPARE(columns[names.indexOf(QLatin1String(name))].toDouble(), Field(event, name).toDouble());
        }
        QCOMPARE(columns[names.indexOf(QLatin1String("quality"))], isFirst ? QStringLiteral("85") : QString());
        QCOMPARE(columns[names.indexOf(QLatin1String("finished"))], Field(event, "finished").toString());
    }
}

void tst_CliEvents::earlierResultsHaveTheirFacts()
{
    WriteBroken(QStringLiteral("photos/3.jpg"));
    for (int i = 4; i < 9; ++i) {
        stage->Write(QStringLiteral("photos/%1.jpg").arg(i), QSize(60, 40), {});
    }
    const CliRun stopped = stage->Run(
        QStringLiteral("run photos -o out --size 50 --workers 1 --format jpg --on-input-error stop --json -q"));
    QCOMPARE(stopped.exitCode, 1);
    const QVector<QJsonObject> first = EventsOf(stopped.out, QStringLiteral("written"));
    QVERIFY(first.size() >= 2);
    QVERIFY(QFile::remove(stage->Path(QStringLiteral("photos/3.jpg"))));
    stage->Write(QStringLiteral("photos/3.jpg"), QSize(60, 40), {});
    const CliRun resumed = stage->Run(QStringLiteral("run --resume -o out --json -q --report r.json"));
    QVERIFY2(resumed.exitCode == 0, resumed.err.constData());
    const QVector<QJsonObject> second = EventsOf(resumed.out, QStringLiteral("written"));
    QCOMPARE(second.size(), 8);
    QFile report(stage->Path(QStringLiteral("r.json")));
    QVERIFY(report.open(QIODevice::ReadOnly));
    QHash<QString, QVector<QJsonObject>> later; ///< by input
    for (const QJsonValue entry : QJsonDocument::fromJson(report.readAll()).array()) {
        later[Field(entry.toObject(), "input").toString()].append(entry.toObject());
    }
    for (const QJsonObject& event : second) {
        later[Field(event, "input").toString()].append(event);
    }
    for (const QJsonObject& event : first) {
        QCOMPARE(later[Field(event, "input").toString()].size(), 2);
        for (const QJsonObject& again : later[Field(event, "input").toString()]) {
            QCOMPARE(FactsOf(again), FactsOf(event));
            QCOMPARE(Field(again, "seconds"), Field(event, "seconds"));
            // The journal has the time of the server, a moment before.
            const qint64 apart = TimeIn(again, "finished").msecsTo(TimeIn(event, "finished"));
            QVERIFY2(apart >= 0 && apart < 10'000, qPrintable(QString::number(apart)));
        }
        QVERIFY(Field(later[Field(event, "input").toString()].last(), "earlier").toBool());
    }
}

void tst_CliEvents::WriteBroken(const QString& name) const
{
    QFile file(stage->Path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.write("no picture") > 0);
}

void tst_CliEvents::failuresHaveWhatIsKnown()
{
    WriteBroken(QStringLiteral("photos/9.jpg"));
    const CliRun rest = stage->Run(QStringLiteral("run photos -o out --format png --json -q"));
    QCOMPARE(rest.exitCode, 1);
    const QJsonObject event = EventsOf(rest.out, QStringLiteral("failed")).value(0);
    QCOMPARE(Field(event, "inputBytes").toInt(), 10);
    QVERIFY(TimeIn(event, "finished").isValid());
    for (const char* name : {"width", "height", "bytes", "quality"}) {
        QVERIFY2(!event.contains(QLatin1String(name)), name);
    }
}

QTEST_GUILESS_MAIN(tst_CliEvents)
#include "tst_clievents.moc"
