// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"
#include "Links.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#include <unistd.h>
#endif

/// What others leave in a shared output folder under the names of journals: it is neither followed nor believed.
class tst_CliPlanted : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void plantedJournalsAreIgnored_data();
    void plantedJournalsAreIgnored();
    void ownJournalBesideAPlantedOne();
    void linksAtTheNamesOfJournalsAreNotFollowed();
    void namesOfJournalsDiffer();
#ifdef Q_OS_UNIX
    void locksOfOthersAreNamed_data();
    void locksOfOthersAreNamed();
#endif

private:
    static bool PlantForeign(const QString& planted, const QString& plant);
    QString Interrupt(const QString& folder) const;
    QStringList Journals(const QString& folder) const;

    std::unique_ptr<CliStage> stage;
};

namespace {

const QString options = QStringLiteral(" --format jpeg --on-name-exists overwrite");

} // namespace

void tst_CliPlanted::init()
{
    stage = std::make_unique<CliStage>(CliStage::Server::WithoutWorker);
    stage->Write(QStringLiteral("photos/1.jpg"), "1");
}

QStringList tst_CliPlanted::Journals(const QString& folder) const
{
    return stage->Names(folder).filter(QRegularExpression(QStringLiteral("^\\.velkora-batch-.*\\.journal$")));
}

/// Interrupts a run into `folder`: without a worker it can only be resumed. Returns the path of its journal.
QString tst_CliPlanted::Interrupt(const QString& folder) const
{
    const CliRun run = stage->Run(QStringLiteral("run photos -o ") + folder + options);
    const QStringList journals = Journals(folder);
    return run.exitCode == 3 && journals.size() == 1 ? stage->Path(folder + QLatin1Char('/') + journals.first())
                                                     : QString();
}

void tst_CliPlanted::plantedJournalsAreIgnored_data()
{
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("plant");
    QTest::addColumn<QString>("reason");
    const QString shared = QStringLiteral("shared");
    const QString secret = QStringLiteral("private");
#ifdef Q_OS_UNIX
    QTest::newRow("of another user") << shared << QStringLiteral("chown")
                                     << QStringLiteral("it belongs to another user");
    QTest::newRow("of another user, for another folder")
        << secret << QStringLiteral("chown") << QStringLiteral("it belongs to another user");
    QTest::newRow("that others may write")
        << shared << QStringLiteral("chmod") << QStringLiteral("other users may write it");
    QTest::newRow("named pipe") << shared << QStringLiteral("pipe") << QStringLiteral("it is not a file");
#endif
    QTest::newRow("with a second name") << shared << QStringLiteral("hard link")
                                        << QStringLiteral("it has more than one name");
    QTest::newRow("behind a link") << shared << QStringLiteral("link") << QStringLiteral("it is a link");
    QTest::newRow("for another folder") << secret << QString() << QStringLiteral("its results go to ");
}

/// Leaves what other users of a Unix can leave. Only root can give files away.
bool tst_CliPlanted::PlantForeign(const QString& planted, const QString& plant)
{
#ifdef Q_OS_UNIX
    constexpr uid_t stranger = 65534;
    const QByteArray path = planted.toUtf8();
    if (plant == QLatin1String("chown")) {
        return ::chown(path.constData(), stranger, stranger) == 0;
    }
    if (plant == QLatin1String("chmod")) {
        return ::chmod(path.constData(), 0666) == 0;
    }
    return QFile::remove(planted) && ::mkfifo(path.constData(), 0600) == 0;
#else
    Q_UNUSED(planted)
    Q_UNUSED(plant)
    return false;
#endif
}

void tst_CliPlanted::plantedJournalsAreIgnored()
{
    QFETCH(QString, target);
    QFETCH(QString, plant);
    QFETCH(QString, reason);
    const QString journal = Interrupt(target);
    QVERIFY(!journal.isEmpty());
    const QString planted = stage->Path(QStringLiteral("shared/.velkora-batch-0123456789abcdef.journal"));
    QVERIFY(QDir(stage->Folder()).mkpath(QStringLiteral("shared")));
    QVERIFY(QFile::rename(journal, planted));
    if (plant == QLatin1String("hard link")) {
        QVERIFY(MakeHardLink(planted, stage->Path(QStringLiteral("other name"))));
    } else if (plant == QLatin1String("link")) {
        const QString elsewhere = stage->Path(QStringLiteral("elsewhere"));
        QVERIFY(QFile::rename(planted, elsewhere));
        if (!MakeLink(elsewhere, planted)) {
            QSKIP("This system makes no links.");
        }
    } else if (!plant.isEmpty() && !PlantForeign(planted, plant)) {
        QVERIFY2(plant == QLatin1String("chown"), qPrintable(plant));
        QSKIP("Only root can give a file to another user.");
    }
    stage->Write(QStringLiteral("private/1.jpg"), "precious");
    stage->PlaceWorker();
    const CliRun run = stage->Run(QStringLiteral("run --resume -o shared"));
    QCOMPARE(run.exitCode, 7);
    QVERIFY2(run.Err().contains(planted + QStringLiteral(" is ignored: ") + reason), run.err.constData());
    QVERIFY2(run.err.contains("there is no interrupted run in "), run.err.constData());
    QCOMPARE(stage->Content(QStringLiteral("private/1.jpg")), QByteArray("precious"));
    QVERIFY(!QFileInfo::exists(stage->Path(QStringLiteral("shared/1.jpg"))));
}

void tst_CliPlanted::ownJournalBesideAPlantedOne()
{
    const QString foreign = Interrupt(QStringLiteral("private"));
    QVERIFY(!Interrupt(QStringLiteral("shared")).isEmpty());
    const QString planted = stage->Path(QStringLiteral("shared/.velkora-batch-0123456789abcdef.journal"));
    QVERIFY(QFile::rename(foreign, planted));
    stage->PlaceWorker();
    const CliRun run = stage->Run(QStringLiteral("run --resume -o shared"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY2(run.Err().contains(planted + QStringLiteral(" is ignored: its results go to ")), run.err.constData());
    QCOMPARE(stage->Content(QStringLiteral("shared/1.jpg")), QByteArray("1"));
    QVERIFY(!QFileInfo::exists(stage->Path(QStringLiteral("private/1.jpg"))));
}

// The name that a run of this job had once.
void tst_CliPlanted::linksAtTheNamesOfJournalsAreNotFollowed()
{
    const QString journal = Interrupt(QStringLiteral("shared"));
    const QString precious = stage->Write(QStringLiteral("private/precious"), "precious");
    QVERIFY(QFile::remove(journal));
    if (!MakeLink(precious, journal)) {
        QSKIP("This system makes no links.");
    }
    stage->PlaceWorker();
    const CliRun run = stage->Run(QStringLiteral("run photos -o shared") + options);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(stage->Content(QStringLiteral("private/precious")), QByteArray("precious"));
    QCOMPARE(stage->Content(QStringLiteral("shared/1.jpg")), QByteArray("1"));
}

void tst_CliPlanted::namesOfJournalsDiffer()
{
    const QString first = Interrupt(QStringLiteral("shared"));
    QVERIFY(QFile::remove(first));
    const QString second = Interrupt(QStringLiteral("shared"));
    QVERIFY(!second.isEmpty());
    QVERIFY(first != second);
}

#ifdef Q_OS_UNIX
void tst_CliPlanted::locksOfOthersAreNamed_data()
{
    QTest::addColumn<QString>("end");
    QTest::newRow("of the command") << QStringLiteral(".lock");
    QTest::newRow("of the server") << QStringLiteral(".server");
}

// The lock is a named pipe; opening that to read blocks.
void tst_CliPlanted::locksOfOthersAreNamed()
{
    QFETCH(QString, end);
    const QString lock = Interrupt(QStringLiteral("shared")) + end;
    QCOMPARE(::mkfifo(lock.toUtf8().constData(), 0600), 0);
    stage->PlaceWorker();
    const CliRun run = stage->Run(QStringLiteral("run --resume -o shared"));
    QVERIFY2(run.exitCode == 2, run.err.constData());
    QVERIFY2(run.Err().contains(lock + QStringLiteral(": it is not a file")), run.err.constData());
    QVERIFY(!QFileInfo::exists(stage->Path(QStringLiteral("shared/1.jpg"))));
}
#endif

QTEST_GUILESS_MAIN(tst_CliPlanted)
#include "tst_cliplanted.moc"
