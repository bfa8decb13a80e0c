// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Text.h"
#include "WorkerBench.h"

#include <QTest>

#include <memory>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace BatchWorker;

/// What the libraries of this platform cannot write is refused in words, before anything is written.
class tst_MissingEncoders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void areToldBeforeAnythingIsWritten_data();
    void areToldBeforeAnythingIsWritten();

private:
    std::unique_ptr<WorkerBench> bench;
};

void tst_MissingEncoders::initTestCase()
{
    StartPictures();
}

void tst_MissingEncoders::init()
{
    bench = std::make_unique<WorkerBench>();
    WritePicture(Picture::black(40, 30), bench->Path(Text("in.png")));
}

void tst_MissingEncoders::areToldBeforeAnythingIsWritten_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QJsonObject>("options");
    QTest::addColumn<QString>("reason");
    QTest::newRow("HEIF") << Text("HEIF") << QJsonObject()
                          << Text("this installation has no encoder for HEIF, or not for this depth");
    QTest::newRow("TIFF with zstd") << Text("TIFF") << QJsonObject{{Text("compression"), Text("zstd")}}
                                    << Text("this installation has no encoder for TIFF with the compression zstd");
}

void tst_MissingEncoders::areToldBeforeAnythingIsWritten()
{
    QFETCH(QString, format);
    QFETCH(QJsonObject, options);
    QFETCH(QString, reason);
    const Report report = bench->Make(Text("in.png"), Text("out"), format, options);
    QCOMPARE(report.failure, PolicyKind::WriteToFormat);
    QCOMPARE(report.reason, reason);
    QCOMPARE(bench->Names(), QStringList(Text("in.png")));
    QCOMPARE(bench->Make(Text("in.png"), Text("out.tif"), Text("TIFF")).reason, QString());
}

QTEST_GUILESS_MAIN(tst_MissingEncoders)
#include "tst_missingencoders.moc"
