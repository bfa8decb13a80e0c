// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectCalls.h"
#include "TestPictures.h"

#include <QtTest>

#include <QProcess>

using namespace BatchWorker;

/// A real photo through our effects and through ImageMagick's operations of the same definition.
class tst_EffectsAgainstMagick : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void agrees_data();
    void agrees();

private:
    QTemporaryDir folder;
};

void tst_EffectsAgainstMagick::initTestCase()
{
    QVERIFY(VIPS_INIT("tst_effectsagainstmagick") == 0);
    const char photo[] = "/usr/share/backgrounds/mate/nature/Garden.jpg";
    if (!QFile::exists(QLatin1String(photo)) || QStandardPaths::findExecutable(QStringLiteral("convert")).isEmpty()) {
        QSKIP("needs the packages mate-backgrounds and imagemagick");
    }
    Picture::thumbnail(photo, 333)
        .pngsave(qPrintable(folder.filePath(QStringLiteral("photo.png"))), Picture::option()->set("strip", true));
    const PictureForm rgba{3, 8, true};
    Noise(rgba, 25, 18).write_to_file(qPrintable(folder.filePath(QStringLiteral("mark.png"))));
}

void tst_EffectsAgainstMagick::agrees_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QByteArray>("parameters");
    QTest::addColumn<QString>("operation");
    QTest::addColumn<int>("tolerance");

    const auto row = [](const char* id, const char* parameters, const char* operation, int tolerance) {
        QTest::addRow("%s %s", id, parameters)
            << QString::fromLatin1(id) << QByteArray(parameters) << QString::fromLatin1(operation) << tolerance;
    };
    row("invert", "{}", "-negate", 0);
    row("flip", R"({"direction": "horizontal"})", "-flop", 0);
    row("flip", R"({"direction": "vertical"})", "-flip", 0);
    row("rotate", R"({"angle": 90})", "-rotate 90", 0);
    row("rotate", R"({"angle": 270})", "-rotate 270", 0);
    row("border", R"({"left": 7, "top": 4, "right": 7, "bottom": 4, "colour": "#336699"})",
        "-bordercolor #336699 -border 7x4", 0);
    row("levels", R"({"black": 10, "white": 90, "gamma": 1.5})", "-level 10%,90%,1.5", 1);
    row("brightness-contrast", R"({"contrast": 40})", "-function Polynomial 1.6666667,-0.3333333", 1);
    row("brightness-contrast", R"({"brightness": 20})", "-evaluate Add 20%", 1);
    row("auto-levels", R"({"clip": 0})", "-auto-level", 1);
    row("posterize", R"({"levels": 4})", "-posterize 4", 1);
    row("grayscale", R"({"method": "luma"})",
        "-color-matrix 0.2126,0.7152,0.0722,0.2126,0.7152,0.0722,0.2126,0.7152,0.0722", 1);
    row("sepia", "{}", "-color-matrix 0.393,0.769,0.189,0.349,0.686,0.168,0.272,0.534,0.131", 1);
    row("saturation", R"({"amount": 50})",
        "-color-matrix 1.3937,-0.3576,-0.0361,-0.1063,1.1424,-0.0361,-0.1063,-0.3576,1.4639", 1);
    row("blur", R"({"sigma": 2})", "-virtual-pixel edge -gaussian-blur 6x2", 1);
    row("blur", R"({"sigma": 12})", "-virtual-pixel edge -blur 36x12", 2);
    row("sharpen", R"({"sigma": 1.5, "amount": 80})", "-virtual-pixel edge -unsharp 4x1.5+0.8+0", 2);
    row("watermark-image", R"({"size": 25, "unit": "pixels", "margin": 3})",
        "MARK -gravity SouthEast -geometry +3+3 -composite", 1);
}

void tst_EffectsAgainstMagick::agrees()
{
    QFETCH(QString, id);
    QFETCH(QByteArray, parameters);
    QFETCH(QString, operation);
    QFETCH(int, tolerance);

    const QString photo = folder.filePath(QStringLiteral("photo.png"));
    const QString mark = folder.filePath(QStringLiteral("mark.png"));
    // The library remembers files by their names, so each row has its own.
    const QTemporaryDir folder;
    const QString theirs = folder.filePath(QStringLiteral("theirs.png"));
    QStringList arguments{photo};
    for (const QString& word : operation.split(QLatin1Char(' '))) {
        arguments.append(word == QLatin1String("MARK") ? mark : word);
    }
    arguments << QStringLiteral("-depth") << QStringLiteral("8") << QStringLiteral("PNG24:") + theirs;
    QProcess convert;
    convert.start(QStringLiteral("convert"), arguments);
    QVERIFY(convert.waitForFinished(60'000));
    QVERIFY2(convert.exitCode() == 0, convert.readAllStandardError().constData());

    const bool hasMark = id == QLatin1String("watermark-image");
    const Picture result = EffectCalls::Apply(id, hasMark ? EffectCalls::WithFile(mark, parameters) : parameters,
                                              Picture::new_from_file(qPrintable(photo)));
    const Picture expected = Picture::new_from_file(qPrintable(theirs));
    QCOMPARE(QSize(result.width(), result.height()), QSize(expected.width(), expected.height()));
    QCOMPARE(result.bands(), expected.bands());
    const double worst = (result - expected).abs().max();
    QVERIFY2(worst <= tolerance, qPrintable(QStringLiteral("off by %1").arg(worst)));
}

QTEST_GUILESS_MAIN(tst_EffectsAgainstMagick)
#include "tst_effectsagainstmagick.moc"
