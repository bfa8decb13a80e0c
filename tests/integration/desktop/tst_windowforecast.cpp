// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WindowStage.h"

#include "hosts/common/ByteText.h"

using namespace BatchDesktop;

/// What the window says before a run, compared with what the run then does.
class tst_WindowForecast : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void anEmptyWindowSaysWhatToDo();
    void bytesOfFewPicturesAreExact();
    void bytesOfManyPicturesAreWithinTheError();
    void takenNamesAreCounted();
    void replacedFilesAreCounted();
    void changesAreFollowed();

private:
    bool WaitForSum();
    qint64 BytesOfResults() const;

    std::unique_ptr<WindowStage> stage;
};

void tst_WindowForecast::init()
{
    stage = std::make_unique<WindowStage>();
    QVERIFY(stage->Open());
}

void tst_WindowForecast::cleanup()
{
    stage.reset();
}

bool tst_WindowForecast::WaitForSum()
{
    const auto isKnown = [this] {
        const ForecastLink& forecasts = stage->Window().Forecasts();
        return forecasts.Now().areNamesKnown && forecasts.Now().sum && !forecasts.Estimate().IsWorking();
    };
    return QTest::qWaitFor(isKnown, WindowStage::patience);
}

qint64 tst_WindowForecast::BytesOfResults() const
{
    qint64 bytes = 0;
    for (const QFileInfo& file : QDir(stage->Path(QStringLiteral("out"))).entryInfoList(QDir::Files)) {
        bytes += file.size();
    }
    return bytes;
}

void tst_WindowForecast::anEmptyWindowSaysWhatToDo()
{
    QCOMPARE(stage->Text(), QStringLiteral("Add pictures to begin."));
}

void tst_WindowForecast::bytesOfFewPicturesAreExact()
{
    stage->MakePhotos(5);
    QVERIFY(stage->Add(5));
    stage->SetOutput();
    QVERIFY(WaitForSum());
    const Forecast forecast = stage->Window().Forecasts().Now();
    QCOMPARE(forecast.sum->Percent(), 0);
    QVERIFY(forecast.freeBytes > 0);
    QVERIFY2(stage->Text().startsWith(QStringLiteral("5 pictures, 5 new. The results take %1; ")
                                          .arg(BatchHost::ByteText(qint64(forecast.sum->bytes)))),
             qPrintable(stage->Text()));
    QVERIFY(stage->Run());
    QCOMPARE(qint64(forecast.sum->bytes), BytesOfResults());
}

void tst_WindowForecast::bytesOfManyPicturesAreWithinTheError()
{
    for (int i = 1; i <= 60; ++i) {
        PictureFiles::WriteJpeg(stage->Photo(i), i, 40 + 3 * i, 40 + i);
    }
    QVERIFY(stage->Add(60));
    stage->SetOutput();
    QVERIFY(WaitForSum());
    const ByteSum sum = *stage->Window().Forecasts().Now().sum;
    QVERIFY(sum.error > 0);
    QVERIFY2(stage->Text().contains(QStringLiteral("(± %1 %)").arg(sum.Percent())), qPrintable(stage->Text()));
    QVERIFY(stage->Run());
    QVERIFY2(std::abs(sum.bytes - double(BytesOfResults())) <= sum.error,
             qPrintable(QStringLiteral("%1 ± %2, not %3").arg(sum.bytes).arg(sum.error).arg(BytesOfResults())));
}

void tst_WindowForecast::takenNamesAreCounted()
{
    stage->MakePhotos(5);
    PictureFiles::WriteJpeg(stage->Result(2), 9);
    PictureFiles::WriteJpeg(stage->Result(4), 9);
    QVERIFY(stage->Add(5));
    stage->SetOutput(true);
    QVERIFY(WaitForSum());
    QVERIFY2(stage->Text().startsWith(QStringLiteral("5 pictures, 3 new. 2 names are taken. The results take ")),
             qPrintable(stage->Text()));
}

void tst_WindowForecast::replacedFilesAreCounted()
{
    stage->MakePhotos(5);
    PictureFiles::WriteJpeg(stage->Result(2), 9);
    QVERIFY(stage->Add(5));
    stage->SetOutput();
    stage->Change([](Settings& settings) {
        settings.policies[std::size_t(BatchJob::PolicyKind::Naming)] = ZTBatchManager::NamingOverwrite;
    });
    QVERIFY(WaitForSum());
    QVERIFY2(stage->Text().startsWith(QStringLiteral("5 pictures, 4 new. 1 file that exists will be replaced. ")),
             qPrintable(stage->Text()));
}

void tst_WindowForecast::changesAreFollowed()
{
    stage->MakePhotos(5);
    QVERIFY(stage->Add(5));
    stage->SetOutput();
    QVERIFY(WaitForSum());
    const double before = stage->Window().Forecasts().Now().sum->bytes;
    stage->Change([](Settings& settings) {
        settings.format = QStringLiteral("TIFF");
        settings.formatOptions.clear();
    });
    QVERIFY(!stage->Window().Forecasts().Now().sum);
    QVERIFY(WaitForSum());
    QVERIFY(stage->Window().Forecasts().Now().sum->bytes > 2 * before);
}

QTEST_MAIN(tst_WindowForecast)
#include "tst_windowforecast.moc"
