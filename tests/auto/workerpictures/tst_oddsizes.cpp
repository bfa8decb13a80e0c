// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Text.h"
#include "WorkerBench.h"

#include "job/formats/FormatCatalog.h"

#include <QTest>

#include <algorithm>

using namespace BatchJob;
using namespace BatchProtocol;

namespace {

// A worker whose C library fills memory with `byte` when it hands it out.
std::unique_ptr<WorkerBench> BenchWithMemoryOf(const char* byte)
{
    qputenv("MALLOC_PERTURB_", byte);
    auto bench = std::make_unique<WorkerBench>();
    qunsetenv("MALLOC_PERTURB_");
    return bench;
}

QJsonObject WithOption(const FormatSchema& format, const char* option, const QJsonValue& value)
{
    const bool hasOption = std::any_of(format.options.begin(), format.options.end(),
                                       [option](const auto& schema) { return schema.name == QLatin1String(option); });
    return hasOption ? QJsonObject{{QLatin1String(option), value}} : QJsonObject();
}

} // namespace

/// Results do not depend on what was in memory before. Encoders and decoders work in blocks, and the last ones of
/// pictures of odd sizes are not full.
class tst_OddSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void writesAndReadsTheSame_data();
    void writesAndReadsTheSame();

private:
    std::unique_ptr<WorkerBench> one;
    std::unique_ptr<WorkerBench> other;
};

void tst_OddSizes::initTestCase()
{
    StartPictures();
    one = BenchWithMemoryOf("17");
    other = BenchWithMemoryOf("200");
}

void tst_OddSizes::writesAndReadsTheSame_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QJsonObject>("options");
    for (const FormatSchema& format : Formats()) {
        QTest::addRow("%s", qPrintable(format.name)) << format.name << QJsonObject();
        for (const char* chroma : {"4:2:0", "4:4:4"}) {
            const QJsonObject options = WithOption(format, "chromaSubsampling", Text(chroma));
            if (!options.isEmpty()) {
                QTest::addRow("%s, %s", qPrintable(format.name), chroma) << format.name << options;
            }
        }
        const QJsonObject lossless = WithOption(format, "lossless", true);
        if (!lossless.isEmpty()) {
            QTest::addRow("%s, lossless", qPrintable(format.name)) << format.name << lossless;
        }
    }
}

void tst_OddSizes::writesAndReadsTheSame()
{
    QFETCH(const QString, format);
    QFETCH(const QJsonObject, options);
    SKIP_WHERE(MissingEncoder(format));

    for (const PictureForm& form : AllForms()) {
        for (const QSize& size : {QSize(1, 1), QSize(17, 16), QSize(16, 15)}) {
            const auto bytes = [&](WorkerBench& bench) {
                WritePicture(Noise(form, size.width(), size.height()), bench.Path(Text("in.png")));
                const Report written = bench.Make(Text("in.png"), Text("out"), format, options);
                const Report read = bench.Make(Text("out"), Text("back.png"), Text("PNG"));
                return written.reason.isEmpty() && read.reason.isEmpty()
                           ? bench.Bytes(Text("out")) + bench.Bytes(Text("back.png"))
                           : QByteArray();
            };
            const QByteArray expected = bytes(*one);
            const QByteArray found = bytes(*other);
            const QByteArray what = QByteArray::number(size.width()) + " x " + QByteArray::number(size.height()) +
                                    ", channels " + QByteArray::number(form.Bands()) + ", bits " +
                                    QByteArray::number(form.bits);
            QVERIFY2(!expected.isEmpty(), what.constData());
            QVERIFY2(found == expected, what.constData());
        }
    }
}

QTEST_GUILESS_MAIN(tst_OddSizes)
#include "tst_oddsizes.moc"
