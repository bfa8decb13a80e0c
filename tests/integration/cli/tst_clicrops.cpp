// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"
#include "PictureFiles.h"

#include <QDir>
#include <QImageReader>
#include <QtTest>

/// What crops make of lying and upright pictures, by the real command and the real server.
class tst_CliCrops : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ratiosTurnWithThePicture_data();
    void ratiosTurnWithThePicture();
    void ratiosTurnWithTheUprightPicture();
    void savedRatiosStayAsTheyAre_data();
    void savedRatiosStayAsTheyAre();
    void cropsInUnitsReachThePicture();

private:
    QString Path(const QString& name) const { return root->filePath(name); }
    QSize Result(const QString& name) const { return QImageReader(Path(QStringLiteral("out/") + name)).size(); }
    CliRun Run(const QString& arguments) const
    {
        return CliRun::Of(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts), root->path(), environment);
    }

    std::unique_ptr<QTemporaryDir> root;
    QProcessEnvironment environment;
};

void tst_CliCrops::init()
{
    root = std::make_unique<QTemporaryDir>();
    environment = QProcessEnvironment::systemEnvironment();
    for (const char* folder : {"home", "tmp"}) {
        QVERIFY(QDir(root->path()).mkpath(QLatin1String(folder)));
    }
    environment.insert(QStringLiteral("HOME"), Path(QStringLiteral("home")));
    environment.remove(QStringLiteral("XDG_CONFIG_HOME"));
    environment.insert(QStringLiteral("TMPDIR"), Path(QStringLiteral("tmp")));
    PictureFiles::WriteJpeg(Path(QStringLiteral("photos/lying.jpg")), 1, 120, 90);
    PictureFiles::WriteJpeg(Path(QStringLiteral("photos/upright.jpg")), 2, 90, 120);
    PictureFiles::WriteJpeg(Path(QStringLiteral("photos/square.jpg")), 3, 90, 90);
}

void tst_CliCrops::ratiosTurnWithThePicture_data()
{
    QTest::addColumn<QString>("crop");
    QTest::addColumn<QSize>("lying");
    QTest::addColumn<QSize>("upright");
    QTest::addColumn<QSize>("square");
    const auto row = [](const char* crop, const QSize& lying, const QSize& upright, const QSize& square) {
        QTest::newRow(crop) << QString::fromLatin1(crop) << lying << upright << square;
    };
    row("ratio:3x2", {120, 80}, {80, 120}, {90, 60});
    row("ratio:2x3", {120, 80}, {80, 120}, {60, 90});
    row("ratio:3x2!", {120, 80}, {90, 60}, {90, 60});
    row("ratio:2x3!", {60, 90}, {80, 120}, {60, 90});
    row("ratio:1x1", {90, 90}, {90, 90}, {90, 90});
    row("interesting:3x2", {120, 80}, {80, 120}, {90, 60});
    row("interesting:3x2!", {120, 80}, {90, 60}, {90, 60});
}

void tst_CliCrops::ratiosTurnWithThePicture()
{
    QFETCH(QString, crop);
    QFETCH(QSize, lying);
    QFETCH(QSize, upright);
    QFETCH(QSize, square);
    const CliRun run = Run(QStringLiteral("run photos -o out --crop ") + crop);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(Result(QStringLiteral("lying.jpg")), lying);
    QCOMPARE(Result(QStringLiteral("upright.jpg")), upright);
    QCOMPARE(Result(QStringLiteral("square.jpg")), square);
    const CliRun show = Run(QStringLiteral("show photos --crop ") + crop);
    QVERIFY2(show.out.contains(" " + crop.toUtf8() + '\n'), show.out.constData());
}

// A portrait of most cameras is a lying picture with a mark that says how it is to be turned.
void tst_CliCrops::ratiosTurnWithTheUprightPicture()
{
    QFile photo(Path(QStringLiteral("photos/lying.jpg")));
    QVERIFY(photo.open(QIODevice::ReadOnly));
    QByteArray bytes = photo.readAll();
    const QByteArray tiff = QByteArray::fromHex("49492a0008000000" // little-endian, first directory at 8
                                                "0100"
                                                "120103000100000006000000" // one entry: orientation, 6
                                                "00000000");
    const QByteArray exif = QByteArray::fromHex("457869660000") + tiff;
    const int length = exif.size() + 2;
    bytes.insert(2, QByteArray::fromHex("ffe1") + char(length >> 8) + char(length & 0xff) + exif);
    QFile marked(Path(QStringLiteral("marked/turned.jpg")));
    QVERIFY(QDir().mkpath(Path(QStringLiteral("marked"))));
    QVERIFY(marked.open(QIODevice::WriteOnly));
    QCOMPARE(marked.write(bytes), qint64(bytes.size()));
    marked.close();
    for (const char* crop : {"ratio:3x2", "interesting:3x2"}) {
        const CliRun run =
            Run(QStringLiteral("run marked -o out --on-name-exists overwrite --crop ") + QLatin1String(crop));
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QCOMPARE(Result(QStringLiteral("turned.jpg")), QSize(80, 120));
    }
}

void tst_CliCrops::savedRatiosStayAsTheyAre_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QByteArray>("shown");
    QTest::addColumn<QSize>("upright");
    QTest::newRow("ratio") << 1 << QByteArray("ratio:3x2!") << QSize(90, 60);
    QTest::newRow("interesting") << 3 << QByteArray("interesting:3x2!") << QSize(90, 60);
    QTest::newRow("turning ratio") << 6 << QByteArray("ratio:3x2") << QSize(80, 120);
    QTest::newRow("turning interesting") << 7 << QByteArray("interesting:3x2") << QSize(80, 120);
}

void tst_CliCrops::savedRatiosStayAsTheyAre()
{
    QFETCH(int, type);
    QFETCH(QByteArray, shown);
    QFETCH(QSize, upright);
    QFile job(Path(QStringLiteral("job.xml")));
    QVERIFY(job.open(QIODevice::WriteOnly));
    job.write("<!DOCTYPE batch><root><output><crop cropAlignment=\"132\" cropWidth=\"3\" cropHeight=\"2\" cropType=\"" +
              QByteArray::number(type) + "\"/></output></root>");
    job.close();
    const CliRun show = Run(QStringLiteral("show job.xml"));
    QVERIFY2(show.out.contains(' ' + shown + '\n'), show.out.constData());
    const CliRun run = Run(QStringLiteral("run job.xml photos -o out"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(Result(QStringLiteral("upright.jpg")), upright);
    QCOMPARE(Result(QStringLiteral("lying.jpg")), QSize(120, 80));
}

void tst_CliCrops::cropsInUnitsReachThePicture()
{
    const CliRun run =
        Run(QStringLiteral("run photos/lying.jpg -o out --crop fill:1.5x1cm --size 1.5cm --resolution 300"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(Result(QStringLiteral("lying.jpg")), QSize(177, 118));
}

QTEST_GUILESS_MAIN(tst_CliCrops)
#include "tst_clicrops.moc"
