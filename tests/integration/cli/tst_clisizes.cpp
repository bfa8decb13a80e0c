// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Events.h"
#include "PictureStage.h"

#include "TestPictures.h"

#include <QFile>
#include <QHash>
#include <QtTest>

/// The sizes in pixels that `plan` shows are those that `run` makes.
class tst_CliSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void plannedSizesAreThoseOfResults_data();
    void plannedSizesAreThoseOfResults();
    void linesShowSizes();
    void sizesOfTrimmedPicturesAreNotKnown();
    void sizesCanBeLeftOut();
    void damagedPicturesAreTold();
    void damageChangesNoName();
    void onlyWhatIsWrittenHasASize();

private:
    std::unique_ptr<PictureStage> stage;
};

namespace {

QSize SizeIn(const QJsonObject& object, const char* width = "width", const char* height = "height")
{
    return {object.value(QLatin1String(width)).toInt(-1), object.value(QLatin1String(height)).toInt(-1)};
}

QString Input(const QJsonObject& object)
{
    return object.value(QLatin1String("input")).toString();
}

} // namespace

void tst_CliSizes::initTestCase()
{
    stage = std::make_unique<PictureStage>();
    stage->Write(QStringLiteral("photos/landscape.jpg"), QSize(301, 200), {});
    stage->Write(QStringLiteral("photos/portrait.png"), QSize(151, 227), {});
    stage->Write(QStringLiteral("photos/turned.jpg"), QSize(300, 201), {{}, 6});
    stage->Write(QStringLiteral("photos/mirrored.jpg"), QSize(64, 48), {{}, 2});
    stage->Write(QStringLiteral("photos/small.tif"), QSize(31, 17), {});
    stage->Write(QStringLiteral("photos/narrow.webp"), QSize(400, 3), {});
}

void tst_CliSizes::plannedSizesAreThoseOfResults_data()
{
    QTest::addColumn<QString>("options");
    for (const char* options : {
             "",
             "--size 100",
             "--size 100 --side width --resize fit",
             "--size 33.4% --resize fit",
             "--size 5cm --resolution 72 --side short",
             "--size 120 --resize enlarge --side height",
             "--crop ratio:3x2",
             "--crop ratio:3x2!",
             "--crop ratio:1x1 --size 50",
             "--crop exact:100x90",
             "--crop fill:120x80",
             "--crop fill:120x80 --size 50%",
             "--crop interesting:4x5",
             "--crop interesting:4x5!",
             "--crop interesting:16x9 --size 77 --resize fit",
             "--effect rotate:angle=90",
             "--effect rotate:angle=-12.5",
             "--effect rotate:angle=180 --effect flip",
             "--effect border:left=3,top=5,right=7,bottom=11",
             "--effect border:left=2.5,top=7.3,unit=percent --effect rotate:angle=30 --effect border:bottom=9",
             "--size 90 --effect rotate:angle=270 --effect blur:sigma=2",
             "--frame 10 --frame-angle 30",
             "--frame 4,5,6,7 --frame-size 500x400",
             "--crop ratio:2x1 --size 99 --effect border:left=1 --frame-size picture --background colour:#ff0000",
             "--format jpeg --size 60",
             "--format png --crop ratio:3x2 --effect rotate:angle=45",
             "--format avif --size 63",
             "--format jp2 --size 61",
         }) {
        QTest::newRow(*options == '\0' ? "no options" : options) << QString::fromLatin1(options);
    }
}

void tst_CliSizes::plannedSizesAreThoseOfResults()
{
    QFETCH(QString, options);
    SKIP_WHERE(MissingEncoder(options.section(QLatin1Char(' '), 1, 1)));
    const QTemporaryDir out;
    const QString arguments = QStringLiteral(" photos --json -q -o %1 ").arg(out.path()) + options;
    const CliRun plan = stage->Run(QStringLiteral("plan") + arguments);
    QVERIFY2(plan.exitCode == 0, plan.err.constData());
    QHash<QString, QJsonObject> planned;
    for (const QJsonObject& entry : EventsOf(plan.out)) {
        planned.insert(Input(entry), entry);
    }
    QCOMPARE(planned.size(), 6);
    const CliRun run = stage->Run(QStringLiteral("run") + arguments);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QVector<QJsonObject> written = EventsOf(run.out, QStringLiteral("written"));
    QCOMPARE(written.size(), 6);
    for (const QJsonObject& event : written) {
        const BatchWorker::Picture result = ReadPicture(event.value(QLatin1String("output")).toString());
        const QSize real(result.width(), result.height());
        const QJsonObject entry = planned.value(Input(event));
        QCOMPARE(SizeIn(entry), real);
        QCOMPARE(SizeIn(event), real);
        QCOMPARE(SizeIn(entry, "inputWidth", "inputHeight"), SizeIn(event, "inputWidth", "inputHeight"));
    }
}

void tst_CliSizes::linesShowSizes()
{
    const CliRun plan = stage->Run(QStringLiteral("plan photos -o out --size 100"));
    QVERIFY2(plan.exitCode == 0, plan.err.constData());
    const auto line = [this](const char* name, const char* size) {
        const QByteArray file(name);
        return stage->Path(QStringLiteral("photos/")).toUtf8() + file + " -> " +
               stage->Path(QStringLiteral("out/")).toUtf8() + file + "  " + size + '\n';
    };
    QVERIFY2(plan.out.contains(line("landscape.jpg", "301 x 200 -> 100 x 66 px")), plan.out.constData());
    QVERIFY2(plan.out.contains(line("turned.jpg", "201 x 300 -> 67 x 100 px")), plan.out.constData());
    QVERIFY2(plan.out.contains(line("small.tif", "31 x 17 px")), plan.out.constData());
}

void tst_CliSizes::sizesOfTrimmedPicturesAreNotKnown()
{
    const CliRun plan = stage->Run(QStringLiteral("plan photos -o out --crop trim --json"));
    for (const QJsonObject& entry : EventsOf(plan.out)) {
        QVERIFY(!entry.contains(QLatin1String("width")) && !entry.contains(QLatin1String("height")));
        QVERIFY(entry.contains(QLatin1String("inputWidth")));
    }
    const CliRun framed = stage->Run(QStringLiteral("plan photos -o out --crop trim --frame-size 90x80 --json"));
    for (const QJsonObject& entry : EventsOf(framed.out)) {
        QCOMPARE(SizeIn(entry), QSize(90, 80));
    }
}

void tst_CliSizes::sizesCanBeLeftOut()
{
    const CliRun plan = stage->Run(QStringLiteral("plan photos -o out --size 100 --no-sizes"));
    QVERIFY2(plan.exitCode == 0, plan.err.constData());
    QVERIFY2(!plan.out.contains(" px"), plan.out.constData());
    QVERIFY2(plan.out.contains("/out/small.tif\n"), plan.out.constData());
}

void tst_CliSizes::damagedPicturesAreTold()
{
    QFile broken(stage->Path(QStringLiteral("odd/broken.jpg")));
    QVERIFY(QDir(stage->Path(QString())).mkpath(QStringLiteral("odd")) && broken.open(QIODevice::WriteOnly));
    broken.write("no picture");
    broken.close();
    const CliRun plan = stage->Run(QStringLiteral("plan odd -o out --format png --on-input-error skip --json"));
    QCOMPARE(plan.exitCode, 1);
    const QJsonObject entry = EventsOf(plan.out).first();
    QCOMPARE(entry.value(QLatin1String("result")).toString(), QStringLiteral("skip"));
    QVERIFY(!entry.value(QLatin1String("reason")).toString().isEmpty());
    QVERIFY(!entry.contains(QLatin1String("width")));
}

// A run notices the damage only when the names are made.
void tst_CliSizes::damageChangesNoName()
{
    stage->Write(QStringLiteral("one/a.jpg"), QSize(20, 10), {});
    stage->Write(QStringLiteral("two/a.jpg"), QSize(20, 10), {});
    QFile broken(stage->Path(QStringLiteral("one/a.jpg")));
    QVERIFY(broken.open(QIODevice::WriteOnly));
    broken.write("no picture");
    broken.close();
    const QString arguments =
        QStringLiteral(" one two -o twins --format png --on-name-exists rename --on-input-error skip -q --json");
    const CliRun plan = stage->Run(QStringLiteral("plan") + arguments);
    const CliRun run = stage->Run(QStringLiteral("run") + arguments);
    const QVector<QJsonObject> written = EventsOf(run.out, QStringLiteral("written"));
    QCOMPARE(written.size(), 1);
    QCOMPARE(EventsOf(plan.out).last().value(QLatin1String("output")), written[0].value(QLatin1String("output")));
}

void tst_CliSizes::onlyWhatIsWrittenHasASize()
{
    stage->Write(QStringLiteral("there/small.tif"), QSize(20, 10), {});
    const CliRun plan = stage->Run(QStringLiteral("plan photos -o there --on-name-exists skip --json"));
    for (const QJsonObject& entry : EventsOf(plan.out)) {
        const bool isWritten = entry.value(QLatin1String("result")).toString() == QLatin1String("write");
        QCOMPARE(entry.contains(QLatin1String("width")), isWritten);
        QCOMPARE(isWritten, !Input(entry).endsWith(QLatin1String("small.tif")));
    }
}

QTEST_GUILESS_MAIN(tst_CliSizes)
#include "tst_clisizes.moc"
