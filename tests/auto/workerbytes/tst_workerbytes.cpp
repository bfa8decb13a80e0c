// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Text.h"
#include "WorkerBench.h"

#include "job/formats/FormatCatalog.h"

#include <QFileInfo>
#include <QTest>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace BatchWorker;

/// Results that have to fit into a number of bytes.
class tst_WorkerBytes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void bestQualityThatFits_data();
    void bestQualityThatFits();
    void filesThatFitAreAsWithoutALimit();
    void leastQualityIsKept();
    void shrinksWhereAllowed_data();
    void shrinksWhereAllowed();
    void tooManyMetadata();
    void sameBytesEachTime();
    void transparencyAndTurns();
    void formatsWithoutQualityHaveNoLimit();

private:
    static QString NameIn(const QString& format)
    {
        return QStringLiteral("out.") + FindFormat(format)->extensions.first();
    }
    qint64 Size(const QString& format) const { return QFileInfo(bench->Path(NameIn(format))).size(); }
    Report Make(const QString& format, const QJsonObject& options)
    {
        return bench->Make(Text("in.png"), NameIn(format), format, options);
    }

    std::unique_ptr<WorkerBench> bench;
};

void tst_WorkerBytes::initTestCase()
{
    StartPictures();
}

void tst_WorkerBytes::init()
{
    bench = std::make_unique<WorkerBench>();
    WritePicture(Noise({3, 8, false}, 200, 150).gaussblur(1.0), bench->Path(Text("in.png")));
}

void tst_WorkerBytes::bestQualityThatFits_data()
{
    QTest::addColumn<QString>("format");
    for (const char* format : {"JPEG", "WebP", "AVIF", "HEIF", "JPEG XL", "JPEG 2000"}) {
        QTest::newRow(format) << Text(format);
    }
}

void tst_WorkerBytes::bestQualityThatFits()
{
    QFETCH(QString, format);
    SKIP_WHERE(MissingEncoder(format));
    const QString quality = Text("quality");
    constexpr int wanted = 60;
    QCOMPARE(Make(format, {{quality, wanted}}).reason, QString());
    const qint64 limit = Size(format);

    const Report made = Make(format, {{quality, 95}, {Text("maxBytes"), limit}, {Text("minQuality"), 10}});
    QCOMPARE(made.reason, QString());
    QVERIFY(Size(format) <= limit);
    QCOMPARE(made.facts.outputSize, QSize(200, 150));
    QVERIFY2(made.facts.quality >= wanted, qPrintable(QString::number(made.facts.quality)));
    const qint64 bytes = Size(format);
    // It is the file of that quality, and the next quality does not fit.
    QCOMPARE(Make(format, {{quality, made.facts.quality}}).reason, QString());
    QCOMPARE(Size(format), bytes);
    QCOMPARE(Make(format, {{quality, made.facts.quality + 1}}).reason, QString());
    QVERIFY(Size(format) > limit);
}

void tst_WorkerBytes::filesThatFitAreAsWithoutALimit()
{
    QCOMPARE(Make(Text("JPEG"), {}).reason, QString());
    const QByteArray unlimited = bench->Bytes(NameIn(Text("JPEG")));
    const Report made = Make(Text("JPEG"), {{Text("maxBytes"), unlimited.size()}});
    QCOMPARE(made.reason, QString());
    QCOMPARE(bench->Bytes(NameIn(Text("JPEG"))), unlimited);
    QCOMPARE(made.facts.quality, 85);
}

void tst_WorkerBytes::leastQualityIsKept()
{
    QCOMPARE(Make(Text("JPEG"), {{Text("quality"), 40}}).reason, QString());
    const qint64 bytes = Size(Text("JPEG"));
    QVERIFY(QFile::remove(bench->Path(NameIn(Text("JPEG")))));
    const Report refused = Make(Text("JPEG"), {{Text("maxBytes"), bytes - 1}, {Text("minQuality"), 40}});
    QCOMPARE(refused.failure, PolicyKind::WriteToFormat);
    QCOMPARE(refused.reason,
             QStringLiteral("the file would have %1 bytes with quality 40 and 200 x 150 pixels; at most "
                            "%2 bytes are wanted")
                 .arg(bytes)
                 .arg(bytes - 1));
    QCOMPARE(bench->Names(), QStringList{Text("in.png")});
    QCOMPARE(Make(Text("JPEG"), {{Text("maxBytes"), bytes}, {Text("minQuality"), 40}}).facts.quality, 40);
}

void tst_WorkerBytes::shrinksWhereAllowed_data()
{
    bestQualityThatFits_data();
}

void tst_WorkerBytes::shrinksWhereAllowed()
{
    QFETCH(QString, format);
    SKIP_WHERE(MissingEncoder(format));
    QCOMPARE(Make(format, {{Text("quality"), 50}}).reason, QString());
    const qint64 limit = Size(format) / 3;
    const Report made =
        Make(format,
             {{Text("quality"), 80}, {Text("maxBytes"), limit}, {Text("minQuality"), 50}, {Text("mayShrink"), true}});
    QCOMPARE(made.reason, QString());
    QVERIFY(Size(format) <= limit);
    QCOMPARE(made.facts.quality, 50);
    const QSize size = made.facts.outputSize;
    QVERIFY2(size.width() < 200 && size.width() > 60, qPrintable(QString::number(size.width())));
    QVERIFY(qAbs(size.width() * 3 - size.height() * 4) <= 4);
    if (format != Text("AVIF") && format != Text("HEIF")) {
        const Picture result = ReadPicture(bench->Path(NameIn(format)));
        QCOMPARE(QSize(result.width(), result.height()), size);
    }
}

// No pixels are left that could be given up.
void tst_WorkerBytes::tooManyMetadata()
{
    const Report refused = Make(Text("JPEG"), {{Text("maxBytes"), 100}, {Text("mayShrink"), true}});
    QCOMPARE(refused.failure, PolicyKind::WriteToFormat);
    QVERIFY2(refused.reason.contains(Text("at most 100 bytes are wanted")), qPrintable(refused.reason));
    QCOMPARE(bench->Names(), QStringList{Text("in.png")});
}

void tst_WorkerBytes::sameBytesEachTime()
{
    const QJsonObject options{{Text("maxBytes"), 9000}, {Text("minQuality"), 1}};
    QCOMPARE(Make(Text("WebP"), options).reason, QString());
    const QByteArray first = bench->Bytes(NameIn(Text("WebP")));
    QCOMPARE(Make(Text("WebP"), options).reason, QString());
    QCOMPARE(bench->Bytes(NameIn(Text("WebP"))), first);
}

void tst_WorkerBytes::transparencyAndTurns()
{
    WritePicture(Noise({3, 8, true}, 120, 90), bench->Path(Text("in.png")));
    const Report made =
        Make(Text("WebP"), {{Text("maxBytes"), 6000}, {Text("minQuality"), 1}, {Text("mayShrink"), true}});
    QCOMPARE(made.reason, QString());
    QVERIFY(Size(Text("WebP")) <= 6000);
    QVERIFY(ReadPicture(bench->Path(NameIn(Text("WebP")))).has_alpha());
}

void tst_WorkerBytes::formatsWithoutQualityHaveNoLimit()
{
    for (const FormatSchema& format : Formats()) {
        const auto has = [&format](const char* name) {
            return std::any_of(format.options.begin(), format.options.end(),
                               [name](const ParameterSchema& option) { return option.name == QLatin1String(name); });
        };
        const bool isAlwaysLossless =
            format.name == Text("PNG") || format.name == Text("TIFF") || format.name == Text("GIF");
        QCOMPARE(has("maxBytes"), !isAlwaysLossless);
        QCOMPARE(has("maxBytes"), has("minQuality") && has("mayShrink"));
    }
}

QTEST_GUILESS_MAIN(tst_WorkerBytes)
#include "tst_workerbytes.moc"
