// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectCalls.h"
#include "SlowEffects.h"
#include "TestPictures.h"

#include "server/worker/geometry/Coverage.h"
#include "server/worker/geometry/Rotation.h"

#include <QtTest>

#include <cmath>

using namespace BatchWorker;
using SlowEffects::Pixels;

/// Effects that look at neighbours, against their definitions computed pixel by pixel, and however they are asked for.
class tst_AreaEffects : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void blurs_data() { forms(); }
    void blurs();
    void blursBySmallCopy_data() { forms(); }
    void blursBySmallCopy();
    void sharpens_data() { forms(); }
    void sharpens();
    void clarifies_data() { forms(); }
    void clarifies();
    void denoises_data() { forms(); }
    void denoises();
    void turns_data() { forms(); }
    void turns();
    void givesTheSameInAnyPieces_data();
    void givesTheSameInAnyPieces();

private:
    void forms();
};

namespace {

// Narrower, lower and larger than kernels, strips and tiles.
const QVector<QSize>& Sizes()
{
    static const QVector<QSize> sizes{{1, 1}, {1, 9}, {9, 1}, {5, 3}, {140, 35}};
    return sizes;
}

/// Parts of noise are transparent, parts opaque.
Picture PictureOf(const PictureForm& form, const QSize& size)
{
    const Picture noise = Noise(form, size.width(), size.height());
    if (!form.hasAlpha) {
        return noise;
    }
    const double largest = form.Largest();
    const Picture alpha = noise.extract_band(form.colours).linear(3.0, -largest).cast(noise.format());
    const Picture colours = noise.extract_band(0, Picture::option()->set("n", form.colours));
    return colours.bandjoin(alpha).copy(Picture::option()->set("interpretation", noise.interpretation()));
}

/// The first difference of more than `tolerance`, or nothing. Colours under no opacity may be any.
QByteArray Difference(const Picture& picture, const Pixels& expected, double tolerance)
{
    const QVector<int> values = ValuesOf(picture);
    if (values.size() != int(expected.values.size())) {
        return "another size";
    }
    for (int i = 0; i < values.size(); ++i) {
        const double value = qBound(0.0, expected.values[std::size_t(i)], expected.largest);
        const bool isHidden =
            expected.hasAlpha && values[i / expected.bands * expected.bands + expected.bands - 1] == 0;
        if (std::abs(values[i] - value) > tolerance && !isHidden) {
            return QByteArray("value ") + QByteArray::number(i) + " of " + QByteArray::number(expected.width) +
                   " columns is " + QByteArray::number(values[i]) + " instead of " + QByteArray::number(value);
        }
    }
    return {};
}

template<typename Reference>
void Compare(const char* id, const QByteArray& parameters, double tolerance, const Reference& reference)
{
    QFETCH(PictureForm, form);
    for (const QSize& size : Sizes()) {
        const Picture picture = PictureOf(form, size);
        const Picture result = EffectCalls::Apply(QLatin1String(id), parameters, picture);
        const QByteArray difference = Difference(result, reference(Pixels(picture)), tolerance);
        QVERIFY2(difference.isEmpty(), (parameters + ": " + difference).constData());
    }
}

// Rounding, and what sums of floats lose at 16 bits.
double ToleranceOf(const PictureForm& form, double factor = 1.0)
{
    return 0.5 + factor * form.Largest() * 2e-6;
}

} // namespace

Q_DECLARE_METATYPE(PictureForm)

void tst_AreaEffects::initTestCase()
{
    QVERIFY(VIPS_INIT("tst_areaeffects") == 0);
}

void tst_AreaEffects::forms()
{
    QTest::addColumn<PictureForm>("form");
    for (const PictureForm& form : AllForms()) {
        QTest::addRow("%s, %d bits%s", form.colours == 1 ? "grey" : "RGB", form.bits, form.hasAlpha ? ", alpha" : "")
            << form;
    }
}

void tst_AreaEffects::blurs()
{
    QFETCH(PictureForm, form);
    for (const double sigma : {0.2, 0.5, 1.5, 8.0}) {
        Compare("blur", QByteArray("{\"sigma\": ") + QByteArray::number(sigma) + '}', ToleranceOf(form),
                [sigma](const Pixels& pixels) { return SlowEffects::Blurred(pixels, sigma); });
    }
}

// The effect's description promises that little difference.
void tst_AreaEffects::blursBySmallCopy()
{
    QFETCH(PictureForm, form);
    // Of colours with an opacity that changes from pixel to pixel only the weighted ones are as close.
    const double share = form.hasAlpha ? 0.02 : 0.005;
    for (const double sigma : {8.1, 21.0}) {
        Compare("blur", QByteArray("{\"sigma\": ") + QByteArray::number(sigma) + '}', 0.5 + form.Largest() * share,
                [sigma](const Pixels& pixels) { return SlowEffects::Blurred(pixels, sigma); });
    }
}

void tst_AreaEffects::sharpens()
{
    QFETCH(PictureForm, form);
    Compare("sharpen", R"({"sigma": 1.3, "amount": 180})", ToleranceOf(form, 2.0), [](const Pixels& pixels) {
        return SlowEffects::Sharpened(pixels, SlowEffects::Blurred(pixels, 1.3), 1.8, 0.0);
    });
    Compare("sharpen", R"({"sigma": 3, "amount": 50, "threshold": 10.037})", ToleranceOf(form),
            [](const Pixels& pixels) {
                return SlowEffects::Sharpened(pixels, SlowEffects::Blurred(pixels, 3.0), 0.5, 0.10037);
            });
}

void tst_AreaEffects::clarifies()
{
    QFETCH(PictureForm, form);
    Compare("clarity", R"({"sigma": 6, "amount": 70})", ToleranceOf(form), [](const Pixels& pixels) {
        return SlowEffects::Clarified(pixels, SlowEffects::Blurred(pixels, 6.0), 0.7);
    });
}

void tst_AreaEffects::denoises()
{
    QFETCH(PictureForm, form);
    // The exponential has a relative error of 7e-6.
    Compare("denoise", R"({"strength": 25, "sigma": 1.2})", ToleranceOf(form, 10.0),
            [](const Pixels& pixels) { return SlowEffects::Denoised(pixels, 0.25, 1.2); });
    Compare("denoise", R"({"strength": 2, "sigma": 0.6})", ToleranceOf(form, 10.0),
            [](const Pixels& pixels) { return SlowEffects::Denoised(pixels, 0.02, 0.6); });
}

void tst_AreaEffects::turns()
{
    QFETCH(PictureForm, form);
    const QSize canvas(141, 60);
    for (const QSize& size : Sizes()) {
        for (const double degrees : {3.0, 215.0}) {
            const QTransform toCanvas = QTransform::fromTranslate(-size.width() / 2.0, -size.height() / 2.0) *
                                        QTransform().rotate(degrees) * QTransform::fromTranslate(70.3, 29.1);
            const Picture picture = PictureOf(form, size);
            Pixels expected = SlowEffects::Turned(Pixels(picture), toCanvas.inverted(), canvas);
            const Picture turned = Rotated(picture, toCanvas, canvas);
            const Coverage coverage({toCanvas.map(QPointF(0, 0)), toCanvas.map(QPointF(size.width(), 0)),
                                     toCanvas.map(QPointF(size.width(), size.height())),
                                     toCanvas.map(QPointF(0, size.height()))});
            // What the picture does not touch may be any.
            const QVector<int> values = ValuesOf(turned);
            for (int y = 0; y < canvas.height(); ++y) {
                for (int x = 0; x < canvas.width(); ++x) {
                    for (int band = 0; band < expected.bands && coverage.OfPixel(x, y) == 0.0; ++band) {
                        expected.At(x, y, band) = values[(y * canvas.width() + x) * expected.bands + band];
                    }
                }
            }
            // Colours of little opacity are quotients of small sums.
            const double tolerance = form.hasAlpha ? 0.5 + form.Largest() * 1e-3 : ToleranceOf(form, 2.0);
            const QByteArray difference = Difference(turned, expected, tolerance);
            QVERIFY2(difference.isEmpty(), (QByteArray::number(degrees) + " degrees: " + difference).constData());
        }
    }
}

void tst_AreaEffects::givesTheSameInAnyPieces_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QByteArray>("parameters");
    const auto row = [](const char* id, const char* parameters) {
        QTest::addRow("%s %s", id, parameters) << QString::fromLatin1(id) << QByteArray(parameters);
    };
    row("blur", R"({"sigma": 2})");
    row("blur", R"({"sigma": 11})");
    row("sharpen", R"({"sigma": 1.5})");
    row("sharpen", R"({"sigma": 15})");
    row("clarity", R"({"sigma": 6})");
    row("clarity", R"({"sigma": 30})");
    row("denoise", R"({"strength": 20})");
    row("rotate", R"({"angle": 12, "background": "#a0ff0080"})");
}

void tst_AreaEffects::givesTheSameInAnyPieces()
{
    QFETCH(QString, id);
    QFETCH(QByteArray, parameters);
    const PictureForm rgba16{3, 16, true};
    for (const PictureForm& form : {PictureForm(), rgba16}) {
        const Picture result = EffectCalls::Apply(id, parameters, PictureOf(form, {301, 177}));
        const Picture whole = result.copy_memory();
        const int width = whole.width();
        const int height = whole.height();
        const auto isSame = [&](int left, int top, int right, int bottom) {
            return ValuesOf(result.crop(left, top, right - left, bottom - top)) ==
                   ValuesOf(whole.crop(left, top, right - left, bottom - top));
        };
        QVERIFY(isSame(0, 0, width, height));
        QVERIFY(isSame(0, height / 3, width, height / 3 + 1));
        QVERIFY(isSame(width / 3, 0, width / 3 + 1, height));
        QVERIFY(isSame(17, 33, 170, 150));
        QVERIFY(isSame(width - 1, height - 1, width, height));

        // One reader that asks for strips and tiles forwards and backwards.
        const std::unique_ptr<VipsRegion, void (*)(gpointer)> region(vips_region_new(result.get_image()),
                                                                     g_object_unref);
        const QVector<QRect> areas{{0, 0, width, 16},  {0, 16, width, 16},  {0, 90, width, 30}, {0, 20, width, 5},
                                   {60, 20, 40, 70},   {100, 20, 40, 70},   {60, 90, 40, 20},   {0, 0, width, height},
                                   {0, 100, width, 3}, {0, 103, width, 70}, {3, 103, 1, 1}};
        for (const QRect& area : areas) {
            const VipsRect asked{area.x(), area.y(), area.width(), area.height()};
            QVERIFY(vips_region_prepare(region.get(), &asked) == 0);
            QVector<int> values;
            for (int y = area.top(); y <= area.bottom(); ++y) {
                const VipsPel* const first = VIPS_REGION_ADDR(region.get(), area.x(), y);
                const auto* const deep = reinterpret_cast<const std::uint16_t*>(first);
                for (int i = 0; i < area.width() * whole.bands(); ++i) {
                    values.append(form.bits == 16 ? deep[i] : first[i]);
                }
            }
            QVERIFY(values == ValuesOf(whole.crop(area.x(), area.y(), area.width(), area.height())));
        }
    }
}

QTEST_GUILESS_MAIN(tst_AreaEffects)
#include "tst_areaeffects.moc"
