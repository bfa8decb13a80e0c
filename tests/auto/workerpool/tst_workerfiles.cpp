// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Text.h"

#include "job/values/JobValues.h"
#include "server/protocol/WorkerFiles.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace BatchJob;
using namespace BatchProtocol;

/// Which files the workers of a job may open.
class tst_WorkerFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void singleFilesAreReadableAlone();
    void manySingleFilesAreReadableByTheirFolders();
    void foldersOfTheJobAreReadableAsAWhole();
    void linksLeadToWhatTheyName();
    void filesOfEffectsAreReadable();
    void backgroundsAreReadable_data();
    void backgroundsAreReadable();
    void onlyTextsNeedFonts();
    void resultsAreWritable();

private:
    QString Path(const QString& name) const { return folder->filePath(name); }

    std::unique_ptr<QTemporaryDir> folder;
};

void tst_WorkerFiles::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

void tst_WorkerFiles::singleFilesAreReadableAlone()
{
    QVector<JobFile> files;
    QStringList paths;
    for (int i = 0; i < 256; ++i) {
        paths.append(Path(QStringLiteral("%1.jpg").arg(i)));
        files.append({paths.last(), QString()});
    }
    WorkerRights rights = RightsToRead({}, files);
    rights.readable.sort();
    paths.sort();
    QCOMPARE(rights.readable, paths);
    QCOMPARE(rights.writable, QStringList());
}

void tst_WorkerFiles::manySingleFilesAreReadableByTheirFolders()
{
    QVector<JobFile> files;
    for (int i = 0; i < 257; ++i) {
        files.append({Path(QStringLiteral("%1/%2.jpg").arg(i % 2).arg(i)), QString()});
    }
    QCOMPARE(RightsToRead({}, files).readable, (QStringList{Path(Text("0")), Path(Text("1"))}));
}

void tst_WorkerFiles::foldersOfTheJobAreReadableAsAWhole()
{
    const QVector<JobFile> files{
        {Path(Text("trip/a.jpg")), Text("trip")},
        {Path(Text("trip/b.jpg")), Text("trip")},
        {Path(Text("trip/day/c.jpg")), Text("trip/day")},
        {Path(Text("trip 2/d.jpg")), Text("trip 2")},
        {Path(Text("trip-3/deep/e.jpg")), Text("trip-3/deep")},
    };
    QCOMPARE(RightsToRead({}, files).readable,
             (QStringList{Path(Text("trip 2")), Path(Text("trip-3/deep")), Path(Text("trip"))}));
}

/// A folder of the job may hold links to files elsewhere, which the user means to be read.
void tst_WorkerFiles::linksLeadToWhatTheyName()
{
#ifdef Q_OS_WIN
    QSKIP("Qt's links are files there");
#endif
    QVERIFY(QDir(folder->path()).mkpath(Text("trip")));
    QFile real(Path(Text("elsewhere.jpg")));
    QVERIFY(real.open(QIODevice::WriteOnly));
    QVERIFY(QFile::link(real.fileName(), Path(Text("trip/a.jpg"))));
    QVERIFY(QFile::link(Path(Text("nothing.jpg")), Path(Text("trip/b.jpg"))));
    const QVector<JobFile> files{{Path(Text("trip/a.jpg")), Text("trip")}, {Path(Text("trip/b.jpg")), Text("trip")}};
    QCOMPARE(RightsToRead({}, files).readable,
             (QStringList{Path(Text("trip")), QFileInfo(real.fileName()).canonicalFilePath()}));
}

void tst_WorkerFiles::filesOfEffectsAreReadable()
{
    JobSettings settings;
    settings.effects = {
        {FindEffect(Text("watermark-image")), {{Text("file"), Text("/marks/logo.png")}}},
        {FindEffect(Text("lut")), {{Text("file"), Text("/looks/film.cube")}}},
        {FindEffect(Text("exposure")), {}},
    };
    QCOMPARE(RightsToRead(settings, {}).readable, (QStringList{Text("/marks/logo.png"), Text("/looks/film.cube")}));
}

void tst_WorkerFiles::backgroundsAreReadable_data()
{
    QTest::addColumn<bool>("isFramed");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("isReadable");
    QTest::newRow("a picture") << true << int(BackgroundType::Image) << true;
    QTest::newRow("a colour") << true << int(BackgroundType::Colour) << false;
    QTest::newRow("no frame") << false << int(BackgroundType::Image) << false;
}

void tst_WorkerFiles::backgroundsAreReadable()
{
    QFETCH(const bool, isFramed);
    QFETCH(const int, type);
    QFETCH(const bool, isReadable);
    JobSettings settings;
    settings.framing.state = isFramed;
    settings.framing.backgroundType = type;
    settings.framing.backgroundImage = Text("/frames/wood.jpg");
    QCOMPARE(RightsToRead(settings, {}).readable.contains(Text("/frames/wood.jpg")), isReadable);
}

void tst_WorkerFiles::onlyTextsNeedFonts()
{
    JobSettings settings;
    settings.effects = {{FindEffect(Text("exposure")), {}}};
    QVERIFY(!RightsToRead(settings, {}).usesFonts);
    settings.effects.append(JobEffect{FindEffect(Text("watermark-text")), {}});
    QVERIFY(RightsToRead(settings, {}).usesFonts);
}

void tst_WorkerFiles::resultsAreWritable()
{
    JobSettings settings;
    settings.outputFolder = Path(Text("out"));
    const WorkerRights toRead = RightsToRead(settings, {{Path(Text("a.jpg")), QString()}});
    const WorkerRights rights = RightsToWrite(toRead, settings);
    QCOMPARE(rights.readable, QStringList(Path(Text("a.jpg"))));
    QCOMPARE(rights.writable, QStringList(Path(Text("out"))));
}

QTEST_GUILESS_MAIN(tst_WorkerFiles)
#include "tst_workerfiles.moc"
