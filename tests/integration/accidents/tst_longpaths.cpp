// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "AccidentStage.h"
#include "FolderContent.h"
#include "PictureFiles.h"

#include <QImage>
#include <QtTest>

/// Results whose paths are longer than Windows takes without being asked: 260 characters.
class tst_LongPaths : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void resultsAreWritten();
    void resultsAreReplaced();
    void resultsAreKeptByAnUpdate();
    void interruptedRunsAreResumed();

private:
    QStringList RunOf(const QString& input, const QStringList& options = {}) const
    {
        return QStringList{QStringLiteral("run"), stage->Path(input), QStringLiteral("--output"), Output()} + options;
    }
    QString Output() const { return stage->Path(folder); }

    std::unique_ptr<AccidentStage> stage;
    QString folder; ///< of the results, within the stage
};

namespace {

QString LongName(char letter)
{
    return QString(60, QLatin1Char(letter));
}

QString Format(const char* format)
{
    return QStringLiteral("--format=") + QLatin1String(format);
}

} // namespace

void tst_LongPaths::init()
{
    stage = std::make_unique<AccidentStage>();
    folder = QStringLiteral("out");
    for (const char letter : QByteArray("abcde")) {
        folder += QLatin1Char('/') + LongName(letter);
    }
}

void tst_LongPaths::resultsAreWritten()
{
    const QString below = QStringLiteral("in/") + LongName('x') + QLatin1Char('/');
    PictureFiles::WriteJpeg(stage->Path(below + QStringLiteral("1.jpg")), 1);
    PictureFiles::WriteJpeg(stage->Path(below + QStringLiteral("2.jpg")), 2);
    for (const char* format : {"png", "tiff", "jpeg", "webp"}) {
        const int exitCode =
            stage->Run(RunOf(QStringLiteral("in"), {QStringLiteral("--structure=input"), Format(format)}));
        QVERIFY2(exitCode == 0, stage->Err().constData());
    }
    const Files results = FilesBelow(stage->Path(QStringLiteral("out")));
    const QString path = folder.mid(4) + QLatin1Char('/') + below;
    QVERIFY(stage->Path(path).size() > 360);
    QStringList expected;
    for (const char* name : {"1.jpg", "1.png", "1.tif", "1.webp", "2.jpg", "2.png", "2.tif", "2.webp"}) {
        expected.append(path + QLatin1String(name));
    }
    QCOMPARE(QStringList(results.keys()), expected);
    for (const QString& name : {QStringLiteral("1.jpg"), QStringLiteral("2.png")}) {
        QCOMPARE(QImage::fromData(results.value(path + name)).size(), QSize(64, 48));
    }
}

void tst_LongPaths::resultsAreReplaced()
{
    PictureFiles::WriteJpeg(stage->Path(QStringLiteral("in/1.jpg")));
    const QStringList arguments =
        RunOf(QStringLiteral("in"), {Format("png"), QStringLiteral("--on-name-exists=overwrite")});
    QVERIFY2(stage->Run(arguments) == 0, stage->Err().constData());
    const QByteArray before = stage->Content(folder + QStringLiteral("/1.png"));
    QVERIFY(!before.isEmpty());
    QVERIFY2(stage->Run(arguments + QStringList{QStringLiteral("--effect=invert")}) == 0, stage->Err().constData());
    QCOMPARE(stage->Names(folder), QStringList{QStringLiteral("1.png")});
    QVERIFY(stage->Content(folder + QStringLiteral("/1.png")) != before);
}

void tst_LongPaths::resultsAreKeptByAnUpdate()
{
    PictureFiles::WriteJpeg(stage->Path(QStringLiteral("in/1.jpg")));
    const QStringList arguments = RunOf(QStringLiteral("in"), {Format("png"), QStringLiteral("--update")});
    QVERIFY2(stage->Run(arguments) == 0, stage->Err().constData());
    QVERIFY2(stage->Run(arguments) == 0, stage->Err().constData());
    QVERIFY2(stage->Out().contains("\"unchanged\":1"), stage->Out().constData());
}

/// With the journal, the temporary file of the killed worker, and the folders that a run makes.
void tst_LongPaths::interruptedRunsAreResumed()
{
    stage->UseStandIn();
    stage->Write(QStringLiteral("in/1.jpg"), "first");
    stage->Write(QStringLiteral("in/2.jpg"), "hang");
    stage->Start(RunOf(QStringLiteral("in"), {Format("jpeg"), QStringLiteral("--workers=1")}));
    const auto temporaries = [&] { return stage->Names(folder).filter(QStringLiteral(".tmp")).size(); };
    const auto isHanging = [&] { return stage->Names(folder).contains(QStringLiteral("1.jpg")) && temporaries() == 1; };
    QTRY_VERIFY_WITH_TIMEOUT(isHanging(), 60'000);
    QVERIFY(stage->Kill());
    QCOMPARE(stage->Names(folder).filter(QRegularExpression(QStringLiteral("\\.journal\\z"))).size(), 1);
    stage->Write(QStringLiteral("in/2.jpg"), "second");
    stage->Write(folder + QStringLiteral("/.velkora-0123456789abcdef.tmp"), "half");
    const int exitCode =
        stage->Run({QStringLiteral("run"), QStringLiteral("--resume"), QStringLiteral("-o"), Output()});
    QVERIFY2(exitCode == 0, stage->Err().constData());
    QVERIFY2(stage->Out().contains(" unfinished files of an earlier run"), stage->Out().constData());
    QCOMPARE(stage->Names(folder), (QStringList{QStringLiteral("1.jpg"), QStringLiteral("2.jpg")}));
    QCOMPARE(stage->Content(folder + QStringLiteral("/2.jpg")), QByteArray("second"));
}

QTEST_GUILESS_MAIN(tst_LongPaths)
#include "tst_longpaths.moc"
