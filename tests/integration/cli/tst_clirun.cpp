// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"
#include "PictureFiles.h"

#include <QDir>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSettings>
#include <QtTest>

/// Whole runs of the real command with the real server, without a terminal.
class tst_CliRun : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void picturesAreWritten();
    void savedJobsAreRun();
    void failuresAreToldAndCounted();
    void damageIsToldInWords();
    void plansTellDamageInWords();
    void warningsAreCounted();
    void policiesAreWords_data();
    void policiesAreWords();
    void nobodyToAskIsSaid();
    void settingsHoldPolicies();
    void quietSaysProblemsOnly();
    void eventsAreJson();
    void reportsListEveryInput();
    void planTellsWhatRunDoes();
    void planMarksTrouble();
    void wrongOptionsEndBeforeAnything_data();
    void wrongOptionsEndBeforeAnything();
    void runsSideBySide();
    void noServer();
    void noTemporaryFolder();
    void settingsWithoutMeaning();
    void nothingIsLeftBehind();
#ifdef Q_OS_UNIX
    void namesStayInTheirLine();
    void lostOutputIsTold_data();
    void lostOutputIsTold();
    void closedChannelsHarmNoFile();
    void readersMayLeave();
    void planLooksAtTheFolder();
#endif

private:
    QString Path(const QString& name) const
    {
        return root->filePath(name);
    }
    QStringList Results() const
    {
        return QDir(Path(QStringLiteral("out"))).entryList(QDir::Files | QDir::Hidden);
    }
    CliRun Run(const QString& arguments) const
    {
        return CliRun::Of(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts), root->path(), environment);
    }
    /// Runs `script` in a shell, with the program in $VELKORA.
    CliRun Shell(const QString& script) const;

    std::unique_ptr<QTemporaryDir> root;
    QProcessEnvironment environment;
};

CliRun tst_CliRun::Shell(const QString& script) const
{
    QProcessEnvironment withProgram = environment;
    withProgram.insert(QStringLiteral("VELKORA"), QStringLiteral(VELKORA_BATCH));
    QProcess process;
    process.setProcessEnvironment(withProgram);
    process.setWorkingDirectory(root->path());
    process.start(QStringLiteral("sh"), {QStringLiteral("-c"), script});
    process.closeWriteChannel();
    CliRun run;
    if (process.waitForFinished(120'000) && process.exitStatus() == QProcess::NormalExit) {
        run.exitCode = process.exitCode();
    }
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

void tst_CliRun::init()
{
    root = std::make_unique<QTemporaryDir>();
    environment = QProcessEnvironment::systemEnvironment();
    QVERIFY(QDir(root->path()).mkpath(QStringLiteral("home")));
    QVERIFY(QDir(root->path()).mkpath(QStringLiteral("tmp")));
    environment.insert(QStringLiteral("HOME"), Path(QStringLiteral("home")));
    environment.remove(QStringLiteral("XDG_CONFIG_HOME"));
    environment.insert(QStringLiteral("TMPDIR"), Path(QStringLiteral("tmp")));
    for (int i = 1; i <= 3; ++i) {
        PictureFiles::WriteJpeg(Path(QStringLiteral("photos/%1.jpg").arg(i)), i);
    }
}

void tst_CliRun::picturesAreWritten()
{
    const CliRun run = Run(QStringLiteral("run photos -o out --size 32 --effect invert --suffix number --format png"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QVERIFY(run.out.isEmpty());
    QCOMPARE(Results(),
             QStringList({QStringLiteral("1001.png"), QStringLiteral("2002.png"), QStringLiteral("3003.png")}));
    QCOMPARE(QImage(Path(QStringLiteral("out/1001.png"))).size(), QSize(32, 24));
    QVERIFY2(run.err.contains("[3/3] "), run.err.constData());
    QVERIFY2(run.err.contains("photos/2.jpg -> "), run.err.constData());
    QVERIFY2(run.err.contains("Written             3"), run.err.constData());
    QVERIFY2(!run.err.contains('\r') && !run.err.contains('\033'), run.err.constData());
}

void tst_CliRun::savedJobsAreRun()
{
    QCOMPARE(Run(QStringLiteral("create job.xml photos -o other --size 32")).exitCode, 0);
    const CliRun run = Run(QStringLiteral("run job.xml -o out --size 16"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(Results().size(), 3);
    QCOMPARE(QImage(Path(QStringLiteral("out/1.jpg"))).width(), 16);
    QVERIFY(!QFile::exists(Path(QStringLiteral("other"))));
}

void tst_CliRun::failuresAreToldAndCounted()
{
    PictureFiles::WriteTruncated(Path(QStringLiteral("photos/2.jpg")));
    const CliRun run = Run(QStringLiteral("run photos -o out"));
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(Results(), QStringList({QStringLiteral("1.jpg"), QStringLiteral("3.jpg")}));
    QVERIFY2(run.err.contains("failed " + Path(QStringLiteral("photos/2.jpg")).toUtf8() + ": "), run.err.constData());
    QVERIFY2(run.err.contains("Failed              1  Error reading file: 1"), run.err.constData());
}

void tst_CliRun::damageIsToldInWords()
{
    const QString bad = Path(QStringLiteral("photos/2.png"));
    PictureFiles::WriteTruncated(bad);
    const QRegularExpression words(QStringLiteral("(?:^|\n)failed %1: the file ends after [0-9]+ % of the picture\n")
                                       .arg(QRegularExpression::escape(bad)));
    const CliRun run = Run(QStringLiteral("run photos -o out"));
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(words.match(run.Err()).hasMatch(), run.err.constData());
    QVERIFY2(!run.err.contains("Png"), run.err.constData());
    // The library's own text is there for those who want it.
    const CliRun verbose = Run(QStringLiteral("run photos -o more --verbose"));
    QVERIFY2(words.match(verbose.Err()).hasMatch(), verbose.err.constData());
    QVERIFY2(verbose.err.contains("\nlog: " + bad.toUtf8() + ": detail: "), verbose.err.constData());
}

void tst_CliRun::plansTellDamageInWords()
{
    const QString bad = Path(QStringLiteral("photos/2.png"));
    PictureFiles::WriteTruncated(bad);
    QVERIFY(QFile::resize(bad, 20));
    const CliRun plan = Run(QStringLiteral("plan photos -o out --name date"));
    QVERIFY2(plan.out.contains("[ask: the file ends before the picture is complete]\n"), plan.out.constData());
    QVERIFY2(!plan.err.contains("Png"), plan.err.constData());
    const CliRun verbose = Run(QStringLiteral("plan photos -o out --name date --verbose"));
    QVERIFY2(verbose.err.contains(bad.toUtf8() + ": detail: "), verbose.err.constData());
}

void tst_CliRun::warningsAreCounted()
{
    const QString pages = Path(QStringLiteral("photos/pages.tif"));
    QVERIFY(QFile::copy(QStringLiteral(PAGES_DATA "/two-pages.tif"), pages));
    QVERIFY(QFile::copy(pages, Path(QStringLiteral("photos/pages2.tif"))));
    const CliRun run = Run(QStringLiteral("run photos -o out --workers 1 --json --report r.json"));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    const QString summary = QStringLiteral("\n2 warnings: 2 \u00d7 only the first page\n"
                                           "    %1: it has 2 pages; only the first is used\n")
                                .arg(pages);
    QVERIFY2(run.Err().endsWith(summary), run.err.constData());
    QCOMPARE(run.out.count("\"event\":\"warning\""), 2);
    QFile report(Path(QStringLiteral("r.json")));
    QVERIFY(report.open(QIODevice::ReadOnly));
    QCOMPARE(report.readAll().count("\"kind\": \"other-pages\""), 2);
    const CliRun strict = Run(QStringLiteral("run photos -o strict --format png --strict"));
    QCOMPARE(strict.exitCode, 1);
    QVERIFY2(strict.err.contains("Written             3") && strict.err.contains("Failed              2"),
             strict.err.constData());
    QCOMPARE(QImage(Path(QStringLiteral("strict/pages.png"))).pixelColor(1, 1), QColor(Qt::red));
}

void tst_CliRun::policiesAreWords_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<int>("exitCode");
    QTest::addColumn<QStringList>("results");
    QTest::addColumn<bool>("isReplaced");
    const QStringList same{QStringLiteral("1.jpg"), QStringLiteral("2.jpg"), QStringLiteral("3.jpg")};
    const QStringList renamed{QStringLiteral("1 (2).jpg"), QStringLiteral("1.jpg"), QStringLiteral("2.jpg"),
                              QStringLiteral("3.jpg")};
    QTest::newRow("skip") << QStringLiteral("skip") << 0 << same << false;
    QTest::newRow("overwrite") << QStringLiteral("overwrite") << 0 << same << true;
    QTest::newRow("rename") << QStringLiteral("Rename") << 0 << renamed << false;
}

void tst_CliRun::policiesAreWords()
{
    QFETCH(QString, word);
    QFETCH(int, exitCode);
    QFETCH(QStringList, results);
    QFETCH(bool, isReplaced);
    QVERIFY(QDir(root->path()).mkdir(QStringLiteral("out")));
    QFile old(Path(QStringLiteral("out/1.jpg")));
    QVERIFY(old.open(QIODevice::WriteOnly));
    QCOMPARE(old.write("old"), 3LL);
    old.close();
    const CliRun run = Run(QStringLiteral("run photos -o out --on-name-exists ") + word);
    QVERIFY2(run.exitCode == exitCode, run.err.constData());
    QCOMPARE(Results(), results);
    QCOMPARE(QFileInfo(Path(QStringLiteral("out/1.jpg"))).size() != 3, isReplaced);
}

void tst_CliRun::nobodyToAskIsSaid()
{
    PictureFiles::WriteJpeg(Path(QStringLiteral("out/1.jpg")), 9);
    const CliRun run = Run(QStringLiteral("run photos -o out --on-input-error stop"));
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.err.contains("nobody could be asked: 1 picture was left out"), run.err.constData());
    QVERIFY2(run.err.contains("--on-name-exists"), run.err.constData());
    QVERIFY2(!run.err.contains("--on-input-error"), run.err.constData());
}

void tst_CliRun::settingsHoldPolicies()
{
    const QString file = Path(QStringLiteral("settings/BatchExceptionPolicy.ini"));
    QVERIFY(QDir(root->path()).mkdir(QStringLiteral("settings")));
    {
        QSettings settings(file, QSettings::IniFormat);
        settings.setValue(QStringLiteral("NamingPolicy"), 2);
    }
    QCOMPARE(Run(QStringLiteral("run photos/1.jpg -o out --settings settings -q")).exitCode, 0);
    QCOMPARE(Run(QStringLiteral("run photos/1.jpg -o out --settings settings -q")).exitCode, 0);
    QCOMPARE(Results(), QStringList({QStringLiteral("1 (2).jpg"), QStringLiteral("1.jpg")}));
    // An option is for its run only.
    QCOMPARE(Run(QStringLiteral("run photos/1.jpg -o out --settings settings -q --on-name-exists skip")).exitCode, 0);
    QCOMPARE(QSettings(file, QSettings::IniFormat).value(QStringLiteral("NamingPolicy")).toInt(), 2);
    QVERIFY(QDir(Path(QStringLiteral("home"))).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
}

void tst_CliRun::quietSaysProblemsOnly()
{
    const CliRun good = Run(QStringLiteral("run photos -o out -q"));
    QCOMPARE(good.exitCode, 0);
    QVERIFY2(good.err.isEmpty(), good.err.constData());
    PictureFiles::WriteTruncated(Path(QStringLiteral("photos/2.jpg")));
    const CliRun bad = Run(QStringLiteral("run photos/2.jpg -o out2 -q"));
    QCOMPARE(bad.exitCode, 1);
    QCOMPARE(bad.err.count('\n'), 1);
    QVERIFY2(bad.err.startsWith("failed "), bad.err.constData());
}

void tst_CliRun::eventsAreJson()
{
    PictureFiles::WriteTruncated(Path(QStringLiteral("photos/2.jpg")));
    const CliRun run = Run(QStringLiteral("run photos -o out --json"));
    QCOMPARE(run.exitCode, 1);
    QHash<QString, int> counts;
    QVector<QJsonObject> events;
    for (const QByteArray& line : run.out.trimmed().split('\n')) {
        QJsonParseError error;
        const QJsonDocument document = QJsonDocument::fromJson(line, &error);
        QVERIFY2(error.error == QJsonParseError::NoError && document.isObject(), line.constData());
        events.append(document.object());
        ++counts[events.last().value(QStringLiteral("event")).toString()];
    }
    QCOMPARE(events.first().value(QStringLiteral("event")).toString(), QStringLiteral("start"));
    QCOMPARE(events.first().value(QStringLiteral("version")).toInt(), 1);
    QCOMPARE(events.first().value(QStringLiteral("files")).toInt(), 3);
    QCOMPARE(counts.value(QStringLiteral("begin")), 3);
    QCOMPARE(counts.value(QStringLiteral("written")), 2);
    QCOMPARE(counts.value(QStringLiteral("failed")), 1);
    const QJsonObject end = events.last();
    QCOMPARE(end.value(QStringLiteral("event")).toString(), QStringLiteral("end"));
    QCOMPARE(end.value(QStringLiteral("written")).toInt(), 2);
    QCOMPARE(end.value(QStringLiteral("failed")).toInt(), 1);
    QCOMPARE(end.value(QStringLiteral("notProcessed")).toInt(), 0);
    for (const QJsonObject& event : qAsConst(events)) {
        if (event.value(QStringLiteral("event")).toString() == QLatin1String("failed")) {
            QCOMPARE(event.value(QStringLiteral("code")).toInt(), 2);
            QCOMPARE(event.value(QStringLiteral("input")).toString(), Path(QStringLiteral("photos/2.jpg")));
            QVERIFY(!event.value(QStringLiteral("reason")).toString().isEmpty());
        }
    }
}

void tst_CliRun::reportsListEveryInput()
{
#ifdef Q_OS_WIN
    QSKIP("Names cannot hold quotation marks there.");
#endif
    const QString odd = QStringLiteral("photos/a \"quoted\", name.jpg");
    PictureFiles::WriteJpeg(Path(odd));
    PictureFiles::WriteTruncated(Path(QStringLiteral("photos/2.jpg")));
    QCOMPARE(Run(QStringLiteral("run photos -o out --report r.csv -q")).exitCode, 1);
    QCOMPARE(Run(QStringLiteral("run photos -o out2 --report r.JSON -q")).exitCode, 1);

    QFile csv(Path(QStringLiteral("r.csv")));
    QVERIFY(csv.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = csv.readAll().split('\n');
    QCOMPARE(lines.size(), 6);
    QCOMPARE(lines[0],
             QByteArray("input,output,result,code,reason,warnings,inputWidth,inputHeight,inputBytes,width,height,"
                        "bytes,quality,seconds,finished\r"));
    QVERIFY2(lines[1].contains("/out/1.jpg\",\"written\",0,\"\",\"\",64,48,"), lines[1].constData());
    QVERIFY2(lines[2].contains(",\"failed\",2,\""), lines[2].constData());
    QVERIFY2(lines[4].contains("/a \"\"quoted\"\", name.jpg\","), lines[4].constData());

    QFile json(Path(QStringLiteral("r.JSON")));
    QVERIFY(json.open(QIODevice::ReadOnly));
    const QJsonArray entries = QJsonDocument::fromJson(json.readAll()).array();
    QCOMPARE(entries.size(), 4);
    QCOMPARE(entries[1].toObject().value(QStringLiteral("result")).toString(), QStringLiteral("failed"));
    QCOMPARE(entries[3].toObject().value(QStringLiteral("input")).toString(), Path(odd));
}

void tst_CliRun::planTellsWhatRunDoes()
{
    for (int i = 1; i <= 3; ++i) {
        PictureFiles::WriteJpeg(Path(QStringLiteral("more/%1.jpg").arg(i)), 10 + i);
    }
    for (const char* options : {"--structure input", "--name date --suffix number:9:2", "--on-name-exists rename",
                                "--structure date --name time --on-name-exists rename"}) {
        QVERIFY(QDir(Path(QStringLiteral("out"))).removeRecursively());
        const QString arguments = QStringLiteral(" photos more -o out --json -q ") + QLatin1String(options);
        const CliRun plan = Run(QStringLiteral("plan") + arguments);
        QVERIFY(!QFile::exists(Path(QStringLiteral("out"))));
        QHash<QString, QString> planned;
        for (const QByteArray& line : plan.out.trimmed().split('\n')) {
            const QJsonObject pair = QJsonDocument::fromJson(line).object();
            planned.insert(pair.value(QStringLiteral("input")).toString(),
                           pair.value(QStringLiteral("output")).toString());
        }
        QCOMPARE(planned.size(), 6);
        const CliRun run = Run(QStringLiteral("run") + arguments);
        QVERIFY2(run.exitCode == 0, run.err.constData());
        int written = 0;
        for (const QByteArray& line : run.out.trimmed().split('\n')) {
            const QJsonObject event = QJsonDocument::fromJson(line).object();
            if (event.value(QStringLiteral("event")).toString() == QLatin1String("written")) {
                ++written;
                QCOMPARE(event.value(QStringLiteral("output")).toString(),
                         planned.value(event.value(QStringLiteral("input")).toString()));
                QVERIFY(QFile::exists(event.value(QStringLiteral("output")).toString()));
            }
        }
        QCOMPARE(written, 6);
    }
}

void tst_CliRun::planMarksTrouble()
{
    PictureFiles::WriteJpeg(Path(QStringLiteral("more/1.jpg")), 10);
    PictureFiles::WriteJpeg(Path(QStringLiteral("out/3.jpg")), 10);
    const CliRun plan = Run(QStringLiteral("plan photos more -o out --on-name-exists skip"));
    QCOMPARE(plan.exitCode, 1);
    QVERIFY2(plan.out.contains("[skip: \"" + Path(QStringLiteral("out/1.jpg")).toUtf8() + "\" is the result of \""),
             plan.out.constData());
    QVERIFY2(plan.out.contains("[skip: \"" + Path(QStringLiteral("out/3.jpg")).toUtf8() + "\" exists already]"),
             plan.out.constData());
    QCOMPARE(plan.out.count('['), 2);
    QVERIFY(plan.err.contains("Nothing was written."));
    const CliRun source = Run(QStringLiteral("plan photos -o photos"));
    QCOMPARE(source.out.count("is a source of this job]"), 3);
}

void tst_CliRun::wrongOptionsEndBeforeAnything_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* arguments, const char* wanted) {
        QTest::newRow(arguments) << QString::fromLatin1(arguments) << QString::fromLatin1(wanted);
    };
    row("run photos", "no output folder: use --output DIR");
    row("run -o out", "no inputs: name files");
    row("run nothing.xml -o out", "nothing.xml cannot be read");
    row("run photos -o out --on-name-exists replace", "is not one of skip, overwrite, rename, ask");
    row("run photos -o out --on-input-error skpi", "did you mean \"skip\"?");
    row("run photos -o out --workers 0", "--workers: \"0\" is not a whole number from 1 to 256");
    row("run photos -o out --workers many", "from 1 to 256");
    row("run photos -o out --report r.txt", "must end with .csv or .json");
    row("run photos -o out --report nowhere/r.csv", "nowhere/r.csv cannot be written");
    row("run photos -o out --effect blurr", "did you mean \"blur\"?");
    row("run photos -o out --resum", "unknown option --resum");
    row("run photos -o out --settings photos/1.jpg", "photos/1.jpg is not a folder");
    row("plan photos", "no output folder: use --output DIR");
    row("plan photos -o out --workers 2", "unknown option --workers");
}

void tst_CliRun::wrongOptionsEndBeforeAnything()
{
    QFETCH(QString, arguments);
    QFETCH(QString, wanted);
    const CliRun run = Run(arguments);
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(wanted), run.err.constData());
    QVERIFY(run.out.isEmpty());
    QVERIFY(!QFile::exists(Path(QStringLiteral("out"))));
}

void tst_CliRun::runsSideBySide()
{
#ifdef Q_OS_WIN
    QSKIP("The pipe belongs to the machine there.");
#endif
    constexpr int count = 3;
    std::array<QProcess, count> processes;
    for (int i = 0; i < count; ++i) {
        QProcess& process = processes[std::size_t(i)];
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(root->path());
        process.start(QStringLiteral(VELKORA_BATCH), {QStringLiteral("run"), QStringLiteral("photos"),
                                                      QStringLiteral("-o"), QStringLiteral("out%1").arg(i)});
    }
    for (int i = 0; i < count; ++i) {
        QProcess& process = processes[std::size_t(i)];
        QVERIFY(process.waitForFinished(120'000));
        QCOMPARE(process.exitCode(), 0);
        QCOMPARE(QDir(Path(QStringLiteral("out%1").arg(i))).entryList(QDir::Files).size(), 3);
    }
}

void tst_CliRun::noServer()
{
    const QString lonely = Path(QStringLiteral("lonely"));
    QVERIFY(QFile::copy(QStringLiteral(VELKORA_BATCH), lonely));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(root->path());
    process.start(lonely, {QStringLiteral("run"), QStringLiteral("photos"), QStringLiteral("-oout")});
    QVERIFY(process.waitForFinished(120'000));
    QCOMPARE(process.exitCode(), 3);
    const QByteArray err = process.readAllStandardError();
    QVERIFY2(err.contains("the server cannot be started; VelkoraBatchProcessing belongs beside "), err.constData());
}

void tst_CliRun::noTemporaryFolder()
{
#ifdef Q_OS_WIN
    QSKIP("Every user has a temporary folder there.");
#endif
    environment.insert(QStringLiteral("TMPDIR"), QStringLiteral("/proc"));
    const CliRun run = Run(QStringLiteral("run photos -o out"));
    QCOMPARE(run.exitCode, 3);
    QVERIFY2(run.err.contains("no temporary folder can be made: "), run.err.constData());
    QVERIFY2(run.err.contains("TMPDIR"), run.err.constData());
    QVERIFY(Results().isEmpty());
}

void tst_CliRun::settingsWithoutMeaning()
{
    QVERIFY(QDir(root->path()).mkdir(QStringLiteral("settings")));
    QSettings settings(Path(QStringLiteral("settings/BatchExceptionPolicy.ini")), QSettings::IniFormat);
    settings.setValue(QStringLiteral("NamingPolicy"), 9);
    settings.sync();
    const CliRun wrong = Run(QStringLiteral("run photos -o out --settings settings"));
    QCOMPARE(wrong.exitCode, 2);
    QVERIFY2(wrong.err.contains("settings/BatchExceptionPolicy.ini holds the value 9"), wrong.err.constData());
    QVERIFY2(wrong.err.contains("--on-name-exists"), wrong.err.constData());
    QVERIFY(Results().isEmpty());
    const CliRun right = Run(QStringLiteral("run photos -o out --settings settings --on-name-exists skip"));
    QVERIFY2(right.exitCode == 0, right.err.constData());
}

void tst_CliRun::nothingIsLeftBehind()
{
    QCOMPARE(Run(QStringLiteral("run photos -o out")).exitCode, 0);
    QVERIFY(QDir(Path(QStringLiteral("tmp"))).isEmpty(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot));
    QCOMPARE(Results().size(), 3);
}

#ifdef Q_OS_UNIX

void tst_CliRun::namesStayInTheirLine()
{
    PictureFiles::WriteJpeg(Path(QStringLiteral("odd/a\nb%1.jpg")));
    PictureFiles::WriteJpeg(Path(QStringLiteral("odd/\x7F.jpg")));
    PictureFiles::WriteJpeg(Path(QStringLiteral("odd/bell\a.jpg")));
    PictureFiles::WriteTruncated(Path(QStringLiteral("odd/\xC2\x9B.jpg")));
    const CliRun plan = Run(QStringLiteral("plan odd -o out"));
    QCOMPARE(plan.out.count('\n'), 4);
    QVERIFY2(plan.out.contains("/odd/a\\x0ab%1.jpg -> "), plan.out.constData());
    const CliRun show = Run(QStringLiteral("show odd -o out"));
    QVERIFY2(show.out.contains("    a\\x0ab%1.jpg\n"), show.out.constData());
    const CliRun run = Run(QStringLiteral("run odd -o out -q"));
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(run.err.count('\n'), 1);
    QCOMPARE(Results().size(), 3);
    const CliRun told = Run(QStringLiteral("run odd -o out2"));
    QVERIFY2(told.err.contains("/odd/a\\x0ab%1.jpg -> "), told.err.constData());
    QVERIFY2(told.err.contains("/odd/\\x7f.jpg -> "), told.err.constData());
    QVERIFY2(told.err.contains("/odd/bell\\x07.jpg -> "), told.err.constData());
}

void tst_CliRun::lostOutputIsTold_data()
{
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("channel");
    QTest::addColumn<QByteArray>("reason");
    const auto row = [](const char* arguments) {
        const QString text = QString::fromLatin1(arguments);
        QTest::newRow(qPrintable(QStringLiteral("full: ") + text))
            << text << QStringLiteral(">/dev/full") << QByteArray("No space left on device");
        QTest::newRow(qPrintable(QStringLiteral("closed: ") + text))
            << text << QStringLiteral(">&-") << QByteArray("Bad file descriptor");
    };
    row("--version");
    row("run --help");
    row("effects");
    row("formats --json");
    row("show photos");
    row("plan photos -o x");
    row("create - photos -o x");
    row("run photos -o out --json");
}

void tst_CliRun::lostOutputIsTold()
{
    QFETCH(QString, arguments);
    QFETCH(QString, channel);
    QFETCH(QByteArray, reason);
    const CliRun run = Shell(QStringLiteral("\"$VELKORA\" %1 %2").arg(arguments, channel));
    QCOMPARE(run.exitCode, 1);
    QVERIFY2(run.err.contains("velkora-batch: standard output cannot be written: " + reason), run.err.constData());
    // The pictures are written nevertheless.
    QCOMPARE(Results().size(), arguments.startsWith(QLatin1String("run photos")) ? 3 : 0);
}

// Output to a closed channel must not end up in a file that was opened in its place.
void tst_CliRun::closedChannelsHarmNoFile()
{
    const CliRun run =
        Shell(QStringLiteral("\"$VELKORA\" run photos -o out --verbose --json --report r.json <&- >&- 2>&-"));
    QCOMPARE(run.exitCode, 1);
    QCOMPARE(Results().size(), 3);
    QFile report(Path(QStringLiteral("r.json")));
    QVERIFY(report.open(QIODevice::ReadOnly));
    QJsonParseError error;
    QCOMPARE(QJsonDocument::fromJson(report.readAll(), &error).array().size(), 3);
    QCOMPARE(error.error, QJsonParseError::NoError);
}

void tst_CliRun::readersMayLeave()
{
    const CliRun events =
        Shell(QStringLiteral("{ \"$VELKORA\" run photos -o out --json; echo \"ends with $?\" >&2; } | head -n 1"));
    QCOMPARE(events.out.count('\n'), 1);
    QVERIFY2(events.err.contains("ends with 1"), events.err.constData());
    QVERIFY2(events.err.contains("standard output cannot be written: Broken pipe"), events.err.constData());
    QCOMPARE(Results().size(), 3);
    const CliRun none = Shell(QStringLiteral(
        "{ exec 3>&1; \"$VELKORA\" run photos -o out1 --json >&3; echo \"ends with $?\" >&2; } | exec <&- sleep 0"));
    QVERIFY2(none.err.contains("ends with 1"), none.err.constData());
    // A closed standard error does not matter.
    const CliRun lines = Shell(QStringLiteral(
        "{ \"$VELKORA\" run photos -o out2; echo \"ends with $?\" >&3; } 3>&1 2>&1 >/dev/null | head -n 1"));
    QVERIFY2(lines.out.contains("ends with 0") || lines.out.count('\n') == 1, lines.out.constData());
    QCOMPARE(QDir(Path(QStringLiteral("out2"))).entryList(QDir::Files | QDir::Hidden).size(), 3);
}

void tst_CliRun::planLooksAtTheFolder()
{
    const CliRun file = Run(QStringLiteral("plan photos -o photos/1.jpg/below"));
    QCOMPARE(file.exitCode, 1);
    QVERIFY2(file.out.count("photos/1.jpg is not a folder]") == 3, file.out.constData());
    const CliRun good = Run(QStringLiteral("plan photos -o photos/below/further"));
    QCOMPARE(good.exitCode, 0);
}

#endif

QTEST_GUILESS_MAIN(tst_CliRun)
#include "tst_clirun.moc"
