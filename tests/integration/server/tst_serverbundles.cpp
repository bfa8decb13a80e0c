// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerRun.h"

#include "job/settings/JobBundle.h"
#include "job/settings/JobFiles.h"

#include "ZTBatchDocument.h"
#include "ZTBatchInputModel.h"
#include "ZTBatchOutputSettings.h"

#include <QtTest>

using namespace BatchJob;

/// Bundles of jobs as the server gets them from its host.
class tst_ServerBundles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void resultsOfEachJob();
    void jobsShareWorkers();
    void jobsMayWriteToOneFolder();
    void resultsWithoutNamesComeWithTheirFolders();
    void refusedBundles_data();
    void refusedBundles();
    void resultsInPlaceAreRefused();
    void linksAreNotFollowed();

private:
    /// The document of a job without inputs that writes to a folder in "out".
    QString Part(const QString& folder, const std::function<void(ZTBatchDocument&)>& change = {}) const;
    JobBundle Bundle(const QStringList& inputs) const;

    std::unique_ptr<ServerRun> run;
};

void tst_ServerBundles::init()
{
    run.reset(); // It has the temporary folder of this process.
    run = std::make_unique<ServerRun>(ServerRun::Worker::StandIn);
    run->SetVariable(QStringLiteral("VELKORA_BATCH_WORKERS"), QStringLiteral("1"));
}

QString tst_ServerBundles::Part(const QString& folder, const std::function<void(ZTBatchDocument&)>& change) const
{
    ZTBatchDocument job;
    job.Deserialize(run->Job({}));
    job.GetOutputSettings()->SetPath(run->Path(QStringLiteral("out")) + folder);
    if (change) {
        change(job);
    }
    return TakeSettingsText(job);
}

JobBundle tst_ServerBundles::Bundle(const QStringList& inputs) const
{
    const QString out = run->Path(QStringLiteral("out"));
    const QString first = run->Job(
        inputs, [&out](ZTBatchDocument& job) { job.GetOutputSettings()->SetPath(out + QStringLiteral("/a")); });
    return {out,
            {{QStringLiteral("A"), first, out + QStringLiteral("/a")},
             {QStringLiteral("B"), Part(QStringLiteral("/b")), out + QStringLiteral("/b")}}};
}

void tst_ServerBundles::resultsOfEachJob()
{
    const QString one = run->Write(QStringLiteral("in/1.jpg"), "good");
    const QString two = run->Write(QStringLiteral("in/2.jpg"), "input 2");
    QVERIFY(run->Start());
    run->Process(Bundle({one, two}).Text());
    QVERIFY2(run->WaitForFinished(), qPrintable(run->Report()));
    QVERIFY2(run->lines.first() == QLatin1String("range 0 4"), qPrintable(run->Report()));
    QCOMPARE(run->Lines(QStringLiteral("processed")),
             QStringList({QStringLiteral("processed [in/1.jpg] [out/a/1.jpg]"),
                          QStringLiteral("processed [in/1.jpg] [out/b/1.jpg]")}));
    QCOMPARE(run->Lines(QStringLiteral("error")), QStringList({QStringLiteral("error [in/2.jpg] [out/a/2.jpg] 1 2"),
                                                               QStringLiteral("error [in/2.jpg] [out/b/2.jpg] 1 2")}));
    QCOMPARE(run->Lines(QStringLiteral("log Finished")),
             QStringList(QStringLiteral("log Finished: 2 written, 0 skipped, 2 failed.")));
}

void tst_ServerBundles::jobsShareWorkers()
{
    const QString input = run->Write(QStringLiteral("in/1.jpg"), "describe\n");
    QVERIFY(run->Start());
    run->Process(Bundle({input}).Text());
    QVERIFY2(run->WaitForFinished(), qPrintable(run->Report()));
    // The first line is the worker's process.
    const QByteArray process = run->Content(QStringLiteral("out/a/1.jpg")).split('\n').first();
    QVERIFY(!process.isEmpty());
    QCOMPARE(run->Content(QStringLiteral("out/b/1.jpg")).split('\n').first(), process);
}

void tst_ServerBundles::jobsMayWriteToOneFolder()
{
    const QString input = run->Write(QStringLiteral("in/1.jpg"), "good");
    JobBundle bundle = Bundle({input});
    bundle.parts[1] = {QStringLiteral("B"), Part(QStringLiteral("/a")), run->Path(QStringLiteral("out/a"))};
    QVERIFY(run->Start());
    ServerRun::Policies policies;
    policies.naming = ZTBatchManager::NamingRename;
    run->Process(bundle.Text(), policies);
    QVERIFY2(run->WaitForFinished(), qPrintable(run->Report()));
    QCOMPARE(run->Names(QStringLiteral("out/a")), QStringList({QStringLiteral("1 (2).jpg"), QStringLiteral("1.jpg")}));
}

/// The host tells the results of a picture apart by their folders.
void tst_ServerBundles::resultsWithoutNamesComeWithTheirFolders()
{
    const QString input = run->Write(QStringLiteral("in/1.dng"), "II*");
    JobBundle bundle = Bundle({input});
    bundle.parts[1].document = Part(QStringLiteral("/b"), [](ZTBatchDocument& job) {
        job.GetOutputSettings()->SetFormat(ZTBatchOutputSettings::GetOriginalFormat(), {});
    });
    QVERIFY(run->Start());
    run->Process(bundle.Text());
    QVERIFY2(run->WaitForFinished(), qPrintable(run->Report()));
    const QStringList errors = run->Lines(QStringLiteral("error"));
    QVERIFY2(errors.contains(QStringLiteral("error [in/1.dng] [out/b/] 1 6")) ||
                 errors.last().startsWith(QStringLiteral("error [in/1.dng] [out/b/] ")),
             qPrintable(run->Report()));
}

void tst_ServerBundles::refusedBundles_data()
{
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("reason");
    for (const auto& [fault, reason] :
         {std::pair("no document", "Job \"B\": The job is not a batch document"),
          std::pair("first no document", "Job \"A\": The job is not a batch document"),
          std::pair("inputs", "Job \"B\": It has inputs, but those of a bundle belong in its first job"),
          std::pair("no inputs", "Job \"A\": "), std::pair("settings", "Job \"B\": "),
          std::pair("folder", "Job \"B\": Its output folder is \""),
          std::pair("name twice", "The bundle of jobs cannot be read: two jobs have the name \"A\""),
          std::pair("elsewhere", "The bundle of jobs cannot be read: the job \"B\" writes to \"/other\""),
          std::pair("cut off", "The bundle of jobs cannot be read: line ")}) {
        QTest::newRow(fault) << QString::fromLatin1(fault) << QString::fromUtf8(reason);
    }
}

void tst_ServerBundles::refusedBundles()
{
    QFETCH(const QString, fault);
    QFETCH(const QString, reason);
    const QString input = run->Write(QStringLiteral("in/1.jpg"), "good");
    JobBundle bundle = Bundle({input});
    JobBundle::Part& second = bundle.parts[1];
    if (fault == QLatin1String("no document")) {
        second.document = QStringLiteral("text");
    } else if (fault == QLatin1String("first no document")) {
        bundle.parts[0].document.chop(20);
    } else if (fault == QLatin1String("inputs")) {
        second.document = bundle.parts[0].document;
    } else if (fault == QLatin1String("no inputs")) {
        bundle.parts[0].document = Part(QStringLiteral("/a"));
    } else if (fault == QLatin1String("settings")) {
        second.document = Part(QStringLiteral("/b"), [](ZTBatchDocument& job) {
            job.GetOutputSettings()->SetFormat(QStringLiteral("BMP 2000"), {});
        });
    } else if (fault == QLatin1String("folder")) {
        second.document = Part(QStringLiteral("/c"));
    } else if (fault == QLatin1String("name twice")) {
        second.name = bundle.parts[0].name;
    } else if (fault == QLatin1String("elsewhere")) {
        second.outputFolder = QStringLiteral("/other");
    }
    QString text = bundle.Text();
    if (fault == QLatin1String("cut off")) {
        text.chop(10);
    }
    QVERIFY(run->Start());
    run->Process(text);
    QVERIFY2(run->WaitForFinished(), qPrintable(run->Report()));
    QVERIFY2(run->Report().contains(reason), qPrintable(run->Report()));
    QCOMPARE(run->Count(QStringLiteral("processed")), 0);
    QVERIFY(!QFile::exists(run->Path(QStringLiteral("out"))));
}

void tst_ServerBundles::resultsInPlaceAreRefused()
{
    const QString input = run->Write(QStringLiteral("in/1.jpg"), "good");
    run->SetVariable(QStringLiteral("VELKORA_BATCH_IN_PLACE"), QStringLiteral("1"));
    QVERIFY(run->Start());
    run->Process(Bundle({input}).Text());
    QVERIFY2(run->WaitForFinished(), qPrintable(run->Report()));
    QVERIFY2(run->Report().contains(QStringLiteral("Several results of one picture cannot replace their original")),
             qPrintable(run->Report()));
    QCOMPARE(run->Content(QStringLiteral("in/1.jpg")), QByteArray("good"));
}

/// The folder of a job is below the output folder: somebody else may have planted a link there.
void tst_ServerBundles::linksAreNotFollowed()
{
#ifdef Q_OS_WIN
    QSKIP("Making links needs a right there");
#endif
    const QString input = run->Write(QStringLiteral("in/1.jpg"), "good");
    run->Write(QStringLiteral("out/a/other.jpg"), "other");
    run->Write(QStringLiteral("elsewhere/other.jpg"), "other");
    QVERIFY(QFile::link(run->Path(QStringLiteral("elsewhere")), run->Path(QStringLiteral("out/b"))));
    QVERIFY(run->Start());
    run->Process(Bundle({input}).Text());
    QVERIFY2(run->WaitForFinished(), qPrintable(run->Report()));
    QCOMPARE(run->Names(QStringLiteral("elsewhere")), QStringList(QStringLiteral("other.jpg")));
    QCOMPARE(run->Lines(QStringLiteral("processed")),
             QStringList(QStringLiteral("processed [in/1.jpg] [out/a/1.jpg]")));
}

QTEST_GUILESS_MAIN(tst_ServerBundles)
#include "tst_serverbundles.moc"
