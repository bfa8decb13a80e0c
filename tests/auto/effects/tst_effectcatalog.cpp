// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectCalls.h"

#include "job/effects/EffectCatalog.h"
#include "server/reference/EffectReference.h"

#include <QtTest>

using namespace BatchJob;
using namespace BatchReference;

class tst_EffectCatalog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsEveryEffect();
    void numbersEffectsInTheirOrder();
    void describesEveryEffect();
    void refuses_data();
    void refuses();
    void refusesFiles();
    void acceptsWhatIsAtTheLimits_data();
    void acceptsWhatIsAtTheLimits();
    void pageAgreesWithTheTable();
    void pictureOfEveryEffectIsThere();
};

void tst_EffectCatalog::listsEveryEffect()
{
    QStringList ids;
    for (const EffectSchema& effect : Effects()) {
        ids.append(effect.id);
        QCOMPARE(FindEffect(effect.id), &effect);
    }
    QCOMPARE(ids.join(QLatin1Char(' ')),
             QStringLiteral("exposure brightness-contrast levels curve auto-levels white-balance saturation vibrance "
                            "hue grayscale sepia invert posterize blur sharpen denoise clarity vignette lut rotate "
                            "flip border watermark-text watermark-image set-metadata"));
    QCOMPARE(FindEffect(QStringLiteral("Exposure")), nullptr);
    QCOMPARE(FindEffect(QString()), nullptr);
}

// By this number the worker finds an effect's function.
void tst_EffectCatalog::numbersEffectsInTheirOrder()
{
    int number = 0;
    for (const EffectSchema& effect : Effects()) {
        QCOMPARE(int(effect.kind), number++);
    }
    QCOMPARE(FindEffect(QStringLiteral("exposure"))->kind, EffectKind::Exposure);
    QCOMPARE(FindEffect(QStringLiteral("watermark-image"))->kind, EffectKind::WatermarkImage);
}

void tst_EffectCatalog::describesEveryEffect()
{
    for (const EffectSchema& effect : Effects()) {
        QVERIFY2(!effect.description.isEmpty() && !effect.description.contains(QLatin1Char('\n')),
                 qPrintable(effect.id));
        QVERIFY2(!effect.definition.isEmpty(), qPrintable(effect.id));
        QJsonObject defaults;
        for (const ParameterSchema& parameter : effect.parameters) {
            QVERIFY2(!parameter.description.isEmpty(), qPrintable(effect.id));
            if (!parameter.defaultValue.isNull()) {
                defaults.insert(parameter.name, parameter.defaultValue);
            } else {
                defaults.insert(parameter.name, QStringLiteral("/text"));
            }
        }
        const CheckedParameters checked = CheckParameters(effect.parameters, defaults);
        QCOMPARE(checked.error, QString());
        QCOMPARE(checked.values, defaults);
    }
}

void tst_EffectCatalog::refuses_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QByteArray>("parameters");
    QTest::addColumn<QString>("error");

    const auto row = [](const char* id, const char* parameters, const char* error) {
        QTest::addRow("%s %s", id, parameters)
            << QString::fromLatin1(id) << QByteArray(parameters) << QString::fromUtf8(error);
    };
    row("exposure", R"({"stops": 11})", "\"stops\" is 11; it must be a number from -10 to 10 (stops)");
    row("exposure", R"({"stop": 1})", "\"stop\" is unknown; did you mean \"stops\"?");
    row("levels", R"({"black": 50, "white": 50})",
        "\"black\" is 50 and \"white\" is 50; black must be less than white");
    row("levels", R"({"gamma": 0})", "\"gamma\" is 0; it must be a number from 0.1 to 10");
    row("curve", R"({"points": [[0, 0]]})",
        "\"points\" is [[0,0]]; it must be a list of 2 to 256 points [x, y] with ascending x, numbers from 0 to 100 "
        "(percent)");
    row("curve", R"({"channel": "cyan"})", "\"channel\" is \"cyan\"; it must be one of all, red, green, blue");
    row("invert", R"({"amount": 1})", "\"amount\" is unknown; none is taken here");
    row("posterize", R"({"levels": 1})", "\"levels\" is 1; it must be a whole number from 2 to 256 (levels)");
    row("blur", R"({"sigma": 201})", "\"sigma\" is 201; it must be a number from 0 to 200 (pixels)");
    row("rotate", R"({"background": "red"})", "\"background\" is \"red\"; it must be a colour, #rrggbb or #rrggbbaa");
    row("border", R"({"top": 101, "unit": "percent"})",
        "\"top\" is 101 percent; it must be at most 100, or the unit pixels");
    row("watermark-text", "{}", "\"text\" is missing; it must be a text of 1 to 1000 characters");
    row("watermark-text", R"({"text": ""})", "\"text\" is \"\"; it must be a text of 1 to 1000 characters");
    row("watermark-text", R"({"text": "a", "size": 200})",
        "\"size\" is 200 percent; it must be at most 100, or the unit pixels");
    row("watermark-text", R"({"text": "a", "position": "middle"})",
        "\"position\" is \"middle\"; it must be one of bottom-right, bottom, bottom-left, right, centre, left, "
        "top-right, top, top-left");
    row("watermark-text", R"({"text": "{nam}", "tokens": true})",
        "text: \"{nam}\" at character 1 is not a token; did you mean \"{name}\"?");
    row("watermark-text", R"({"text": "a}", "tokens": true})",
        "text: \"}\" at character 2 closes no token; write }} for a brace");
    row("set-metadata", R"({"title": "{number:x}"})",
        "title: \"{number:x}\" at character 1 cannot be used: the number of digits must be a whole number from 1 to "
        "64");
    row("set-metadata", R"({"usageTerms": "{"})",
        "usageTerms: \"{\" at character 1 begins a token that has no end; write {{ for a brace");
    row("set-metadata", R"({"keywords": ["a"]})", "\"keywords\" is [\"a\"]; it must be a text of 0 to 2000 characters");
    row("set-metadata", R"({"author": "a"})",
        "\"author\" is unknown; known are creator, copyright, credit, title, keywords, usageTerms");
    row("watermark-image", "{}", "\"file\" is missing; it must be the absolute path of a file");
    row("watermark-image", R"({"file": "logo.png"})",
        "\"file\" is \"logo.png\"; it must be the absolute path of a file");
    row("lut", R"({"file": "/no/such.cube"})", "\"file\": /no/such.cube does not exist");
    row("watermark-image", R"({"file": "/no/such.png"})", "\"file\": /no/such.png does not exist");
}

void tst_EffectCatalog::refuses()
{
    QFETCH(QString, id);
    QFETCH(QByteArray, parameters);
    QFETCH(QString, error);

    QCOMPARE(EffectCalls::Refusal(id, parameters), error);
}

void tst_EffectCatalog::refusesFiles()
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("x"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("LUT_3D_SIZE 2\n0 0\n");
    file.close();

    QCOMPARE(EffectCalls::Refusal(QStringLiteral("lut"), EffectCalls::WithFile(path)),
             QStringLiteral("\"file\": %1, line 2: \"0 0\"; three numbers or a known keyword are needed").arg(path));
    QCOMPARE(EffectCalls::Refusal(QStringLiteral("watermark-image"), EffectCalls::WithFile(path)),
             QStringLiteral("\"file\": %1 is not a picture of a known format").arg(path));
    QCOMPARE(EffectCalls::Refusal(QStringLiteral("watermark-image"), EffectCalls::WithFile(folder.path())),
             QStringLiteral("\"file\": %1 is not a file").arg(folder.path()));
}

void tst_EffectCatalog::acceptsWhatIsAtTheLimits_data()
{
    QTest::addColumn<QString>("id");
    QTest::addColumn<QByteArray>("parameters");

    QTest::newRow("levels") << QStringLiteral("levels") << QByteArray(R"({"black": 99.9, "white": 100, "gamma": 0.1})");
    QTest::newRow("a brace without tokens") << QStringLiteral("watermark-text") << QByteArray(R"({"text": "{x}"})");
    QTest::newRow("tokens") << QStringLiteral("watermark-text")
                            << QByteArray(R"({"text": "{{{date:YYYY}}}", "tokens": true})");
    QTest::newRow("no metadata") << QStringLiteral("set-metadata") << QByteArray("{}");
    QTest::newRow("border") << QStringLiteral("border") << QByteArray(R"({"top": 100, "unit": "percent"})");
    QTest::newRow("border pixels") << QStringLiteral("border") << QByteArray(R"({"top": 10000})");
    QTest::newRow("text") << QStringLiteral("watermark-text")
                          << QByteArray(R"({"text": "a", "size": 10000, "unit": "pixels"})");
}

void tst_EffectCatalog::acceptsWhatIsAtTheLimits()
{
    QFETCH(QString, id);
    QFETCH(QByteArray, parameters);

    QCOMPARE(EffectCalls::Refusal(id, parameters), QString());
}

void tst_EffectCatalog::pageAgreesWithTheTable()
{
    QFile page(QStringLiteral(EFFECTS_PAGE));
    QVERIFY(page.open(QIODevice::ReadOnly));
    QVERIFY2(QString::fromUtf8(page.readAll()) == EffectReferencePage(),
             "scripts/make-effect-reference brings it up to date");
}

void tst_EffectCatalog::pictureOfEveryEffectIsThere()
{
    const QDir folder = QFileInfo(QStringLiteral(EFFECTS_PAGE)).dir();
    qint64 bytes = 0;
    for (const EffectSchema& effect : Effects()) {
        const QFileInfo picture(folder.filePath(QStringLiteral("effects/%1.jpg").arg(effect.id)));
        QVERIFY2(picture.exists() == effect.changesPixels, qPrintable(picture.filePath()));
        bytes += picture.size();
        QVERIFY2(!effect.example.isEmpty(), qPrintable(effect.id));
    }
    QVERIFY2(bytes < 400 * 1024, qPrintable(QString::number(bytes)));
}

QTEST_GUILESS_MAIN(tst_EffectCatalog)
#include "tst_effectcatalog.moc"
