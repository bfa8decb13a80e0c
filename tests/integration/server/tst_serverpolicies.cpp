// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ServerRun.h"

#include "ZTBatchOutputSettings.h"

#include <QtTest>

using Settings = ZTBatchOutputSettings;
using Policies = ServerRun::Policies;

/// What the naming and write-to-format policies do to a run, and names that depend on probes.
class tst_ServerPolicies : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namingPolicies_data();
    void namingPolicies();
    void sourcesAreNotOverwritten_data();
    void sourcesAreNotOverwritten();
    void sharedNamesAreRefused_data();
    void sharedNamesAreRefused();
    void resultsOfOneNameAreOverwrittenInOrder();
    void probedNames();

    void formatPolicies_data();
    void formatPolicies();
    void newNamesOfOtherFormatsAreChecked();
};

namespace {

QString Lines(const QStringList& lines)
{
    return lines.join(QLatin1Char('\n'));
}

void Original(ZTBatchDocument& job)
{
    job.GetOutputSettings()->SetFormat(Settings::GetOriginalFormat(), {});
}

constexpr char jpeg[] = "\xFF\xD8\xFF and so on";

} // namespace

void tst_ServerPolicies::namingPolicies_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<QStringList>("errors");
    QTest::addColumn<QString>("out"); // name=content
    QTest::newRow("skip") << int(ZTBatchManager::NamingSkip)
                          << QStringList{QStringLiteral("error [in/a.jpg] [out/a.jpg] 1 11"),
                                         QStringLiteral("error [in/x/b.jpg] [out/b.jpg] 1 11")}
                          << "a.jpg=old b.jpg=b1";
    QTest::newRow("overwrite") << int(ZTBatchManager::NamingOverwrite)
                               << QStringList{QStringLiteral("error [in/a.jpg] [out/a.jpg] 4 11"),
                                              QStringLiteral("error [in/x/b.jpg] [out/b.jpg] 4 11")}
                               << "a.jpg=a1 b.jpg=b2";
    QTest::newRow("rename") << int(ZTBatchManager::NamingRename)
                            << QStringList{QStringLiteral("error [in/a.jpg] [out/a (2).jpg] 3 11"),
                                           QStringLiteral("error [in/x/b.jpg] [out/b (2).jpg] 3 11")}
                            << "a (2).jpg=a1 a.jpg=old b (2).jpg=b2 b.jpg=b1";
}

void tst_ServerPolicies::namingPolicies()
{
    QFETCH(int, policy);
    QFETCH(QStringList, errors);
    QFETCH(QString, out);
    ServerRun run(ServerRun::Worker::StandIn);
    run.Write(QStringLiteral("out/a.jpg"), "old");
    const QStringList inputs{run.Write(QStringLiteral("in/a.jpg"), "a1"), run.Write(QStringLiteral("in/b.jpg"), "b1"),
                             run.Write(QStringLiteral("in/x/b.jpg"), "b2")};
    Policies policies;
    policies.naming = policy;
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QStringList found = run.Lines(QStringLiteral("error"));
    found.sort();
    QCOMPARE(Lines(found), Lines(errors));
    QStringList files;
    for (const QString& name : run.Names(QStringLiteral("out"))) {
        files.append(name + QLatin1Char('=') + QString::fromUtf8(run.Content(QStringLiteral("out/") + name)));
    }
    QCOMPARE(files.join(QLatin1Char(' ')), out);
}

void tst_ServerPolicies::sourcesAreNotOverwritten_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<bool>("isInPlace");
    QTest::addColumn<QByteArray>("second"); // in its place
    QTest::newRow("overwrite") << int(ZTBatchManager::NamingOverwrite) << false << QByteArray("describe");
    QTest::newRow("ask") << int(ZTBatchManager::NamingAsk) << false << QByteArray("describe");
    QTest::newRow("overwrite, in place") << int(ZTBatchManager::NamingOverwrite) << true << QByteArray();
    QTest::newRow("ask, in place") << int(ZTBatchManager::NamingAsk) << true << QByteArray();
}

// The first result has the name of the second input. The second replaces itself only in place. "Overwrite" is the
// answer to each question.
void tst_ServerPolicies::sourcesAreNotOverwritten()
{
    QFETCH(int, policy);
    QFETCH(bool, isInPlace);
    QFETCH(QByteArray, second);
    ServerRun run(ServerRun::Worker::StandIn);
    const QStringList inputs{run.Write(QStringLiteral("in/b.jpg"), "first"),
                             run.Write(QStringLiteral("out/b.jpg"), "describe")};
    Policies policies;
    policies.naming = policy;
    run.SetVariable(QStringLiteral("VELKORA_BATCH_IN_PLACE"), isInPlace ? QStringLiteral("1") : QStringLiteral("0"));
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), policies);
    const int questions = policy == ZTBatchManager::NamingOverwrite ? 0 : isInPlace ? 1 : 2;
    for (int i = 1; i <= questions; ++i) {
        QVERIFY(QTest::qWaitFor([&] { return run.Count(QStringLiteral("naming question")) == i; }, 30000));
        run.Send<ZTBatchMessage::MsgNamingQuestion>(int(ZTBatchManager::NamingOverwrite), false);
    }
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("naming question")), questions);
    QCOMPARE(run.Content(QStringLiteral("in/b.jpg")), QByteArray("first"));
    QCOMPARE(run.Content(QStringLiteral("out/b (2).jpg")), QByteArray("first"));
    const QByteArray found = run.Content(QStringLiteral("out/b.jpg"));
    QVERIFY2(second.isEmpty() ? found != "describe" && !found.isEmpty() : found == second, found.constData());
    QCOMPARE(run.Names(QStringLiteral("out")).size(), isInPlace ? 2 : 3);
}

void tst_ServerPolicies::sharedNamesAreRefused_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<bool>("isRefused");
    QTest::newRow("skip") << int(ZTBatchManager::NamingSkip) << true;
    QTest::newRow("rename") << int(ZTBatchManager::NamingRename) << false;
    QTest::newRow("overwrite") << int(ZTBatchManager::NamingOverwrite) << false;
}

void tst_ServerPolicies::sharedNamesAreRefused()
{
    QFETCH(int, policy);
    QFETCH(bool, isRefused);
    ServerRun run(ServerRun::Worker::StandIn);
    const QStringList inputs{run.Write(QStringLiteral("in/a.jpg"), "1"), run.Write(QStringLiteral("in/x/a.jpg"), "2")};
    Policies policies;
    policies.naming = policy;
    run.SetVariable(QStringLiteral("VELKORA_BATCH_REFUSE_SHARED_NAMES"), QStringLiteral("1"));
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Count(QStringLiteral("error [] [] 2 11")), isRefused ? 1 : 0);
    QCOMPARE(run.Count(QStringLiteral("log The job is refused: 1 result would get the name of another: ")),
             isRefused ? 1 : 0);
    QCOMPARE(run.Names(QStringLiteral("out")).isEmpty(), isRefused);
}

void tst_ServerPolicies::resultsOfOneNameAreOverwrittenInOrder()
{
    ServerRun run(ServerRun::Worker::StandIn);
    QStringList inputs;
    for (int i = 0; i < 10; ++i) {
        inputs.append(run.Write(QStringLiteral("in/%1/a.jpg").arg(i), QByteArray::number(i)));
    }
    Policies policies;
    policies.naming = ZTBatchManager::NamingOverwrite;
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Names(QStringLiteral("out")), QStringList{QStringLiteral("a.jpg")});
    QCOMPARE(run.Content(QStringLiteral("out/a.jpg")), QByteArray("9"));
    QCOMPARE(run.Count(QStringLiteral("processed")), 10);
}

void tst_ServerPolicies::probedNames()
{
    ServerRun run(ServerRun::Worker::StandIn);
    const QStringList inputs{run.Write(QStringLiteral("in/a.jpg"), "a"),
                             run.Write(QStringLiteral("in/crash.jpg"), "crashprobe"),
                             run.Path(QStringLiteral("in/missing.jpg")), run.Write(QStringLiteral("in/b.jpg"), "b")};
    QVERIFY(run.Start());
    run.Process(run.Job(inputs, [](ZTBatchDocument& job) {
        Settings& settings = *job.GetOutputSettings();
        settings.SetNamingTemplate(Settings::PartPrefix, Settings::TemplateCaptureDate);
        settings.SetFolderStructure(Settings::StructureByCaptureDate);
    }));
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(run.Names(QStringLiteral("out/2024/2024-05-01")),
             (QStringList{QStringLiteral("20240501a.jpg"), QStringLiteral("20240501b.jpg")}));
    QCOMPARE(Lines(run.Lines(QStringLiteral("error"))),
             Lines({QStringLiteral("error [in/crash.jpg] [out/0000/0000-00-00/00000000crash.jpg] 1 9"),
                    QStringLiteral("error [in/missing.jpg] [out/0000/0000-00-00/00000000missing.jpg] 1 2")}));
}

void tst_ServerPolicies::formatPolicies_data()
{
    QTest::addColumn<int>("policy");
    QTest::addColumn<QStringList>("errors");
    QTest::addColumn<QStringList>("names");
    QTest::newRow("skip") << int(ZTBatchManager::WriteToFormatSkip)
                          << QStringList{QStringLiteral("error [in/photo.jpg] [] 1 3"),
                                         QStringLiteral("error [in/raw.dng] [] 1 3")}
                          << QStringList{QStringLiteral("good.jpg")};
    QTest::newRow("stop") << int(ZTBatchManager::WriteToFormatStop)
                          << QStringList{QStringLiteral("error [in/photo.jpg] [] 2 3")} << QStringList();
    // The stand-in takes any unknown file for a PSD, with PNG as its nearest format.
    QTest::newRow("nearest") << int(ZTBatchManager::WriteToFormatNearest)
                             << QStringList{QStringLiteral("error [in/photo.jpg] [out/photo.png] 5 3"),
                                            QStringLiteral("error [in/raw.dng] [out/raw.tif] 5 3")}
                             << QStringList{QStringLiteral("good.jpg"), QStringLiteral("photo.png"),
                                            QStringLiteral("raw.tif")};
}

void tst_ServerPolicies::formatPolicies()
{
    QFETCH(int, policy);
    QFETCH(QStringList, errors);
    QFETCH(QStringList, names);
    ServerRun run(ServerRun::Worker::StandIn);
    const QStringList inputs{run.Write(QStringLiteral("in/photo.jpg"), "no JPEG"),
                             run.Write(QStringLiteral("in/raw.dng"), QByteArray("II*\0 and so on", 14)),
                             run.Write(QStringLiteral("in/good.jpg"), jpeg)};
    Policies policies;
    policies.format = policy;
    QVERIFY(run.Start());
    run.Process(run.Job(inputs, Original), policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QStringList found = run.Lines(QStringLiteral("error"));
    found.sort();
    QCOMPARE(Lines(found), Lines(errors));
    QCOMPARE(run.Names(QStringLiteral("out")), names);
}

void tst_ServerPolicies::newNamesOfOtherFormatsAreChecked()
{
    ServerRun run(ServerRun::Worker::StandIn);
    run.Write(QStringLiteral("out/a.tif"), "old");
    const QStringList inputs{run.Write(QStringLiteral("in/a.jpg"), "format TIFF"),
                             run.Write(QStringLiteral("in/b.jpg"), "format TIFF")};
    Policies policies;
    policies.format = ZTBatchManager::WriteToFormatNearest;
    policies.naming = ZTBatchManager::NamingRename;
    QVERIFY(run.Start());
    run.Process(run.Job(inputs), policies);
    QVERIFY2(run.WaitForFinished(), qPrintable(run.Report()));
    QCOMPARE(Lines(run.Names(QStringLiteral("out"))),
             Lines({QStringLiteral("a (2).tif"), QStringLiteral("a.tif"), QStringLiteral("b.tif")}));
    QCOMPARE(run.Content(QStringLiteral("out/a.tif")), QByteArray("old"));
    QCOMPARE(Lines(run.Lines(QStringLiteral("error [in/a"))),
             Lines({QStringLiteral("error [in/a.jpg] [out/a (2).tif] 5 3"),
                    QStringLiteral("error [in/a.jpg] [out/a (2).tif] 3 11")}));
}

QTEST_GUILESS_MAIN(tst_ServerPolicies)
#include "tst_serverpolicies.moc"
