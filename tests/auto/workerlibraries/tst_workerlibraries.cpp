// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "WorkerProcess.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QSet>
#include <QTemporaryDir>
#include <QtTest>

using namespace BatchJob;
using namespace BatchProtocol;

/// Which libraries a worker has in its memory.
class tst_WorkerLibraries : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void decodersThatAreNotOnTheListAreNotLoaded_data();
    void decodersThatAreNotOnTheListAreNotLoaded();
    void decodersOfTheImagingLibrarysModulesWork();
};

namespace {

QStringList LibrariesOf(qint64 process)
{
    QFile maps(QStringLiteral("/proc/%1/maps").arg(process));
    if (!maps.open(QIODevice::ReadOnly)) {
        return {};
    }
    QSet<QString> paths;
    for (const QByteArray& line : maps.readAll().split('\n')) {
        const int start = line.indexOf('/');
        if (start >= 0 && line.contains(".so")) {
            paths.insert(QString::fromLocal8Bit(line.mid(start)));
        }
    }
    return paths.values();
}

} // namespace

void tst_WorkerLibraries::decodersThatAreNotOnTheListAreNotLoaded_data()
{
    QTest::addColumn<QString>("name");
    for (const char* name :
         {"libpoppler", "librsvg", "libopenslide", "libMagick", "libcfitsio", "libmatio", "libOpenEXR", "libhdf5",
          "libcurl", "vips-jxl", "vips-magick", "vips-openslide", "vips-poppler"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void tst_WorkerLibraries::decodersThatAreNotOnTheListAreNotLoaded()
{
    QFETCH(QString, name);
    WorkerProcess worker;
    QVERIFY2(worker.IsReady(), worker.ErrorOutput());
    const QStringList libraries = LibrariesOf(worker.ProcessId());
    QVERIFY(libraries.size() > 20);
    for (const QString& path : libraries) {
        const bool isStandIn = path.contains(QStringLiteral("/stand-ins/"));
        QVERIFY2(isStandIn || !QFileInfo(path).fileName().startsWith(name), qPrintable(path));
    }
    QCOMPARE(worker.ExitCode(), 0);
}

void tst_WorkerLibraries::decodersOfTheImagingLibrarysModulesWork()
{
    const QTemporaryDir folder;
    const QString source = folder.filePath(QStringLiteral("source.png"));
    const QString between = folder.filePath(QStringLiteral("between.heic"));
    const QString last = folder.filePath(QStringLiteral("last.png"));
    QImage picture(64, 48, QImage::Format_RGB32);
    picture.fill(Qt::darkGreen);
    QVERIFY(picture.save(source));
    WorkerProcess worker;
    worker.Send(JobOf(QStringLiteral("HEIF")));
    const Report written = worker.Do(PictureTask{1, source, between, {}, QStringLiteral("HEIF"), false});
    QVERIFY2(written.failure == PolicyKind::None, qPrintable(written.reason));
    worker.Send(JobOf(QStringLiteral("PNG")));
    const Report read = worker.Do(PictureTask{2, between, last, {}, QStringLiteral("PNG"), false});
    QVERIFY2(read.failure == PolicyKind::None, qPrintable(read.reason));
    QCOMPARE(QImage(last).size(), picture.size());
}

QTEST_GUILESS_MAIN(tst_WorkerLibraries)
#include "tst_workerlibraries.moc"
