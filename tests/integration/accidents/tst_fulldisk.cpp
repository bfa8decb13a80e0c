// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "AccidentStage.h"
#include "PictureFiles.h"

#include <QDir>
#include <QFileInfo>
#include <QStorageInfo>
#include <QtTest>

/// A disk without room. BATCHCORE_SMALL_DISK names an empty folder with a file system of its own, of some megabytes.
class tst_FullDisk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void resultsAreWholeOrAbsent_data();
    void resultsAreWholeOrAbsent();
    void noRoomForAnything();

private:
    QString Disk() const { return QDir::fromNativeSeparators(qEnvironmentVariable("BATCHCORE_SMALL_DISK")); }

    /// Leaves `bytes` free.
    void Fill(qint64 bytes) const;

    QStringList Left() const
    {
        return QDir(Disk()).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                                      QDir::Name);
    }

    std::unique_ptr<AccidentStage> stage;
};

namespace {

/// By any of the systems.
bool SaysThatTheDiskIsFull(const QByteArray& text)
{
    return text.contains("o space left on device") || text.contains("ot enough space") || text.contains("isk full");
}

} // namespace

void tst_FullDisk::init()
{
    if (Disk().isEmpty()) {
        QSKIP("BATCHCORE_SMALL_DISK names no small file system.");
    }
    constexpr qint64 largest = 64 << 20;
    QVERIFY2(QStorageInfo(Disk()).bytesTotal() < largest, qPrintable(Disk()));
    QCOMPARE(Left(), QStringList());
    stage = std::make_unique<AccidentStage>();
}

void tst_FullDisk::cleanup()
{
    for (const QString& name : Disk().isEmpty() ? QStringList() : Left()) {
        QFile::remove(QDir(Disk()).filePath(name));
    }
}

void tst_FullDisk::Fill(qint64 bytes) const
{
    QFile filler(QDir(Disk()).filePath(QStringLiteral("filler")));
    QVERIFY(filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    const QByteArray block(4096, 'x');
    while (filler.write(block) == block.size()) {
    }
    QVERIFY(bytes == 0 || filler.resize(filler.size() - bytes));
}

void tst_FullDisk::resultsAreWholeOrAbsent_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QString>("extension");
    for (const char* format : {"png", "jpeg", "tiff", "webp", "avif", "jxl"}) {
        const QString name = QLatin1String(format);
        QTest::newRow(format) << name
                              << (name == QLatin1String("jpeg")   ? QStringLiteral("jpg")
                                  : name == QLatin1String("tiff") ? QStringLiteral("tif")
                                                                  : name);
    }
}

/// Small pictures before and after a large one.
void tst_FullDisk::resultsAreWholeOrAbsent()
{
    QFETCH(const QString, format);
    QFETCH(const QString, extension);

    Fill(100'000);
    PictureFiles::WriteJpeg(stage->Path(QStringLiteral("in/1.jpg")), 1);
    PictureFiles::WriteNoise(stage->Path(QStringLiteral("in/2.jpg")), 1200, 900);
    PictureFiles::WriteJpeg(stage->Path(QStringLiteral("in/3.jpg")), 3);
    const int exitCode = stage->Run({QStringLiteral("run"), stage->Path(QStringLiteral("in")), QStringLiteral("-o"),
                                     Disk(), QStringLiteral("--format"), format, QStringLiteral("--workers=1")});
    QCOMPARE(exitCode, 1);
    const QString large = stage->Path(QStringLiteral("in/2.jpg"));
    QVERIFY2(stage->Err().contains(large.toUtf8()) && SaysThatTheDiskIsFull(stage->Err()), stage->Err().constData());
    const QStringList expected{QStringLiteral("1.") + extension, QStringLiteral("3.") + extension,
                               QStringLiteral("filler")};
    QCOMPARE(Left(), expected);
}

/// Not even for the journal.
void tst_FullDisk::noRoomForAnything()
{
    Fill(0);
    PictureFiles::WriteJpeg(stage->Path(QStringLiteral("in/1.jpg")), 1);
    const int exitCode = stage->Run({QStringLiteral("run"), stage->Path(QStringLiteral("in")), QStringLiteral("-o"),
                                     Disk(), QStringLiteral("--format=png"), QStringLiteral("--workers=1")});
    QCOMPARE(exitCode, 1);
    QVERIFY2(SaysThatTheDiskIsFull(stage->Err()), stage->Err().constData());
    QVERIFY2(stage->Err().contains("cannot be resumed"), stage->Err().constData());
    QCOMPARE(Left(), QStringList{QStringLiteral("filler")});
}

QTEST_GUILESS_MAIN(tst_FullDisk)
#include "tst_fulldisk.moc"
