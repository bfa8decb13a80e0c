// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "server/protocol/TemporaryName.h"
#include "server/supervisor/RunPreparation.h"

#include <QtTest>

using namespace BatchJob;
using namespace BatchProtocol;
using namespace BatchSupervisor;
using Kind = JournalState::Result::Kind;
using Settings = ZTBatchOutputSettings;

/// What a run finds of an earlier part of itself, and the names that it makes.
class tst_RunPreparation : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void noJournal();
    void journalsAreLocked();
    void journalsOfOtherJobsAreIgnored();
    void unusableJournalsAreRefused_data();
    void unusableJournalsAreRefused();
    void journalsReplaceNothing();
    void answersToUnknownPoliciesAreIgnored();
    void journaledResultsKeepTheirNames();
    void finishedResultsAreFound_data();
    void finishedResultsAreFound();
    void fixedNamesMayBeOthers_data();
    void fixedNamesMayBeOthers();
    void filesThatTheJobDoesNotHave();
    void unfinishedFilesAreRemoved();
    void cancelledNamesRemoveNothing();
    void probes();

private:
    QString Path(const QString& name) const { return folder->filePath(name); }
    void Write(const QString& name, const QByteArray& content = "content") const;
    void StartJournal(RunJournal& journal) const;
    RunPlan Plan(int files) const;

    std::unique_ptr<QTemporaryDir> folder;
};

namespace {

const QString& Document()
{
    static const QString document = QStringLiteral("<job/>");
    return document;
}

bool Never()
{
    return false;
}

} // namespace

void tst_RunPreparation::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
    QVERIFY(QDir(folder->path()).mkdir(QStringLiteral("out")));
}

void tst_RunPreparation::Write(const QString& name, const QByteArray& content) const
{
    QFile file(Path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("%s cannot be written", qPrintable(file.fileName()));
    }
}

void tst_RunPreparation::StartJournal(RunJournal& journal) const
{
    QVERIFY(journal.Create(Path(QStringLiteral("journal")), Document(), {}));
}

/// A plan whose files are 0.jpg, 1.jpg and so on, with results out/0.png, out/1.png.
RunPlan tst_RunPreparation::Plan(int files) const
{
    JobSettings settings;
    settings.outputFolder = Path(QStringLiteral("out"));
    settings.format = QStringLiteral("PNG");
    Settings naming(nullptr);
    naming.SetNamingTemplate(Settings::PartMiddle, Settings::TemplateOriginalName);
    naming.SetNamingTemplate(Settings::PartSuffix, Settings::TemplateNothing);
    settings.naming = OutputNaming(naming);
    QVector<JobFile> inputs;
    for (int i = 0; i < files; ++i) {
        inputs.append({Path(QStringLiteral("%1.jpg").arg(i)), {}});
    }
    return RunPlan(OutputPlan(inputs, settings));
}

void tst_RunPreparation::noJournal()
{
    RunPreparation preparation;
    preparation.OpenJournal({}, Document());
    QVERIFY(!preparation.earlier);
    QVERIFY(!preparation.journalLock);
    preparation.OpenJournal(Path(QStringLiteral("missing")), Document());
    QVERIFY(!preparation.earlier);
    preparation.plan = Plan(1);
    preparation.EnterEarlierResults();
    QVERIFY(!preparation.plan.Names().IsKept(0));
}

void tst_RunPreparation::journalsAreLocked()
{
    RunJournal journal;
    StartJournal(journal);
    RunPreparation preparation;
    preparation.OpenJournal(Path(QStringLiteral("journal")), Document());
    QVERIFY(preparation.earlier);
    QVERIFY(preparation.journalLock->isLocked());
    QLockFile other(Path(QStringLiteral("journal")) + QLatin1String(journalHoldEnd));
    QVERIFY(!other.tryLock(0));
}

void tst_RunPreparation::journalsOfOtherJobsAreIgnored()
{
    RunJournal journal;
    StartJournal(journal);
    RunPreparation preparation;
    preparation.OpenJournal(Path(QStringLiteral("journal")), QStringLiteral("<other/>"));
    QVERIFY(!preparation.earlier);
}

void tst_RunPreparation::unusableJournalsAreRefused_data()
{
    QTest::addColumn<QString>("trap");
    QTest::newRow("link") << QStringLiteral("journal");
    QTest::newRow("link as lock") << QStringLiteral("journal") + QLatin1String(journalHoldEnd);
}

// The run would begin anew and make results twice.
void tst_RunPreparation::unusableJournalsAreRefused()
{
    QFETCH(QString, trap);
#ifdef Q_OS_WIN
    QSKIP("Qt makes shortcuts here, which are files.");
#endif
    RunJournal journal;
    StartJournal(journal);
    if (!QFile::rename(Path(trap), Path(QStringLiteral("elsewhere")))) {
        Write(QStringLiteral("elsewhere"));
    }
    QVERIFY(QFile::link(Path(QStringLiteral("elsewhere")), Path(trap)));
    RunPreparation preparation;
    preparation.OpenJournal(Path(QStringLiteral("journal")), Document());
    QVERIFY(!preparation.earlier);
    QCOMPARE(preparation.refusal.code, ZTBatchMessage::WriteOutputFormatError);
    QVERIFY2(preparation.refusal.message.endsWith(QStringLiteral("it is a link")),
             qPrintable(preparation.refusal.message));
}

void tst_RunPreparation::journalsReplaceNothing()
{
    Write(QStringLiteral("precious"), "precious");
    QVERIFY(QFile::link(Path(QStringLiteral("precious")), Path(QStringLiteral("journal"))));
    RunJournal journal;
    QVERIFY(!journal.Create(Path(QStringLiteral("journal")), Document(), {}));
    QVERIFY(!journal.IsOpen());
    QVERIFY(!journal.Problem().isEmpty());
    QCOMPARE(QFileInfo(Path(QStringLiteral("precious"))).size(), qint64(8));
    QVERIFY(!journal.Create(Path(QStringLiteral("precious")), Document(), {}));
    QCOMPARE(QFileInfo(Path(QStringLiteral("precious"))).size(), qint64(8));
}

void tst_RunPreparation::answersToUnknownPoliciesAreIgnored()
{
    RunJournal journal;
    StartJournal(journal);
    for (const int policy : {-1, int(PolicyKind::Naming), policyCount, 1'000'000}) {
        journal.Answer(policy, 2);
    }
    RunPreparation preparation;
    preparation.OpenJournal(Path(QStringLiteral("journal")), Document());
    QVERIFY(preparation.earlier);
    QCOMPARE(preparation.earlier->answers.keys(), QList<int>{int(PolicyKind::Naming)});
}

void tst_RunPreparation::journaledResultsKeepTheirNames()
{
    RunJournal journal;
    StartJournal(journal);
    Write(QStringLiteral("out/0.png"));
    journal.Settle(0, {Kind::Written, Path(QStringLiteral("out/0.png")), 0, {}});
    journal.Settle(1, {Kind::Failed, Path(QStringLiteral("out/1.png")), ZTBatchMessage::ReadFileError, {}});
    RunPreparation preparation;
    preparation.OpenJournal(Path(QStringLiteral("journal")), Document());
    preparation.plan = Plan(3);
    preparation.EnterEarlierResults();
    QVERIFY(preparation.plan.Names().IsKept(0));
    QVERIFY(!preparation.plan.Names().IsKept(1));
    QVERIFY(preparation.unreported.isEmpty());
    preparation.MakeNames(Policies(), Never);
    QVERIFY2(preparation.plan.TroubleOf(0).kind == PolicyKind::None, "a result is not in its own way");
    QCOMPARE(preparation.plan.Names().Output(2), Path(QStringLiteral("out/2.png")));
}

void tst_RunPreparation::finishedResultsAreFound_data()
{
    QTest::addColumn<bool>("wasThere");
    QTest::addColumn<bool>("isWritten");
    QTest::addColumn<bool>("isFound");
    QTest::newRow("nothing") << false << false << false;
    QTest::newRow("new file") << false << true << true;
    QTest::newRow("old file") << true << false << false;
    QTest::newRow("replaced file") << true << true << true;
}

void tst_RunPreparation::finishedResultsAreFound()
{
    QFETCH(bool, wasThere);
    QFETCH(bool, isWritten);
    QFETCH(bool, isFound);
    const QString output = Path(QStringLiteral("out/0.png"));
    QString before;
    if (wasThere) {
        Write(QStringLiteral("out/0.png"), "old");
        before = IdentityOf(output)->Text();
    }
    RunJournal journal;
    StartJournal(journal);
    journal.Begin(0, {output, before});
    if (isWritten) {
        // Like a worker: the finished file takes the place of what was there.
        Write(QStringLiteral("new"), "new");
        QVERIFY(!wasThere || QFile::rename(output, Path(QStringLiteral("old"))));
        QVERIFY(QFile::rename(Path(QStringLiteral("new")), output));
    }
    RunPreparation preparation;
    preparation.OpenJournal(Path(QStringLiteral("journal")), Document());
    preparation.plan = Plan(1);
    preparation.EnterEarlierResults();
    QCOMPARE(preparation.plan.Names().IsKept(0), isFound);
    QCOMPARE(preparation.unreported, isFound ? QVector<int>{0} : QVector<int>());
    QCOMPARE(preparation.earlier->results.contains(0), isFound);
}

void tst_RunPreparation::fixedNamesMayBeOthers_data()
{
    QTest::addColumn<bool>("isComplete");
    QTest::newRow("complete journal") << true;
    QTest::newRow("incomplete journal") << false;
}

/// A file that has come under the name of a part's result need not be the result: the result is made, and compared.
void tst_RunPreparation::fixedNamesMayBeOthers()
{
    QFETCH(bool, isComplete);
    RunJournal journal;
    StartJournal(journal);
    journal.FixNames({{Path(QStringLiteral("out/x.png")), QStringLiteral("PNG")}});
    if (isComplete) {
        journal.Begin(0, {Path(QStringLiteral("out/x.png")), {}});
    }
    Write(QStringLiteral("out/x.png"), "somebody else's");
    RunPreparation preparation;
    preparation.OpenJournal(Path(QStringLiteral("journal")), Document());
    preparation.earlier->isComplete = isComplete;
    preparation.plan = Plan(1);
    preparation.EnterEarlierResults();
    preparation.MakeNames(Policies(), Never);
    QVERIFY(preparation.plan.HasFixedName(0));
    QCOMPARE(preparation.plan.TroubleOf(0).kind, PolicyKind::None);
    QVERIFY(preparation.unreported.isEmpty());
    QVERIFY(preparation.unjournaled.isEmpty());
    QVERIFY(!preparation.earlier->results.contains(0));
}

void tst_RunPreparation::filesThatTheJobDoesNotHave()
{
    RunJournal journal;
    StartJournal(journal);
    Write(QStringLiteral("out/9.png"));
    journal.Settle(8, {Kind::Written, Path(QStringLiteral("out/8.png")), 0, {}});
    journal.Begin(9, {Path(QStringLiteral("out/9.png")), {}});
    RunPreparation preparation;
    preparation.OpenJournal(Path(QStringLiteral("journal")), Document());
    preparation.plan = Plan(2);
    preparation.EnterEarlierResults();
    QVERIFY(preparation.unreported.isEmpty());
    QVERIFY(!preparation.plan.Names().IsKept(0));
    QVERIFY(!preparation.plan.Names().IsKept(1));
}

void tst_RunPreparation::unfinishedFilesAreRemoved()
{
    const QString unfinished = Path(QStringLiteral("out/") + NewTemporaryName());
    Write(QDir(folder->path()).relativeFilePath(unfinished));
    Write(QStringLiteral("out/other.txt"));
    RunPreparation preparation;
    preparation.plan = Plan(2);
    preparation.MakeNames(Policies(), Never);
    QCOMPARE(preparation.removedFiles, 1);
    QVERIFY(!QFileInfo::exists(unfinished));
    QVERIFY(QFileInfo::exists(Path(QStringLiteral("out/other.txt"))));
}

void tst_RunPreparation::cancelledNamesRemoveNothing()
{
    const QString unfinished = Path(QStringLiteral("out/") + NewTemporaryName());
    Write(QDir(folder->path()).relativeFilePath(unfinished));
    RunPreparation preparation;
    preparation.plan = Plan(2);
    preparation.MakeNames(Policies(), [] { return true; });
    QCOMPARE(preparation.removedFiles, 0);
    QVERIFY(QFileInfo::exists(unfinished));
    QVERIFY(preparation.plan.Names().OutputName(1).isEmpty());
}

void tst_RunPreparation::probes()
{
    ProbeQueue queue({4, 2});
    QCOMPARE(queue.Count(), 2);
    QCOMPARE(queue.NotBegun(), 2);
    QCOMPARE(queue.Begin(), 4);
    QCOMPARE(queue.Begin(), 2);
    QCOMPARE(queue.NotBegun(), 0);
    QVERIFY(!queue.Finish());
    QVERIFY(queue.Finish());
    QCOMPARE(ProbeQueue().Count(), 0);
}

QTEST_GUILESS_MAIN(tst_RunPreparation)
#include "tst_runpreparation.moc"
