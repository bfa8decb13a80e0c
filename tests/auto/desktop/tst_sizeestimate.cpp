// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureFiles.h"
#include "PrivateTempDir.h"
#include "ProgramFiles.h"

#include "hosts/desktop/estimate/SizeEstimate.h"

#include "ZTBatchDocument.h"

#include <QSignalSpy>
#include <QtTest>

using namespace BatchDesktop;

/// Estimates with the real worker, whatever happens meanwhile.
class tst_SizeEstimate : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void theNewestCounts();
    void nothingIsMadeWhileHeld();
    void brokenPicturesHaveNoBytes();
    void onlyBrokenPicturesTellNothing();
    void refusedSettingsTellNothing();
    void aMissingWorkerTellsNothing();
    void stoppingForgets();

private:
    QStringList Photos(int count) const;
    Settings ToFormat(const char* format) const;
    bool WaitUntilDone() const;

    std::unique_ptr<PrivateTempDir> folder;
    std::unique_ptr<SizeEstimate> estimate;
};

namespace {

constexpr int patience = 60'000; // ms

} // namespace

void tst_SizeEstimate::init()
{
    folder = std::make_unique<PrivateTempDir>();
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder->FilePath(QString())));
    estimate = std::make_unique<SizeEstimate>();
}

void tst_SizeEstimate::cleanup()
{
    estimate.reset();
    QCOMPARE(folder->Entries().filter(QStringLiteral("velkora-")), QStringList());
    folder.reset();
}

QStringList tst_SizeEstimate::Photos(int count) const
{
    QStringList files;
    for (int i = 0; i < count; ++i) {
        files.append(folder->FilePath(QStringLiteral("%1.jpg").arg(i)));
        PictureFiles::WriteJpeg(files.last(), i);
    }
    return files;
}

Settings tst_SizeEstimate::ToFormat(const char* format) const
{
    Settings settings = Settings::Of(ZTBatchDocument());
    settings.format = QString::fromLatin1(format);
    settings.outputFolder = folder->FilePath(QStringLiteral("a/folder/to come"));
    return settings;
}

bool tst_SizeEstimate::WaitUntilDone() const
{
    return QTest::qWaitFor([this] { return !estimate->IsWorking(); }, patience);
}

void tst_SizeEstimate::theNewestCounts()
{
    const QStringList files = Photos(3);
    estimate->Ask(files, ToFormat("JPEG"));
    QVERIFY(WaitUntilDone());
    const double ofJpeg = estimate->Sum()->bytes;
    estimate->Ask(files.mid(0, 1), ToFormat("JPEG"));
    QVERIFY(!estimate->Sum());
    QSignalSpy changed(estimate.get(), &SizeEstimate::Changed);
    QVERIFY(changed.wait(patience)); // Its samples are chosen, and one may be on its way.
    estimate->Ask(files, ToFormat("TIFF"));
    QVERIFY(WaitUntilDone());
    QVERIFY(estimate->Sum()->bytes > 2 * ofJpeg);
    QVERIFY(estimate->FreeBytes() > 0);
}

void tst_SizeEstimate::nothingIsMadeWhileHeld()
{
    estimate->Ask(Photos(3), ToFormat("JPEG"));
    QSignalSpy changed(estimate.get(), &SizeEstimate::Changed);
    QVERIFY(changed.wait(patience));
    estimate->Hold(true);
    QVERIFY(!estimate->Sum());
    QVERIFY(estimate->IsWorking());
    estimate->Hold(false);
    estimate->Hold(true);
    estimate->Hold(false);
    QVERIFY(WaitUntilDone());
    QVERIFY(estimate->Sum());
}

void tst_SizeEstimate::brokenPicturesHaveNoBytes()
{
    QStringList files = Photos(2);
    estimate->Ask(files, ToFormat("JPEG"));
    QVERIFY(WaitUntilDone());
    const double ofTwo = estimate->Sum()->bytes;
    files.append(folder->FilePath(QStringLiteral("broken.jpg")));
    PictureFiles::WriteTruncated(files.last());
    files.append(folder->FilePath(QStringLiteral("missing.jpg")));
    estimate->Ask(files, ToFormat("JPEG"));
    QVERIFY(WaitUntilDone());
    QCOMPARE(estimate->Sum()->bytes, ofTwo);
}

void tst_SizeEstimate::onlyBrokenPicturesTellNothing()
{
    estimate->Ask({folder->FilePath(QStringLiteral("missing.jpg"))}, ToFormat("JPEG"));
    QVERIFY(WaitUntilDone());
    QVERIFY(!estimate->Sum());
}

void tst_SizeEstimate::refusedSettingsTellNothing()
{
    Settings settings = ToFormat("JPEG");
    settings.effects.append({QStringLiteral("unheard-of"), "{}", true});
    estimate->Ask(Photos(2), settings);
    QVERIFY(WaitUntilDone());
    QVERIFY(!estimate->Sum());
}

void tst_SizeEstimate::aMissingWorkerTellsNothing()
{
    estimate = std::make_unique<SizeEstimate>(BuiltProgram(QStringLiteral("no-such-worker")),
                                              BatchProtocol::ServerLimits::FromEnvironment());
    estimate->Ask(Photos(2), ToFormat("JPEG"));
    QVERIFY(WaitUntilDone());
    QVERIFY(!estimate->Sum());
}

void tst_SizeEstimate::stoppingForgets()
{
    estimate->Ask(Photos(3), ToFormat("JPEG"));
    QVERIFY(WaitUntilDone());
    QVERIFY(estimate->Sum());
    estimate->Stop();
    QVERIFY(!estimate->Sum());
    QVERIFY(!estimate->IsWorking());
}

QTEST_GUILESS_MAIN(tst_SizeEstimate)
#include "tst_sizeestimate.moc"
