// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliStage.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

/// Results that would take the places of originals. The stand-in worker writes a description in place of a file that
/// says "describe", and a copy of any other.
class tst_CliInPlace : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void originalsStay_data();
    void originalsStay();
    void keptOriginalsAreTold();
    void filesOfTheJobStay();
    void originalsAreReplaced_data();
    void originalsAreReplaced();
    void otherSourcesStay();
    void otherSourcesStayWithinTheRun();
    void brokenPicturesStay();
    void outputIsFound_data();
    void outputIsFound();
    void unclearPlacesAreRefused_data();
    void unclearPlacesAreRefused();
    void resumedRunsStayInPlace();
    void plansShowIt();

private:
    bool IsReplaced(const QString& name) const
    {
        return !stage->Content(name).isEmpty() && stage->Content(name) != "describe";
    }

    std::unique_ptr<CliStage> stage;
};

void tst_CliInPlace::init()
{
    stage = std::make_unique<CliStage>(CliStage::Server::StandIn);
    stage->Write(QStringLiteral("photos/1.jpg"), "describe");
    stage->Write(QStringLiteral("photos/2.jpg"), "describe");
}

void tst_CliInPlace::originalsStay_data()
{
    QTest::addColumn<QString>("option");
    QTest::addColumn<QStringList>("files");
    const QStringList same{QStringLiteral("1.jpg"), QStringLiteral("2.jpg")};
    const QStringList renamed{QStringLiteral("1 (2).jpg"), QStringLiteral("1.jpg"), QStringLiteral("2 (2).jpg"),
                              QStringLiteral("2.jpg")};
    QTest::newRow("no policy") << QString() << same;
    QTest::newRow("skip") << QStringLiteral("--on-name-exists skip") << same;
    QTest::newRow("rename") << QStringLiteral("--on-name-exists rename") << renamed;
    QTest::newRow("overwrite") << QStringLiteral("--on-name-exists overwrite") << renamed;
}

void tst_CliInPlace::originalsStay()
{
    QFETCH(QString, option);
    QFETCH(QStringList, files);
    const CliRun run = stage->Run(QStringLiteral("run photos -o photos --format jpeg ") + option);
    QVERIFY2(run.exitCode == (option.isEmpty() ? 1 : 0), run.err.constData());
    for (const char* name : {"photos/1.jpg", "photos/2.jpg"}) {
        QCOMPARE(stage->Content(QLatin1String(name)), QByteArray("describe"));
    }
    QCOMPARE(stage->Names(QStringLiteral("photos")), files);
}

// Who says overwrite and gets second files is told why.
void tst_CliInPlace::keptOriginalsAreTold()
{
    const QString command = QStringLiteral("run photos --format jpeg --on-name-exists overwrite -o ");
    const CliRun run = stage->Run(command + QStringLiteral("photos"));
    QVERIFY2(
        run.err.contains("2 results were renamed, because originals have their names; --in-place replaces originals"),
        run.err.constData());
    const CliRun other = stage->Run(command + QStringLiteral("out"));
    QVERIFY2(!other.err.contains("--in-place"), other.err.constData());
}

void tst_CliInPlace::filesOfTheJobStay()
{
    stage->Write(QStringLiteral("out/1.jpg"), "a background");
    for (const char* option : {"", " --in-place"}) {
        const CliRun run =
            stage->Run(QStringLiteral("run photos/1.jpg -o out --format jpeg --frame 4 --background image:out/1.jpg "
                                      "--on-name-exists overwrite") +
                       QLatin1String(option));
        QVERIFY2(run.exitCode == 0, run.err.constData());
        QCOMPARE(stage->Content(QStringLiteral("out/1.jpg")), QByteArray("a background"));
        QVERIFY(QFile::remove(stage->Path(QStringLiteral("out/1 (2).jpg"))));
    }
}

void tst_CliInPlace::originalsAreReplaced_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("no policy") << QString();
    QTest::newRow("overwrite") << QStringLiteral("--on-name-exists overwrite");
    QTest::newRow("rename") << QStringLiteral("--on-name-exists rename");
    QTest::newRow("skip") << QStringLiteral("--on-name-exists skip");
}

void tst_CliInPlace::originalsAreReplaced()
{
    QFETCH(QString, option);
    const CliRun run = stage->Run(QStringLiteral("run photos -o photos --format jpeg --in-place ") + option);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY(IsReplaced(QStringLiteral("photos/1.jpg")) && IsReplaced(QStringLiteral("photos/2.jpg")));
    QCOMPARE(stage->Names(QStringLiteral("photos")).size(), 2);
}

void tst_CliInPlace::otherSourcesStay()
{
    stage->Write(QStringLiteral("more/1.jpg"), "of another folder");
    const CliRun run =
        stage->Run(QStringLiteral("run more photos -o photos --format jpeg --in-place --on-name-exists overwrite"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY(IsReplaced(QStringLiteral("photos/1.jpg")));
    QCOMPARE(stage->Content(QStringLiteral("photos/1 (2).jpg")), QByteArray("of another folder"));
    QCOMPARE(stage->Content(QStringLiteral("more/1.jpg")), QByteArray("of another folder"));
}

// The original is replaced before a result of the same name comes: that result must not replace the only copy.
void tst_CliInPlace::otherSourcesStayWithinTheRun()
{
    stage->Write(QStringLiteral("zz/1.jpg"), "of another folder");
    const CliRun run = stage->Run(
        QStringLiteral("run photos zz -o photos --format jpeg --in-place --on-name-exists overwrite --workers 1"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY(stage->Content(QStringLiteral("photos/1.jpg")) != "of another folder");
    QVERIFY(IsReplaced(QStringLiteral("photos/1.jpg")));
    QCOMPARE(stage->Content(QStringLiteral("photos/1 (2).jpg")), QByteArray("of another folder"));
}

void tst_CliInPlace::brokenPicturesStay()
{
    stage->Write(QStringLiteral("photos/1.jpg"), "crash");
    const CliRun run = stage->Run(QStringLiteral("run photos -o photos --format jpeg --in-place"));
    QVERIFY2(run.exitCode == 1, run.err.constData());
    QCOMPARE(stage->Content(QStringLiteral("photos/1.jpg")), QByteArray("crash"));
    QVERIFY(IsReplaced(QStringLiteral("photos/2.jpg")));
    QCOMPARE(stage->Names(QStringLiteral("photos")).size(), 2);
}

void tst_CliInPlace::outputIsFound_data()
{
    QTest::addColumn<QString>("inputs");
    QTest::addColumn<QStringList>("replaced");
    const QStringList photos{QStringLiteral("photos/1.jpg"), QStringLiteral("photos/2.jpg")};
    QTest::newRow("folder") << QStringLiteral("photos") << photos;
    QTest::newRow("files") << QStringLiteral("photos/1.jpg photos/2.jpg") << photos;
    QTest::newRow("folder with folders") << QStringLiteral("deep")
                                         << QStringList{QStringLiteral("deep/1.jpg"), QStringLiteral("deep/a/1.jpg"),
                                                        QStringLiteral("deep/a/b/1.jpg")};
    QTest::newRow("two folders") << QStringLiteral("photos deep")
                                 << photos +
                                        QStringList{QStringLiteral("deep/1.jpg"), QStringLiteral("deep/a/b/1.jpg")};
    QTest::newRow("folder and file beside it")
        << QStringLiteral("photos loose.jpg") << photos + QStringList{QStringLiteral("loose.jpg")};
}

void tst_CliInPlace::outputIsFound()
{
    QFETCH(QString, inputs);
    QFETCH(QStringList, replaced);
    for (const char* name : {"deep/1.jpg", "deep/a/1.jpg", "deep/a/b/1.jpg", "loose.jpg"}) {
        stage->Write(QLatin1String(name), "describe");
    }
    const CliRun run = stage->Run(QStringLiteral("run --in-place --effect sepia --format jpeg ") + inputs);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    for (const QString& name : replaced) {
        QVERIFY2(IsReplaced(name), qPrintable(name));
    }
    QVERIFY2(!run.err.contains("renamed"), run.err.constData());
}

void tst_CliInPlace::unclearPlacesAreRefused_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("wanted");
    QTest::newRow("folders apart") << QStringLiteral("photos deep/a") << QStringLiteral("do not lie in one folder");
    QTest::newRow("structure") << QStringLiteral("photos --structure date")
                               << QStringLiteral("--structure cannot be used with --in-place without --output");
    QTest::newRow("folder whose name is cleaned")
        << QStringLiteral("odd") << QStringLiteral("would not go to the folder of its original");
}

void tst_CliInPlace::unclearPlacesAreRefused()
{
    QFETCH(QString, arguments);
    QFETCH(QString, wanted);
    stage->Write(QStringLiteral("deep/a/1.jpg"), "describe");
#ifdef Q_OS_WIN
    if (arguments == QLatin1String("odd")) {
        QSKIP("Such a folder cannot exist there.");
    }
#else
    stage->Write(QStringLiteral("odd/1.jpg"), "describe");
    stage->Write(QStringLiteral("odd/a:b/1.jpg"), "describe");
#endif
    for (const char* command : {"run", "plan"}) {
        const CliRun run =
            stage->Run(QStringLiteral("%1 --in-place --format jpeg %2").arg(QLatin1String(command), arguments));
        QVERIFY2(run.exitCode == 2, run.err.constData());
        QVERIFY2(run.Err().contains(wanted) && run.err.contains("--output"), run.err.constData());
        QVERIFY(!IsReplaced(QStringLiteral("photos/1.jpg")));
    }
}

void tst_CliInPlace::resumedRunsStayInPlace()
{
    stage = std::make_unique<CliStage>(CliStage::Server::WithoutWorker);
    stage->Write(QStringLiteral("photos/1.jpg"), "describe");
    QCOMPARE(stage->Run(QStringLiteral("run photos --format jpeg --in-place")).exitCode, 3);
    stage->PlaceWorker();
    const CliRun rest = stage->Run(QStringLiteral("run --resume -o photos"));
    QVERIFY2(rest.exitCode == 0, rest.err.constData());
    QVERIFY(IsReplaced(QStringLiteral("photos/1.jpg")));
    QCOMPARE(stage->Names(QStringLiteral("photos")), QStringList(QStringLiteral("1.jpg")));
}

void tst_CliInPlace::plansShowIt()
{
    const QString command = QStringLiteral("plan photos -o photos --format jpeg --on-name-exists overwrite");
    const CliRun without = stage->Run(command);
    QVERIFY2(without.exitCode == 1 && without.out.count("[rename: ") == 2, without.out.constData());
    const CliRun with = stage->Run(command + QStringLiteral(" --in-place"));
    QVERIFY2(with.exitCode == 0 && with.out.count("  [replaces the original]\n") == 2, with.out.constData());
    const CliRun json = stage->Run(QStringLiteral("plan photos --format jpeg --in-place --json"));
    QVERIFY2(json.exitCode == 0 && json.out.count("\"result\":\"replace\"") == 2, json.out.constData());
    QVERIFY(!IsReplaced(QStringLiteral("photos/1.jpg")));
}

QTEST_GUILESS_MAIN(tst_CliInPlace)
#include "tst_cliinplace.moc"
