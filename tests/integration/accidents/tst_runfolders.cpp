// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "AccidentStage.h"
#include "PictureFiles.h"

#include <QtTest>

/// The temporary files of a run and of the libraries in its workers lie in the folder of the run, and go with it.
class tst_RunFolders : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void nothingIsLeft();
    void workersHaveFoldersInThatOfTheRun();

private:
    QString Within(const QString& path) const
    {
        return QDir(stage->Path(QStringLiteral("tmp"))).relativeFilePath(QDir::fromNativeSeparators(path));
    }

    std::unique_ptr<AccidentStage> stage;
};

void tst_RunFolders::init()
{
    stage = std::make_unique<AccidentStage>();
}

void tst_RunFolders::nothingIsLeft()
{
    PictureFiles::WriteJpeg(stage->Path(QStringLiteral("in/1.jpg")));
    const int exitCode = stage->Run({QStringLiteral("run"), stage->Path(QStringLiteral("in")), QStringLiteral("-o"),
                                     stage->Path(QStringLiteral("out")), QStringLiteral("--format=tiff")});
    QVERIFY2(exitCode == 0, stage->Err().constData());
    QCOMPARE(stage->Names(QStringLiteral("tmp")), QStringList());
}

void tst_RunFolders::workersHaveFoldersInThatOfTheRun()
{
    stage->UseStandIn();
    stage->Write(QStringLiteral("in/1.jpg"), "describe");
    stage->Write(QStringLiteral("in/2.jpg"), "wait " + stage->Path(QStringLiteral("gate")).toUtf8());
    stage->Start({QStringLiteral("run"), stage->Path(QStringLiteral("in")), QStringLiteral("-o"),
                  stage->Path(QStringLiteral("out")), QStringLiteral("--format=jpeg"), QStringLiteral("--workers=1")});
    QVERIFY2(stage->WaitFor("\"event\":\"written\""), stage->Err().constData());
    const QString folder = QString::fromUtf8(stage->Content(QStringLiteral("out/1.jpg")).split('\n').value(1));
    const QRegularExpression form(QStringLiteral("\\Avelkora-batch-[A-Za-z0-9]{6}/velkora-worker-[A-Za-z0-9]{6}\\z"));
    QVERIFY2(form.match(Within(folder)).hasMatch(), qPrintable(folder));
    // As a library leaves it whose process is killed.
    QFile left(QDir(folder).filePath(QStringLiteral("of-a-library")));
    QVERIFY(left.open(QIODevice::WriteOnly));
    left.close();
    stage->Write(QStringLiteral("gate"), {});
    QVERIFY2(stage->End() == 0, stage->Err().constData());
    QCOMPARE(stage->Names(QStringLiteral("tmp")), QStringList());
}

QTEST_GUILESS_MAIN(tst_RunFolders)
#include "tst_runfolders.moc"
