// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectCalls.h"
#include "TestPictures.h"

#include "job/effects/EffectCatalog.h"
#include "server/worker/effects/Effects.h"
#include "server/worker/pixels/RandomAccess.h"

#include <QtTest>

using namespace BatchJob;
using namespace BatchWorker;

/// What holds for every effect and every form of picture.
class tst_EffectProperties : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void keepsTheForm_data();
    void keepsTheForm();
    void neutralParametersChangeNothing_data();
    void neutralParametersChangeNothing();
    void defaultsAreNeutralOrChangeSomething_data();
    void defaultsAreNeutralOrChangeSomething();
    void readsFromTopToBottom_data();
    void readsFromTopToBottom();
    void readsOnlyOnceWhereItSaysSo();

private:
    QByteArray WithFiles(const QString& id, const QByteArray& parameters) const;

    QTemporaryDir folder;
};

namespace {

// Every effect with parameters that do something.
struct Case
{
    const char* id;
    const char* parameters;
    bool keepsSize = true;
    bool keepsAlpha = true;
    bool turnsGreyIntoRgb = false;
    bool addsAlpha = false;
};

const QVector<Case>& Cases()
{
    static const QVector<Case> cases{
        {"exposure", R"({"stops": 0.7})"},
        {"exposure", R"({"stops": -10})"},
        {"brightness-contrast", R"({"brightness": 10, "contrast": 30})"},
        {"brightness-contrast", R"({"brightness": -100, "contrast": 100})"},
        {"levels", R"({"black": 5, "white": 80, "gamma": 1.4})"},
        {"curve", R"({"points": [[0, 10], [50, 40], [100, 90]]})"},
        {"curve", R"({"points": [[0, 10], [100, 90]], "channel": "green"})"},
        {"auto-levels", R"({"clip": 1})"},
        {"auto-levels", R"({"clip": 0, "channels": "each"})"},
        {"white-balance", R"({"temperature": 40, "tint": -10})"},
        {"saturation", R"({"amount": 60})"},
        {"vibrance", R"({"amount": -60})"},
        {"hue", R"({"angle": 75})"},
        {"grayscale", R"({"method": "luminance"})"},
        {"grayscale", R"({"method": "luma"})"},
        {"grayscale", R"({"method": "average"})"},
        {"sepia", R"({"amount": 70})", true, true, true},
        {"invert", "{}"},
        {"posterize", R"({"levels": 3})"},
        {"blur", R"({"sigma": 1.5})", true, false},
        {"blur", R"({"sigma": 30})", true, false},
        {"sharpen", R"({"sigma": 2, "amount": 80, "threshold": 1})"},
        {"sharpen", R"({"sigma": 20, "amount": 80})"},
        {"denoise", R"({"strength": 20})"},
        {"clarity", R"({"amount": 50, "sigma": 5})"},
        {"clarity", R"({"amount": -50, "sigma": 300})"},
        {"vignette", R"({"amount": -60})"},
        {"vignette", R"({"amount": 60, "start": 0, "softness": 0})"},
        {"lut", R"({"strength": 80})", true, true, true},
        {"lut", R"({"interpolation": "trilinear"})", true, true, true},
        {"rotate", R"({"angle": 90})", false, false},
        {"rotate", R"({"angle": -180})", true, false},
        {"rotate", R"({"angle": 33.3})", false, false},
        {"rotate", R"({"angle": -0.01, "background": "#ff0000"})", false, false, true},
        {"rotate", R"({"angle": 200, "background": "#00000000"})", false, false, false, true},
        {"flip", R"({"direction": "horizontal"})", true, false},
        {"flip", R"({"direction": "vertical"})", true, false},
        {"flip", R"({"direction": "both"})", true, false},
        {"border", R"({"left": 3, "bottom": 2})", false, false},
        {"border", R"({"top": 50, "unit": "percent", "colour": "#10ff1080"})", false, false, true, true},
        {"watermark-text", R"({"text": "W", "size": 60})", true, false},
        {"watermark-text", R"({"text": "a <b> & c\nd", "tile": true, "colour": "#ff8000c0"})", true, false, true},
        {"watermark-text", R"({"text": "W", "size": 60, "tokens": true})", true, false},
        {"set-metadata", R"({"title": "T"})"},
        {"watermark-image", R"({"size": 60})", true, false, true},
        {"watermark-image", R"({"size": 9, "unit": "pixels", "tile": true, "opacity": 40})", true, false, true},
    };
    return cases;
}

const QVector<QSize>& Sizes()
{
    static const QVector<QSize> sizes{{1, 1}, {1, 9}, {9, 1}, {5, 3}, {33, 18}};
    return sizes;
}

// Parameters that change nothing; for effects that have none, nothing.
const QMap<QString, QByteArray>& NeutralParameters()
{
    static const QMap<QString, QByteArray> neutral{
        {QStringLiteral("exposure"), R"({"stops": 0})"},
        {QStringLiteral("brightness-contrast"), R"({"brightness": 0, "contrast": 0})"},
        {QStringLiteral("levels"), R"({"black": 0, "white": 100, "gamma": 1})"},
        {QStringLiteral("curve"), R"({"points": [[0, 0], [25, 25], [100, 100]]})"},
        {QStringLiteral("white-balance"), R"({"temperature": 0, "tint": 0})"},
        {QStringLiteral("saturation"), R"({"amount": 0})"},
        {QStringLiteral("vibrance"), R"({"amount": 0})"},
        {QStringLiteral("hue"), R"({"angle": 0})"},
        {QStringLiteral("sepia"), R"({"amount": 0})"},
        {QStringLiteral("blur"), R"({"sigma": 0})"},
        {QStringLiteral("sharpen"), R"({"amount": 0})"},
        {QStringLiteral("denoise"), R"({"strength": 0})"},
        {QStringLiteral("clarity"), R"({"amount": 0})"},
        {QStringLiteral("vignette"), R"({"amount": 0})"},
        {QStringLiteral("lut"), R"({"strength": 0})"},
        {QStringLiteral("rotate"), R"({"angle": 360})"},
        {QStringLiteral("border"), R"({"colour": "#ff000000"})"},
        {QStringLiteral("watermark-text"), R"({"text": "W", "opacity": 0})"},
        {QStringLiteral("watermark-image"), R"({"opacity": 0})"},
        {QStringLiteral("set-metadata"), R"({"title": "T"})"},
    };
    return neutral;
}

const QStringList& EffectsWithoutNeutralParameters()
{
    static const QStringList ids{QStringLiteral("auto-levels"), QStringLiteral("grayscale"), QStringLiteral("invert"),
                                 QStringLiteral("posterize"), QStringLiteral("flip")};
    return ids;
}

// Effects whose defaults are neutral.
const QStringList& NeutralByDefault()
{
    static const QStringList ids{QStringLiteral("exposure"),      QStringLiteral("brightness-contrast"),
                                 QStringLiteral("levels"),        QStringLiteral("curve"),
                                 QStringLiteral("white-balance"), QStringLiteral("saturation"),
                                 QStringLiteral("vibrance"),      QStringLiteral("hue"),
                                 QStringLiteral("rotate"),        QStringLiteral("border"),
                                 QStringLiteral("set-metadata")};
    return ids;
}

QByteArray Name(const PictureForm& form)
{
    return QByteArray(form.colours == 1 ? "grey" : "RGB") + QByteArray::number(form.bits) +
           (form.hasAlpha ? " alpha" : "");
}

} // namespace

void tst_EffectProperties::initTestCase()
{
    QVERIFY(VIPS_INIT("tst_effectproperties") == 0);
    const PictureForm rgba{3, 8, true};
    FromValues(rgba, 2, 1, {255, 0, 0, 255, 0, 0, 255, 128})
        .write_to_file(qPrintable(folder.filePath(QStringLiteral("mark.png"))));
    QFile cube(folder.filePath(QStringLiteral("warm.cube")));
    QVERIFY(cube.open(QIODevice::WriteOnly));
    cube.write("LUT_3D_SIZE 2\n0.1 0 0\n1 0 0\n0 1 0\n1 0.9 0\n0 0 1\n1 0 1\n0 1 1\n1 1 0.8\n");
}

QByteArray tst_EffectProperties::WithFiles(const QString& id, const QByteArray& parameters) const
{
    if (id == QLatin1String("lut")) {
        return EffectCalls::WithFile(folder.filePath(QStringLiteral("warm.cube")), parameters);
    }
    if (id == QLatin1String("watermark-image")) {
        return EffectCalls::WithFile(folder.filePath(QStringLiteral("mark.png")), parameters);
    }
    return parameters;
}

void tst_EffectProperties::keepsTheForm_data()
{
    QTest::addColumn<int>("number");

    QSet<QString> covered;
    for (int i = 0; i < Cases().size(); ++i) {
        QTest::addRow("%s %s", Cases()[i].id, Cases()[i].parameters) << i;
        covered.insert(QLatin1String(Cases()[i].id));
    }
    for (const EffectSchema& effect : Effects()) {
        QVERIFY2(covered.contains(effect.id), qPrintable(effect.id));
    }
}

void tst_EffectProperties::keepsTheForm()
{
    QFETCH(int, number);
    const Case& row = Cases()[number];
    const QString id = QLatin1String(row.id);
    const QByteArray parameters = WithFiles(id, row.parameters);

    for (const PictureForm& form : AllForms()) {
        for (const QSize& size : Sizes()) {
            Picture picture = Noise(form, size.width(), size.height());
            picture = picture.copy();
            picture.set("comment", "kept");
            const Picture result = EffectCalls::Apply(id, parameters, picture);
            const QByteArray where =
                Name(form) + " " + QByteArray::number(size.width()) + "x" + QByteArray::number(size.height());

            PictureForm expected = form;
            expected.colours = row.turnsGreyIntoRgb ? 3 : form.colours;
            expected.hasAlpha = form.hasAlpha || row.addsAlpha;
            QVERIFY2(FormOf(result) == expected, where.constData());
            // All pixels are made, whatever is compared below.
            QCOMPARE(ValuesOf(result).size(), result.width() * result.height() * expected.Bands());
            if (row.keepsSize) {
                QCOMPARE(QSize(result.width(), result.height()), size);
            }
            QVERIFY2(result.width() >= 1 && result.height() >= 1, where.constData());
            if (row.keepsAlpha && form.hasAlpha) {
                QVERIFY2(ChannelOf(result, result.bands() - 1) == ChannelOf(picture, picture.bands() - 1),
                         where.constData());
            }
            QCOMPARE(QByteArray(result.get_string("comment")), QByteArray("kept"));
        }
    }
}

void tst_EffectProperties::neutralParametersChangeNothing_data()
{
    QTest::addColumn<QString>("id");

    for (const EffectSchema& effect : Effects()) {
        if (EffectsWithoutNeutralParameters().contains(effect.id)) {
            QVERIFY(!NeutralParameters().contains(effect.id));
        } else {
            QTest::newRow(qPrintable(effect.id)) << effect.id;
        }
    }
}

void tst_EffectProperties::neutralParametersChangeNothing()
{
    QFETCH(QString, id);
    QVERIFY(NeutralParameters().contains(id));

    for (const PictureForm& form : AllForms()) {
        // A watermark with colour makes RGB of grey even where it cannot be seen.
        if (id == QLatin1String("watermark-image") && form.colours == 1) {
            continue;
        }
        for (const Picture& picture : {Noise(form, 31, 17), EveryValue(form)}) {
            const Picture result = EffectCalls::Apply(id, WithFiles(id, NeutralParameters()[id]), picture);
            QVERIFY2(FormOf(result) == form, Name(form).constData());
            QVERIFY2(ValuesOf(result) == ValuesOf(picture), Name(form).constData());
        }
    }
}

void tst_EffectProperties::defaultsAreNeutralOrChangeSomething_data()
{
    QTest::addColumn<QString>("id");

    for (const EffectSchema& effect : Effects()) {
        QTest::newRow(qPrintable(effect.id)) << effect.id;
    }
}

void tst_EffectProperties::defaultsAreNeutralOrChangeSomething()
{
    QFETCH(QString, id);

    const QByteArray parameters = WithFiles(id, id == QLatin1String("watermark-text") ? R"({"text": "W"})" : "{}");
    // Not the whole range, so that there is something for auto-levels to spread.
    const Picture picture = Noise({3, 8, false}, 60, 40).linear(0.5, 60.0).cast(VIPS_FORMAT_UCHAR);
    const Picture result = EffectCalls::Apply(id, parameters, picture);

    QCOMPARE(ValuesOf(result) == ValuesOf(picture), NeutralByDefault().contains(id));
}

void tst_EffectProperties::readsFromTopToBottom_data()
{
    keepsTheForm_data();
}

// From a file that can be read once, top to bottom, as the worker opens it; the result is that of a picture in memory.
void tst_EffectProperties::readsFromTopToBottom()
{
    QFETCH(int, number);
    const QString id = QLatin1String(Cases()[number].id);
    const QByteArray parameters = WithFiles(id, Cases()[number].parameters);
    const EffectSchema& effect = *FindEffect(id);
    const QJsonObject complete = CheckEffect(effect, parameters).values;

    const QString path = folder.filePath(QStringLiteral("tall.png"));
    if (!QFile::exists(path)) {
        Noise({3, 8, false}, 40, 2500).write_to_file(qPrintable(path), Picture::option()->set("compression", 1));
    }
    Picture sequential =
        Picture::new_from_file(qPrintable(path), Picture::option()->set("access", VIPS_ACCESS_SEQUENTIAL));
    if (effect.NeedsRandomAccess(complete)) {
        sequential = WithRandomAccess(sequential);
    }
    const Picture whole = Picture::new_from_file(qPrintable(path));

    QVERIFY(ValuesOf(ApplyEffect(effect, complete, sequential)) == ValuesOf(ApplyEffect(effect, complete, whole)));
}

void tst_EffectProperties::readsOnlyOnceWhereItSaysSo()
{
    const auto needsRandomAccess = [](const char* id, const QJsonObject& parameters) {
        return FindEffect(QLatin1String(id))->NeedsRandomAccess(parameters);
    };
    QVERIFY(needsRandomAccess("rotate", {{QStringLiteral("angle"), 90.0}}));
    QVERIFY(needsRandomAccess("rotate", {{QStringLiteral("angle"), 1.5}}));
    QVERIFY(!needsRandomAccess("rotate", {{QStringLiteral("angle"), -360.0}}));
    QVERIFY(!needsRandomAccess("flip", {{QStringLiteral("direction"), QStringLiteral("horizontal")}}));
    QVERIFY(needsRandomAccess("flip", {{QStringLiteral("direction"), QStringLiteral("both")}}));
    QVERIFY(!needsRandomAccess("blur", {{QStringLiteral("sigma"), 200.0}}));
    QVERIFY(needsRandomAccess("sharpen", {{QStringLiteral("sigma"), 12.0}}));
    QVERIFY(!needsRandomAccess("sharpen", {{QStringLiteral("sigma"), 1.0}}));
}

QTEST_GUILESS_MAIN(tst_EffectProperties)
#include "tst_effectproperties.moc"
