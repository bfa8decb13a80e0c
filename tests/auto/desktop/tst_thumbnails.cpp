// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureFiles.h"

#include "hosts/desktop/pictures/Thumbnails.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QUrl>
#include <QtTest>

using namespace BatchDesktop;

/// Thumbnails from the disk and from real workers.
class tst_Thumbnails : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void aWorkerMakesThem();
    void theyComeFromTheDiskLater();
    void theDesktopsAreUsed();
    void outdatedOnesOfTheDesktopAreNotUsed();
    void picturesOfOtherFoldersFollow();
    void aBrokenFileIsTriedOnce();
    void aVanishedFileIsNoThumbnail();
    void onlyWhatIsWantedIsMade();
    void theOldestArePruned();

private:
    QString Path(const QString& name) const { return folder->filePath(name); }
    ThumbnailFiles Files() const { return {Path(QStringLiteral("own")), Path(QStringLiteral("desktop"))}; }
    QString Picture(const QString& name, int width = 640, int height = 480) const;
    void WriteDesktopThumbnail(const QString& picture, qint64 modified, Qt::GlobalColor colour) const;

    std::unique_ptr<QTemporaryDir> folder;
};

void tst_Thumbnails::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

QString tst_Thumbnails::Picture(const QString& name, int width, int height) const
{
    PictureFiles::WriteJpeg(Path(name), 0, width, height);
    return Path(name);
}

void tst_Thumbnails::WriteDesktopThumbnail(const QString& picture, qint64 modified, Qt::GlobalColor colour) const
{
    const QByteArray uri = QUrl::fromLocalFile(picture).toEncoded();
    const QByteArray name = QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex();
    QImage image(128, 96, QImage::Format_RGB32);
    image.fill(colour);
    image.setText(QStringLiteral("Thumb::URI"), QString::fromLatin1(uri));
    image.setText(QStringLiteral("Thumb::MTime"), QString::number(modified));
    QVERIFY(QDir().mkpath(Path(QStringLiteral("desktop/normal"))));
    QVERIFY(image.save(Path(QStringLiteral("desktop/normal/%1.png").arg(QString::fromLatin1(name)))));
}

void tst_Thumbnails::aWorkerMakesThem()
{
    const QString large = Picture(QStringLiteral("in/large.jpg"));
    const QString small = Picture(QStringLiteral("in/small.jpg"), 40, 30);
    Thumbnails thumbnails(Files());
    thumbnails.Want({large, small});
    QTRY_VERIFY_WITH_TIMEOUT(!thumbnails.Of(large).isNull() && !thumbnails.Of(small).isNull(), 60'000);
    QCOMPARE(thumbnails.Of(large).size(), QSize(256, 192));
    QCOMPARE(thumbnails.Of(small).size(), QSize(40, 30));
    QCOMPARE(thumbnails.MadeCount(), 2);
}

void tst_Thumbnails::theyComeFromTheDiskLater()
{
    const QString picture = Picture(QStringLiteral("in/a.jpg"));
    {
        Thumbnails thumbnails(Files());
        thumbnails.Want({picture});
        QTRY_VERIFY_WITH_TIMEOUT(!thumbnails.Of(picture).isNull(), 60'000);
    }
    Thumbnails thumbnails(Files());
    thumbnails.Want({picture});
    QTRY_VERIFY_WITH_TIMEOUT(!thumbnails.Of(picture).isNull(), 60'000);
    QCOMPARE(thumbnails.MadeCount(), 0);
}

/// A worker reads the desktop's thumbnail, whose colour is none of the picture.
void tst_Thumbnails::theDesktopsAreUsed()
{
    const QString picture = Picture(QStringLiteral("in/a.jpg"));
    WriteDesktopThumbnail(picture, QFileInfo(picture).lastModified().toSecsSinceEpoch(), Qt::green);
    Thumbnails thumbnails(Files());
    thumbnails.Want({picture});
    QTRY_VERIFY_WITH_TIMEOUT(!thumbnails.Of(picture).isNull(), 60'000);
    QCOMPARE(thumbnails.Of(picture).size(), QSize(128, 96));
    QCOMPARE(thumbnails.Of(picture).toImage().pixelColor(64, 48), QColor(Qt::green));
}

void tst_Thumbnails::outdatedOnesOfTheDesktopAreNotUsed()
{
    const QString picture = Picture(QStringLiteral("in/a.jpg"));
    WriteDesktopThumbnail(picture, QFileInfo(picture).lastModified().toSecsSinceEpoch() - 1, Qt::green);
    Thumbnails thumbnails(Files());
    thumbnails.Want({picture});
    QTRY_VERIFY_WITH_TIMEOUT(!thumbnails.Of(picture).isNull(), 60'000);
    QCOMPARE(thumbnails.Of(picture).size(), QSize(256, 192));
}

/// A worker may read only what it was allowed to at first, so others are needed.
void tst_Thumbnails::picturesOfOtherFoldersFollow()
{
    const QString first = Picture(QStringLiteral("one/a.jpg"));
    const QString second = Picture(QStringLiteral("two/a.jpg"));
    Thumbnails thumbnails(Files());
    thumbnails.Want({first});
    QTRY_VERIFY_WITH_TIMEOUT(!thumbnails.Of(first).isNull(), 60'000);
    thumbnails.Want({second});
    QTRY_VERIFY_WITH_TIMEOUT(!thumbnails.Of(second).isNull(), 60'000);
    thumbnails.Forget(first);
    QVERIFY(thumbnails.Of(first).isNull());
    thumbnails.Want({first});
    QTRY_VERIFY_WITH_TIMEOUT(!thumbnails.Of(first).isNull(), 60'000);
}

void tst_Thumbnails::aBrokenFileIsTriedOnce()
{
    const QString broken = Path(QStringLiteral("in/broken.jpg"));
    const QString good = Picture(QStringLiteral("in/good.jpg"));
    QFile file(broken);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("\xFF\xD8\xFF\xE0 this is no picture");
    file.close();
    {
        Thumbnails thumbnails(Files());
        thumbnails.Want({broken, good});
        QTRY_VERIFY_WITH_TIMEOUT(thumbnails.IsBroken(broken) && !thumbnails.Of(good).isNull(), 60'000);
        QCOMPARE(thumbnails.MadeCount(), 2);
        thumbnails.Want({broken, good});
        QCOMPARE(thumbnails.MadeCount(), 2);
    }
    Thumbnails later(Files());
    later.Want({broken});
    QTRY_VERIFY_WITH_TIMEOUT(later.IsBroken(broken), 60'000);
    QCOMPARE(later.MadeCount(), 0);
}

void tst_Thumbnails::aVanishedFileIsNoThumbnail()
{
    Thumbnails thumbnails(Files());
    QSignalSpy changed(&thumbnails, &Thumbnails::Changed);
    thumbnails.Want({Path(QStringLiteral("in/none.jpg"))});
    QTRY_COMPARE(changed.size(), 1);
    QVERIFY(thumbnails.IsBroken(Path(QStringLiteral("in/none.jpg"))));
    QCOMPARE(thumbnails.MadeCount(), 0);
}

void tst_Thumbnails::onlyWhatIsWantedIsMade()
{
    QStringList many;
    for (int i = 0; i < 30; ++i) {
        many.append(Picture(QStringLiteral("in/%1.jpg").arg(i), 64, 48));
    }
    Thumbnails thumbnails(Files());
    thumbnails.Want(many);
    thumbnails.Want({many.last()});
    QTRY_VERIFY_WITH_TIMEOUT(!thumbnails.Of(many.last()).isNull(), 60'000);
    QVERIFY2(thumbnails.MadeCount() <= 4, qPrintable(QString::number(thumbnails.MadeCount())));
}

void tst_Thumbnails::theOldestArePruned()
{
    const ThumbnailFiles files = Files();
    for (int i = 0; i < 4; ++i) {
        QFile file(Path(QStringLiteral("own/%1").arg(i)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(1000, 'x'));
        QVERIFY(file.flush());
        QVERIFY(file.setFileTime(QDateTime::currentDateTime().addDays(i), QFileDevice::FileModificationTime));
    }
    files.Prune(2500);
    QCOMPARE(QDir(Path(QStringLiteral("own"))).entryList(QDir::Files),
             QStringList({QStringLiteral("2"), QStringLiteral("3")}));
}

QTEST_MAIN(tst_Thumbnails)
#include "tst_thumbnails.moc"
