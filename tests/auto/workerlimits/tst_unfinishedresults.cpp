// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Text.h"
#include "WorkerBench.h"

#include "server/protocol/TemporaryFile.h"

#include "ZTBatchDocument.h"
#include "ZTStyle.h"

#include <QDir>
#include <QTest>

#include <unistd.h>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace BatchWorker;

/// What is left of results that are not finished: nothing, and nothing of others is touched.
class tst_UnfinishedResults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void marksItsTemporaryFiles();
    void sweepsStaleFilesOnly();
    void tellsFailedEffectsFromDamagedFiles();
};

void tst_UnfinishedResults::initTestCase()
{
    StartPictures();
}

void tst_UnfinishedResults::marksItsTemporaryFiles()
{
    QTemporaryDir folder;
    TemporaryFile file(folder.filePath(Text("result.jpg")));
    QVERIFY(file.Create());
    const QString name = QFileInfo(file.FileName()).fileName();
    QVERIFY2(QRegularExpression(Text("^\\.velkora-[0-9a-f]{16}\\.tmp$")).match(name).hasMatch(), qPrintable(name));
    QCOMPARE(QFileInfo(file.FileName()).path(), folder.path());
    QCOMPARE(write(file.Descriptor(), "whole", 5), 5);
    QCOMPARE(TemporaryFile::Sweep(folder.path()).removed, 0);
    QCOMPARE(file.Place(false), TemporaryFile::Placement::Done);
    QCOMPARE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList(Text("result.jpg")));
}

void tst_UnfinishedResults::sweepsStaleFilesOnly()
{
    QTemporaryDir folder;
    const auto make = [&folder](const char* name) {
        QFile file(folder.filePath(Text(name)));
        return file.open(QIODevice::WriteOnly);
    };
    QVERIFY(make(".velkora-0123456789abcdef.tmp"));
    QVERIFY(make(".velkora-0123456789abcde.tmp"));
    QVERIFY(make(".velkora-0123456789abcdef.tmp.jpg"));
    QVERIFY(make("velkora-0123456789abcdef.tmp"));
    QVERIFY(make("photo.jpg"));
    QVERIFY(QDir(folder.path()).mkdir(Text(".velkora-00000000000000aa.tmp")));
#ifdef Q_OS_UNIX
    QVERIFY(QFile::link(folder.filePath(Text("photo.jpg")), folder.filePath(Text(".velkora-00000000000000bb.tmp"))));
    constexpr int left = 7;
#else
    constexpr int left = 6; // A link that Qt creates is an ordinary file.
#endif
    TemporaryFile inWork(folder.filePath(Text("result.jpg")));
    QVERIFY(inWork.Create());
    QCOMPARE(TemporaryFile::Sweep(folder.path()).removed, 1);
    QVERIFY(!QFile::exists(folder.filePath(Text(".velkora-0123456789abcdef.tmp"))));
    QVERIFY(QFile::exists(inWork.FileName()));
    QVERIFY(QFile::exists(folder.filePath(Text("photo.jpg"))));
    QCOMPARE(
        QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot | QDir::System).size(),
        left);
    QCOMPARE(TemporaryFile::Sweep(folder.filePath(Text("no such folder"))).removed, 0);
}

void tst_UnfinishedResults::tellsFailedEffectsFromDamagedFiles()
{
    WorkerBench bench;
    const auto jobWith = [](const QByteArray& effect, const QByteArray& parameters) {
        return JobOf([&](ZTBatchDocument& document) {
            document.GetOutputSettings()->SetFormat(Text("PNG"), {});
            document.GetStyle()->AppendEffect(QString::fromUtf8(effect), parameters, true);
        });
    };
    WritePicture(Noise({}, 300, 200), bench.Path(Text("in.jpg")));
    // A watermark whose file is no picture.
    bench.WriteBytes(Text("mark.png"), "no picture");
    const QByteArray mark = "{\"file\":\"" + bench.Path(Text("mark.png")).toUtf8() + "\"}";
    const Report effect = bench.Make(Text("in.jpg"), Text("out.png"), Text("PNG"), jobWith("watermark-image", mark));
    QVERIFY2(effect.failure == PolicyKind::Processing, qPrintable(effect.reason));
    QCOMPARE(effect.errorCode, qint32(ZTBatchMessage::ApplyAdjustmentError));

    // A damaged file stays a damaged file, with an effect that streams and with one that holds the picture.
    bench.WriteBytes(Text("in.jpg"), bench.Bytes(Text("in.jpg")).left(9'000));
    for (const char* id : {"exposure", "auto-levels", "rotate"}) {
        const QByteArray parameters = qstrcmp(id, "rotate") == 0 ? "{\"angle\":30}" : "{}";
        const Report damaged = bench.Make(Text("in.jpg"), Text("out.png"), Text("PNG"), jobWith(id, parameters));
        QVERIFY2(damaged.failure == PolicyKind::Input, qPrintable(damaged.reason));
        QCOMPARE(damaged.errorCode, qint32(ZTBatchMessage::ReadFileError));
    }
    QVERIFY(!QFile::exists(bench.Path(Text("out.png"))));
}

QTEST_GUILESS_MAIN(tst_UnfinishedResults)
#include "tst_unfinishedresults.moc"
