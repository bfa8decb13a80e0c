// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectCalls.h"
#include "TestPictures.h"

#include <QtTest>

using namespace BatchWorker;

class tst_Watermarks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void standsInItsPlace_data();
    void standsInItsPlace();
    void repeatsTheMark();
    void laysOver_data();
    void laysOver();
    void measuresInPercent();
    void namesAFileThatCannotBeRead_data();
    void namesAFileThatCannotBeRead();
    void writesText();
    void writesTextAsItIs();
    void refusesTextsThatCannotBeDrawn();

private:
    QString Mark(const QVector<int>& values, int width, int height, bool hasAlpha = false) const;

    QTemporaryDir folder;
};

namespace {

const PictureForm rgb8{3, 8, false};
const PictureForm rgba8{3, 8, true};

Picture Black(int width, int height)
{
    return FromValues(rgb8, width, height, QVector<int>(width * height * 3, 0));
}

QByteArray Json(const char* format, const char* word)
{
    return QByteArray(format).replace("%", word);
}

/// The smallest rectangle that holds every value above 0 of the first channel.
QRect Extent(const Picture& picture)
{
    QRect extent;
    const QVector<int> values = ChannelOf(picture, 0);
    for (int i = 0; i < values.size(); ++i) {
        if (values[i] > 0) {
            extent |= QRect(i % picture.width(), i / picture.width(), 1, 1);
        }
    }
    return extent;
}

} // namespace

void tst_Watermarks::initTestCase()
{
    QVERIFY(VIPS_INIT("tst_watermarks") == 0);
}

QString tst_Watermarks::Mark(const QVector<int>& values, int width, int height, bool hasAlpha) const
{
    const QString path = folder.filePath(QStringLiteral("mark [a].png"));
    VipsBlob* const png = FromValues(hasAlpha ? rgba8 : rgb8, width, height, values).pngsave_buffer();
    size_t size = 0;
    const void* const bytes = vips_blob_get(png, &size);
    QFile file(path);
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(static_cast<const char*>(bytes), qint64(size)) == qint64(size);
    vips_area_unref(VIPS_AREA(png));
    return isWritten ? path : QString();
}

void tst_Watermarks::standsInItsPlace_data()
{
    QTest::addColumn<QByteArray>("position");
    QTest::addColumn<QPoint>("place");

    // A mark of 4 x 2 on 21 x 12, two pixels from the sides.
    QTest::newRow("top-left") << QByteArray("top-left") << QPoint(2, 2);
    QTest::newRow("top") << QByteArray("top") << QPoint(8, 2);
    QTest::newRow("top-right") << QByteArray("top-right") << QPoint(15, 2);
    QTest::newRow("left") << QByteArray("left") << QPoint(2, 5);
    QTest::newRow("centre") << QByteArray("centre") << QPoint(8, 5);
    QTest::newRow("right") << QByteArray("right") << QPoint(15, 5);
    QTest::newRow("bottom-left") << QByteArray("bottom-left") << QPoint(2, 8);
    QTest::newRow("bottom") << QByteArray("bottom") << QPoint(8, 8);
    QTest::newRow("bottom-right") << QByteArray("bottom-right") << QPoint(15, 8);
}

void tst_Watermarks::standsInItsPlace()
{
    QFETCH(QByteArray, position);
    QFETCH(QPoint, place);

    const QString mark = Mark(QVector<int>(4 * 2 * 3, 255), 4, 2);
    const QByteArray parameters =
        Json(R"({"size": 4, "margin": 2, "unit": "pixels", "position": "%"})", position.constData());
    const Picture result =
        EffectCalls::Apply(QStringLiteral("watermark-image"), EffectCalls::WithFile(mark, parameters), Black(21, 12));

    QCOMPARE(Extent(result), QRect(place, QSize(4, 2)));
    QCOMPARE(result.avg() * 21 * 12, 255.0 * 4 * 2);
}

void tst_Watermarks::repeatsTheMark()
{
    const QString mark = Mark(QVector<int>(2 * 1 * 3, 255), 2, 1);
    const Picture result = EffectCalls::Apply(
        QStringLiteral("watermark-image"),
        EffectCalls::WithFile(mark,
                              R"({"size": 2, "margin": 1, "unit": "pixels", "tile": true, "position": "top-left"})"),
        Black(7, 4));

    // Two, one apart, from column 1 on and, before it, from column -2; every second line from line 1 on.
    const QVector<int> line{0, 255, 255, 0, 255, 255, 0};
    const QVector<int> none(7, 0);
    QCOMPARE(ChannelOf(result, 0), none + line + none + line);
}

void tst_Watermarks::laysOver_data()
{
    QTest::addColumn<QVector<int>>("under");
    QTest::addColumn<QVector<int>>("mark");
    QTest::addColumn<int>("opacity");
    QTest::addColumn<QVector<int>>("expected");

    const auto row = [](const char* name, const QVector<int>& under, const QVector<int>& mark, int opacity,
                        const QVector<int>& expected) { QTest::newRow(name) << under << mark << opacity << expected; };
    row("opaque", {10, 20, 30, 255}, {200, 100, 50, 255}, 100, {200, 100, 50, 255});
    row("invisible", {10, 20, 30, 255}, {200, 100, 50, 0}, 100, {10, 20, 30, 255});
    row("half by opacity", {10, 20, 30, 255}, {200, 100, 50, 255}, 50, {105, 60, 40, 255});
    row("a fifth by alpha", {10, 20, 30, 255}, {210, 120, 80, 51}, 100, {50, 40, 40, 255});
    row("over nothing", {10, 20, 30, 0}, {200, 100, 50, 102}, 100, {200, 100, 50, 102});
    // 0.4 over 0.6 of 0.5: whole 0.7, of which 4/7 are the mark's.
    row("over half", {70, 0, 7, 127}, {0, 70, 7, 102}, 100, {30, 40, 7, 178});
}

void tst_Watermarks::laysOver()
{
    QFETCH(QVector<int>, under);
    QFETCH(QVector<int>, mark);
    QFETCH(int, opacity);
    QFETCH(QVector<int>, expected);

    const QByteArray parameters =
        Json(R"({"size": 1, "margin": 0, "unit": "pixels", "opacity": %})", QByteArray::number(opacity).constData());
    const QVector<int> result = ValuesOf(EffectCalls::Apply(QStringLiteral("watermark-image"),
                                                            EffectCalls::WithFile(Mark(mark, 1, 1, true), parameters),
                                                            FromValues(rgba8, 1, 1, under)));
    QCOMPARE(result, expected);
}

void tst_Watermarks::measuresInPercent()
{
    const QString mark = Mark(QVector<int>(10 * 10 * 3, 255), 10, 10);
    const Picture result = EffectCalls::Apply(
        QStringLiteral("watermark-image"),
        EffectCalls::WithFile(mark, R"({"size": 25, "margin": 10, "position": "top-left"})"), Black(80, 60));
    QCOMPARE(Extent(result), QRect(6, 6, 20, 20));
}

void tst_Watermarks::namesAFileThatCannotBeRead_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("gone") << QByteArray();
    QTest::newRow("text") << QByteArray("no picture");
    QTest::newRow("cut") << QByteArray("\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\x10", 20);
}

void tst_Watermarks::namesAFileThatCannotBeRead()
{
    QFETCH(QByteArray, bytes);

    const QString path = folder.filePath(QStringLiteral("broken.png"));
    QFile::remove(path);
    if (!bytes.isEmpty()) {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    const QByteArray parameters = EffectCalls::WithFile(path, R"({"size": 10, "unit": "pixels", "opacity": 100})");
    const QString failure = EffectCalls::Failure(QStringLiteral("watermark-image"), parameters, Black(20, 20));
    QVERIFY2(failure.startsWith(QStringLiteral("the picture %1 cannot be read: ").arg(path)), qPrintable(failure));
    QCOMPARE(EffectCalls::Failure(QStringLiteral("lut"), EffectCalls::WithFile(folder.filePath(QStringLiteral("no"))),
                                  Black(1, 1)),
             folder.filePath(QStringLiteral("no")) + QStringLiteral(" does not exist"));
}

void tst_Watermarks::writesText()
{
    const Picture result = EffectCalls::Apply(
        QStringLiteral("watermark-text"),
        R"({"text": "HHH", "size": 40, "margin": 10, "unit": "pixels", "opacity": 100, "position": "top-left"})",
        Black(300, 200));

    // Capitals are about seven tenths of the size high.
    const QRect extent = Extent(result);
    QCOMPARE(extent.topLeft(), QPoint(10, 10));
    QVERIFY2(extent.height() >= 24 && extent.height() <= 34, qPrintable(QString::number(extent.height())));
    QVERIFY(extent.width() > 60 && extent.width() < 140);
    QCOMPARE(result.max(), 255.0);

    const Picture faint = EffectCalls::Apply(
        QStringLiteral("watermark-text"),
        R"({"text": "HHH", "size": 40, "unit": "pixels", "opacity": 40, "colour": "#ff800080"})", Black(300, 200));
    // 255 x 0.4 x 128 / 255.
    QCOMPARE(faint.extract_band(0).max(), 51.0);
    QCOMPARE(faint.extract_band(1).max(), 26.0);
    QCOMPARE(faint.extract_band(2).max(), 0.0);
}

// Nothing in the text is taken for markup.
void tst_Watermarks::writesTextAsItIs()
{
    const auto width = [](const char* text) {
        const QByteArray parameters =
            Json(R"({"text": "%", "size": 20, "unit": "pixels", "position": "top-left", "opacity": 100})", text);
        return Extent(EffectCalls::Apply(QStringLiteral("watermark-text"), parameters, Black(400, 100))).width();
    };
    QVERIFY(width("<b>a</b>") > 2 * width("aaa"));
    QVERIFY(width("a & b") > width("a b"));
    QVERIFY(width("<i>") > 0);
    QVERIFY(width("&amp;") > 2 * width("&"));
}

void tst_Watermarks::refusesTextsThatCannotBeDrawn()
{
    const auto failure = [](const char* text, const char* size) {
        return EffectCalls::Failure(
            QStringLiteral("watermark-text"),
            Json(R"({"text": "#", "size": %, "unit": "pixels", "colour": "#ffffff", "font": "sans"})", size)
                .replace("\"#\"", "\"" + QByteArray(text) + "\""),
            Black(4, 4));
    };
    QCOMPARE(failure("  ", "10"), QStringLiteral("the text has no letters that could be drawn"));
    QCOMPARE(failure("\\u0001\\u0007", "10"), QStringLiteral("the text has no letters that could be drawn"));
    QCOMPARE(failure(QByteArray(500, 'W').constData(), "10000"),
             QStringLiteral("the text would be too large at a size of 10000 pixels"));
}

QTEST_GUILESS_MAIN(tst_Watermarks)
#include "tst_watermarks.moc"
