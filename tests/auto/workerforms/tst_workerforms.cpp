// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TestPictures.h"

#include "server/worker/colour/Colour.h"
#include "server/worker/colour/WorkingForm.h"
#include "server/worker/pixels/PictureFailure.h"

#include <QTest>

#include <cmath>

using namespace BatchJob;
using namespace BatchWorker;

namespace {

const PictureForm noForm{0, 0, false};

// The nicknames of an enumeration of the imaging library.
QVector<QPair<int, QByteArray>> ValuesOfEnumeration(GType type)
{
    QVector<QPair<int, QByteArray>> values;
    auto* const enumeration = static_cast<GEnumClass*>(g_type_class_ref(type));
    for (guint i = 0; i < enumeration->n_values; ++i) {
        const QByteArray name = enumeration->values[i].value_nick;
        if (name != "last" && name != "notset") {
            values.append({enumeration->values[i].value, name});
        }
    }
    g_type_class_unref(enumeration);
    return values;
}

Picture Line(VipsBandFormat format, const QVector<double>& values)
{
    std::vector<Picture> pixels;
    for (const double value : values) {
        pixels.push_back(Picture::black(1, 1).linear(std::vector<double>{1}, std::vector<double>{value}).cast(format));
    }
    return Picture::arrayjoin(pixels, Picture::option()->set("across", int(values.size())))
        .cast(format)
        .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_B_W));
}

} // namespace

/// Which pixels the stages take: every kind that the imaging library can describe.
class tst_WorkerForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void bringsAnyKindIntoAFormOrRefusesIt_data();
    void bringsAnyKindIntoAFormOrRefusesIt();
    void mapsWholeNumbers_data();
    void mapsWholeNumbers();
    void keepsTheAlphaOfOtherColours();
};

void tst_WorkerForms::initTestCase()
{
    StartPictures();
}

void tst_WorkerForms::bringsAnyKindIntoAFormOrRefusesIt_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<int>("interpretation");
    for (const auto& format : ValuesOfEnumeration(VIPS_TYPE_BAND_FORMAT)) {
        for (const auto& interpretation : ValuesOfEnumeration(VIPS_TYPE_INTERPRETATION)) {
            QTest::newRow(format.second + ", " + interpretation.second) << format.first << interpretation.first;
        }
    }
}

void tst_WorkerForms::bringsAnyKindIntoAFormOrRefusesIt()
{
    QFETCH(const int, format);
    QFETCH(const int, interpretation);

    for (int bands = 1; bands <= 5; ++bands) {
        const Picture picture = Picture::black(4, 3, Picture::option()->set("bands", bands))
                                    .cast(VipsBandFormat(format))
                                    .copy(Picture::option()->set("interpretation", interpretation));
        Warnings warnings;
        try {
            const Picture result = InWorkingColours(picture, false, warnings);
            QVERIFY2(!(FormOf(result) == noForm), qPrintable(QStringLiteral("%1 bands").arg(bands)));
            QVERIFY(result.bands() <= 4);
            result.avg();
        } catch (const PictureFailure& problem) {
            QCOMPARE(problem.kind, PictureFailure::Kind::UnknownFormat);
            QVERIFY(!problem.reason.isEmpty());
        }
    }
}

void tst_WorkerForms::mapsWholeNumbers_data()
{
    QTest::addColumn<int>("format");
    QTest::addColumn<QVector<double>>("values");
    QTest::addColumn<QVector<int>>("expected");
    using Values = QVector<double>;
    using Expected = QVector<int>;
    QTest::newRow("8 bits") << int(VIPS_FORMAT_UCHAR) << Values{0, 1, 255} << Expected{0, 1, 255};
    QTest::newRow("8 bits, signed") << int(VIPS_FORMAT_CHAR) << Values{-128, -1, 0, 127} << Expected{0, 127, 128, 255};
    QTest::newRow("16 bits") << int(VIPS_FORMAT_USHORT) << Values{0, 1, 65535} << Expected{0, 1, 65535};
    QTest::newRow("16 bits, signed") << int(VIPS_FORMAT_SHORT) << Values{-32768, -1, 0, 32767}
                                     << Expected{0, 32767, 32768, 65535};
    QTest::newRow("32 bits") << int(VIPS_FORMAT_UINT) << Values{0, 2147483648.0, 4294967295.0}
                             << Expected{0, 32768, 65535};
    QTest::newRow("32 bits, signed") << int(VIPS_FORMAT_INT) << Values{-2147483648.0, 0, 2147483647.0}
                                     << Expected{0, 32768, 65535};
}

void tst_WorkerForms::mapsWholeNumbers()
{
    QFETCH(const int, format);
    QFETCH(const QVector<double>, values);
    QFETCH(const QVector<int>, expected);

    const Picture result = InWorkingForm(Line(VipsBandFormat(format), values));
    QCOMPARE(FormOf(result).colours, 1);
    QCOMPARE(ValuesOf(result), expected);
}

void tst_WorkerForms::keepsTheAlphaOfOtherColours()
{
    const Picture lab = Picture::black(2, 2, Picture::option()->set("bands", 4))
                            .linear(std::vector<double>{1, 1, 1, 1}, std::vector<double>{50, 0, 0, 51})
                            .cast(VIPS_FORMAT_FLOAT)
                            .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_LAB));
    const Picture result = InWorkingForm(lab);
    QVERIFY((FormOf(result) == PictureForm{3, 16, true}));
    const std::vector<double> pixel = result.getpoint(0, 0);
    QVERIFY(std::abs(pixel[0] - 119 * 257) < 300); // L 50 is 119 of sRGB
    QCOMPARE(pixel[3], 51.0 * 257);
}

QTEST_GUILESS_MAIN(tst_WorkerForms)
#include "tst_workerforms.moc"
