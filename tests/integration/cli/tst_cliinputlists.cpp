// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CliRun.h"
#ifdef Q_OS_UNIX
#include "PseudoTerminal.h"
#endif

#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

/// Inputs that are not named one by one: lists in files and on standard input, and names with wildcards.
class tst_CliInputLists : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void listsAreRead_data();
    void listsAreRead();
    void listsStartAtTheCurrentFolder();
    void listsJoinOtherInputs();
    void standardInputIsRead();
    void everyCommandOfJobsTakesLists();
    void wrongListsAreExplained_data();
    void wrongListsAreExplained();
    void hugeListsAreRefused();
    void terminalsAreNoLists();
    void wildcardsAreExpanded_data();
    void wildcardsAreExpanded();
    void realNamesWin();
    void resultsAreNoInputs();
    void hiddenNamesOnDemand();
    void listsHoldNoWildcards();
    void wildcardsWithoutMatchAreRefused_data();
    void wildcardsWithoutMatchAreRefused();
    void loopsOfLinksAreNotFollowed();
    void filtersTakeWildcards_data();
    void filtersTakeWildcards();

private:
    QString Path(const QString& name) const { return root->filePath(name); }
    void Write(const QString& name, const QByteArray& content = QByteArray()) const;
    CliRun Run(const QStringList& arguments, const QByteArray& input = QByteArray()) const;
    QStringList InputsOf(const CliRun& run) const;

    std::unique_ptr<QTemporaryDir> root;
};

void tst_CliInputLists::init()
{
    root = std::make_unique<QTemporaryDir>();
    for (const char* name :
         {"photos/1.jpg", "photos/2.png", "photos/notes.txt", "photos/.secret.jpg", "photos/2023/a.JPG",
          "photos/2023/b.nef", "photos/2024/june/c.jpg", "photos/2024/june/raw/d.nef", "photos/2024/e.cr2",
          "photos/.hidden/f.jpg", "other/g.jpg", "other/with blank.jpg"}) {
        Write(QString::fromLatin1(name), "\xFF\xD8\xFF\xE0"); // JPEG, which plans see without a worker.
    }
}

void tst_CliInputLists::Write(const QString& name, const QByteArray& content) const
{
    QVERIFY(QDir().mkpath(QFileInfo(Path(name)).path()));
    QFile file(Path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

CliRun tst_CliInputLists::Run(const QStringList& arguments, const QByteArray& input) const
{
    QProcess process;
    process.setWorkingDirectory(root->path());
    process.start(QStringLiteral(VELKORA_BATCH), arguments);
    process.write(input);
    process.closeWriteChannel();
    CliRun run;
    constexpr int limit = 60'000;
    if (process.waitForFinished(limit) && process.exitStatus() == QProcess::NormalExit) {
        run.exitCode = process.exitCode();
    }
    run.out = process.readAllStandardOutput();
    run.err = process.readAllStandardError();
    return run;
}

/// The files in the job that was written to standard output, relative to the root, sorted.
QStringList tst_CliInputLists::InputsOf(const CliRun& run) const
{
    static const QRegularExpression element(QStringLiteral("<inputElement[^>]*?fileName=\"([^\"]*)\"[^>]*>"));
    QStringList names;
    auto found = element.globalMatch(QString::fromUtf8(run.out));
    while (found.hasNext()) {
        const QString path = found.next().captured(1);
        if (!QFileInfo(path).isDir()) {
            names.append(
                QDir(QDir(root->path()).canonicalPath()).relativeFilePath(QFileInfo(path).canonicalFilePath()));
        }
    }
    names.sort();
    return names;
}

void tst_CliInputLists::listsAreRead_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<bool>("isNull");
    QTest::addColumn<QStringList>("wanted");
    const QStringList two{QStringLiteral("other/g.jpg"), QStringLiteral("photos/1.jpg")};
    QTest::newRow("lines") << QByteArray("photos/1.jpg\nother/g.jpg\n") << false << two;
    QTest::newRow("no line end at the end") << QByteArray("photos/1.jpg\nother/g.jpg") << false << two;
    QTest::newRow("line ends of Windows") << QByteArray("photos/1.jpg\r\nother/g.jpg\r\n") << false << two;
    QTest::newRow("empty lines") << QByteArray("\n\nphotos/1.jpg\n\r\n\nother/g.jpg\n\n") << false << two;
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBFphotos/1.jpg\nother/g.jpg\n") << false << two;
    QTest::newRow("a file twice") << QByteArray("photos/1.jpg\nother/g.jpg\nphotos/1.jpg\n") << false << two;
    QTest::newRow("blank in a name") << QByteArray("other/with blank.jpg\n") << false
                                     << QStringList{QStringLiteral("other/with blank.jpg")};
    QTest::newRow("a folder") << QByteArray("other\n") << false
                              << QStringList{QStringLiteral("other/g.jpg"), QStringLiteral("other/with blank.jpg")};
    QTest::newRow("NUL") << QByteArray("photos/1.jpg\0other/g.jpg\0", 25) << true << two;
    QTest::newRow("NUL, none at the end") << QByteArray("photos/1.jpg\0other/g.jpg", 24) << true << two;
    QTest::newRow("hyphen first") << QByteArray("-o\n") << false << QStringList{QStringLiteral("-o")};
}

void tst_CliInputLists::listsAreRead()
{
    QFETCH(QByteArray, list);
    QFETCH(bool, isNull);
    QFETCH(QStringList, wanted);
    Write(QStringLiteral("-o"));
    Write(QStringLiteral("list"), list);
    QStringList arguments{QStringLiteral("create"), QStringLiteral("-"), QStringLiteral("-oout"),
                          QStringLiteral("--files-from"), QStringLiteral("list")};
    if (isNull) {
        arguments.append(QStringLiteral("-0"));
    }
    const CliRun run = Run(arguments);
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(InputsOf(run), wanted);
}

void tst_CliInputLists::listsStartAtTheCurrentFolder()
{
    Write(QStringLiteral("other/list"), "photos/1.jpg\n" + QFile::encodeName(Path(QStringLiteral("other/g.jpg"))));
    const CliRun run = Run({QStringLiteral("create"), QStringLiteral("-"), QStringLiteral("-oout"),
                            QStringLiteral("--files-from=other/list")});
    QCOMPARE(InputsOf(run), QStringList({QStringLiteral("other/g.jpg"), QStringLiteral("photos/1.jpg")}));
}

void tst_CliInputLists::listsJoinOtherInputs()
{
    Write(QStringLiteral("list"), "photos/1.jpg\n");
    const CliRun run = Run({QStringLiteral("create"), QStringLiteral("-"), QStringLiteral("photos/2.png"),
                            QStringLiteral("-oout"), QStringLiteral("--files-from"), QStringLiteral("list")});
    QCOMPARE(InputsOf(run), QStringList({QStringLiteral("photos/1.jpg"), QStringLiteral("photos/2.png")}));
}

void tst_CliInputLists::standardInputIsRead()
{
    const QStringList arguments{QStringLiteral("create"), QStringLiteral("-"), QStringLiteral("-oout"),
                                QStringLiteral("--files-from"), QStringLiteral("-")};
    QCOMPARE(InputsOf(Run(arguments, "photos/1.jpg\nother/g.jpg\n")),
             QStringList({QStringLiteral("other/g.jpg"), QStringLiteral("photos/1.jpg")}));
    QCOMPARE(InputsOf(Run(arguments + QStringList{QStringLiteral("--null")}, QByteArray("photos/1.jpg\0", 13))),
             QStringList{QStringLiteral("photos/1.jpg")});
}

void tst_CliInputLists::everyCommandOfJobsTakesLists()
{
    for (const char* command : {"show", "plan", "run -n"}) {
        const CliRun run = Run(QString::fromLatin1(command).split(QLatin1Char(' ')) +
                                   QStringList{QStringLiteral("-oout"), QStringLiteral("--files-from=-")},
                               "photos/1.jpg\n");
        QVERIFY2(run.out.contains("1.jpg"), run.err.constData());
    }
}

void tst_CliInputLists::wrongListsAreExplained_data()
{
    QTest::addColumn<QByteArray>("list");
    QTest::addColumn<QString>("arguments");
    QTest::addColumn<QString>("wanted");
    const QByteArray none;
    QTest::newRow("missing list") << none << "--files-from nowhere"
                                  << "nowhere cannot be read";
    QTest::newRow("folder as list") << none << "--files-from photos"
                                    << "photos cannot be read";
    QTest::newRow("empty name of the list") << none << "--files-from="
                                            << "--files-from: 1 required FILE missing";
    QTest::newRow("missing file") << QByteArray("photos/1.jpg\n\nlost.jpg\ngone.jpg\n") << "--files-from list"
                                  << "list, line 3: ";
    QTest::newRow("missing files are counted")
        << QByteArray("photos/1.jpg\nlost.jpg\ngone.jpg\n") << "--files-from list"
        << "lost.jpg does not exist (and 1 more)";
    QTest::newRow("missing file, by NUL") << QByteArray("photos/1.jpg\0lost.jpg\0", 22) << "--files-from list -0"
                                          << "list, name 2: ";
    QTest::newRow("not UTF-8") << QByteArray("photos/1.jpg\nphotos/caf\xE9.jpg\n") << "--files-from list"
                               << "list, line 2: \"photos/caf\\xe9.jpg\" is not valid UTF-8";
    QTest::newRow("another encoding") << QByteArray("\xFF\xFEp\0h\0", 6) << "--files-from list"
                                      << "list is UTF-16 text; save it as UTF-8";
    QTest::newRow("NUL without -0") << QByteArray("photos/1.jpg\0other/g.jpg\0", 25) << "--files-from list"
                                    << "use -0";
    QTest::newRow("lines with -0") << QByteArray("photos/1.jpg\nother/g.jpg\n") << "--files-from list -0"
                                   << "without -0";
    QTest::newRow("a character no job holds") << QByteArray("photos/\xEF\xBF\xBE.jpg\n") << "--files-from list"
                                              << "list, line 1: ";
    QTest::newRow("-0 alone") << none << "photos -0"
                              << "--null needs --files-from";
    QTest::newRow("two lists") << QByteArray("photos/1.jpg\n") << "--files-from list --files-from list"
                               << "--files-from is given 2 times";
    QTest::newRow("hyphen without option") << none << "-"
                                           << "use --files-from -";
    QTest::newRow("empty list") << none << "--files-from list"
                                << "no pictures";
}

void tst_CliInputLists::wrongListsAreExplained()
{
    QFETCH(QByteArray, list);
    QFETCH(QString, arguments);
    QFETCH(QString, wanted);
    Write(QStringLiteral("list"), list);
    const CliRun run = Run(QStringList{QStringLiteral("create"), QStringLiteral("a.xml"), QStringLiteral("-oout")} +
                           arguments.split(QLatin1Char(' ')));
    QVERIFY(run.exitCode > 0);
    QVERIFY2(run.Err().contains(wanted), run.err.constData());
    QVERIFY(!QFile::exists(Path(QStringLiteral("a.xml"))));
}

void tst_CliInputLists::hugeListsAreRefused()
{
    QFile file(Path(QStringLiteral("list")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(file.resize(qint64(65) << 20)); // Sparse.
    file.close();
    const CliRun run = Run({QStringLiteral("show"), QStringLiteral("--files-from"), QStringLiteral("list")});
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(QStringLiteral("list is larger than 64 MiB")), run.err.constData());
}

void tst_CliInputLists::terminalsAreNoLists()
{
#ifdef Q_OS_UNIX
    PseudoTerminal terminal(QStringLiteral(VELKORA_BATCH), {QStringLiteral("show"), QStringLiteral("--files-from=-")});
    QCOMPARE(terminal.ExitCode(), 2);
    QVERIFY2(terminal.Output().contains("standard input is a terminal"), terminal.Output().constData());
#else
    QSKIP("A console would be needed.");
#endif
}

void tst_CliInputLists::wildcardsAreExpanded_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* pattern, const char* wanted) {
        QTest::newRow(pattern) << QString::fromLatin1(pattern) << QString::fromLatin1(wanted);
    };
    row("photos/*.jpg", "photos/1.jpg");
    row("photos/*.{jpg,png}", "photos/1.jpg photos/2.png");
    row("photos/?.*", "photos/1.jpg photos/2.png");
    row("photos/[2-9].*", "photos/2.png");
    row("photos/[!2].*", "photos/1.jpg");
    row("{photos,other}/[1g].jpg", "other/g.jpg photos/1.jpg");
    row("photos/**/*.nef", "photos/2023/b.nef photos/2024/june/raw/d.nef");
    row("photos/**/*.{nef,cr2}", "photos/2023/b.nef photos/2024/e.cr2 photos/2024/june/raw/d.nef");
    row("photos/**/june/*.jpg", "photos/2024/june/c.jpg");
    row("photos/202?/*.*", "photos/2023/a.JPG photos/2023/b.nef photos/2024/e.cr2");
    row("photos/{2023/a,2024/june/c}.*", "photos/2023/a.JPG photos/2024/june/c.jpg");
    row("photos/202[34]", "photos/2023/a.JPG photos/2023/b.nef photos/2024/e.cr2 photos/2024/june/c.jpg "
                          "photos/2024/june/raw/d.nef");
    row("**/*.png", "photos/2.png");
    row("./**/g.jpg", "other/g.jpg");
    row("photos/.s*.jpg", "photos/.secret.jpg");
    row("photos/2024/**", "photos/2024/e.cr2 photos/2024/june/c.jpg photos/2024/june/raw/d.nef");
    row("photos/*.{jpg,{p,t}*}", "photos/1.jpg photos/2.png photos/notes.txt"); // The pattern decides.
}

void tst_CliInputLists::wildcardsAreExpanded()
{
    QFETCH(QString, pattern);
    QFETCH(QString, wanted);
    const CliRun run = Run({QStringLiteral("create"), QStringLiteral("-"), QStringLiteral("-oout"), pattern});
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(InputsOf(run).join(QLatin1Char(' ')), wanted);
    QCOMPARE(run.Err(), QString());
}

void tst_CliInputLists::realNamesWin()
{
#ifdef Q_OS_WIN
    QSKIP("Windows refuses such names.");
#endif
    Write(QStringLiteral("photos/*.jpg"));
    Write(QStringLiteral("photos/{1,2}.jpg"));
    for (const char* name : {"photos/*.jpg", "photos/{1,2}.jpg"}) {
        const CliRun run =
            Run({QStringLiteral("create"), QStringLiteral("-"), QStringLiteral("-oout"), QString::fromLatin1(name)});
        QCOMPARE(InputsOf(run), QStringList{QString::fromLatin1(name)});
    }
}

void tst_CliInputLists::resultsAreNoInputs()
{
    Write(QStringLiteral("photos/out/1.jpg"));
    for (const char* pattern : {"photos/**/1.jpg", "photos/{1,*/1}.jpg"}) {
        const CliRun run = Run({QStringLiteral("create"), QStringLiteral("-"), QStringLiteral("-ophotos/out"),
                                QString::fromLatin1(pattern)});
        QCOMPARE(InputsOf(run), QStringList{QStringLiteral("photos/1.jpg")});
    }
}

void tst_CliInputLists::hiddenNamesOnDemand()
{
    const CliRun run = Run({QStringLiteral("create"), QStringLiteral("-"), QStringLiteral("-oout"),
                            QStringLiteral("--hidden"), QStringLiteral("photos/{**/f,*}.jpg")});
    QCOMPARE(InputsOf(run), QStringList({QStringLiteral("photos/.hidden/f.jpg"), QStringLiteral("photos/.secret.jpg"),
                                         QStringLiteral("photos/1.jpg")}));
}

void tst_CliInputLists::listsHoldNoWildcards()
{
    const CliRun run =
        Run({QStringLiteral("create"), QStringLiteral("-"), QStringLiteral("-oout"), QStringLiteral("--files-from=-")},
            "photos/*.jpg\n");
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(QStringLiteral("photos/*.jpg does not exist")), run.err.constData());
}

void tst_CliInputLists::wildcardsWithoutMatchAreRefused_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* pattern, const char* wanted) {
        QTest::newRow(pattern) << QString::fromLatin1(pattern) << QString::fromLatin1(wanted);
    };
    row("photos/*.gif", "photos/*.gif matches no file");
    row("nowhere/*.jpg", "nowhere/*.jpg matches no file");
    row("photos/{1,2.jpg", "does not exist"); // An open brace is no pattern.
    row("photos/{1}.jpg", "does not exist");
    row("photos/[1.jpg", "does not exist");
    row("photos/*/../1.gif", "matches no file");
}

void tst_CliInputLists::wildcardsWithoutMatchAreRefused()
{
    QFETCH(QString, pattern);
    QFETCH(QString, wanted);
    const CliRun run = Run({QStringLiteral("create"), QStringLiteral("-"), QStringLiteral("-oout"), pattern});
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.Err().contains(wanted), run.err.constData());
    QVERIFY(run.out.isEmpty());
}

void tst_CliInputLists::loopsOfLinksAreNotFollowed()
{
#ifdef Q_OS_WIN
    QSKIP("A link that Qt makes there is an ordinary file unless its name ends with .lnk.");
#endif
    QVERIFY(QFile::link(Path(QStringLiteral("photos")), Path(QStringLiteral("photos/2024/back"))));
    const CliRun run = Run(
        {QStringLiteral("create"), QStringLiteral("-"), QStringLiteral("-oout"), QStringLiteral("photos/**/*.cr2")});
    QCOMPARE(InputsOf(run), QStringList{QStringLiteral("photos/2024/e.cr2")});
    // A pattern of braces cannot grow without bounds.
    QString braces = QStringLiteral("photos/");
    for (int i = 0; i < 30; ++i) {
        braces += QStringLiteral("{a,b}");
    }
    const CliRun many = Run({QStringLiteral("create"), QStringLiteral("-"), QStringLiteral("-oout"), braces});
    QCOMPARE(many.exitCode, 2);
    QVERIFY2(many.Err().contains(QStringLiteral("more than 1000")), many.err.constData());
}

void tst_CliInputLists::filtersTakeWildcards_data()
{
    QTest::addColumn<QString>("options");
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char* options, const char* wanted) {
        QTest::newRow(options) << QString::fromLatin1(options) << QString::fromLatin1(wanted);
    };
    row("--include *.png", "photos/2.png");
    row("--include *.{nef,cr2}", "photos/2023/b.nef photos/2024/e.cr2 photos/2024/june/raw/d.nef");
    row("--include 2024/**/*.jpg", "photos/2024/june/c.jpg");
    row("--include **/june/**", "photos/2024/june/c.jpg photos/2024/june/raw/d.nef");
    row("--include */*.jpg", "photos/2023/a.JPG");
    row("--include *.JPG", "photos/1.jpg photos/2023/a.JPG photos/2024/june/c.jpg");
    row("--exclude 2024", "photos/1.jpg photos/2.png photos/2023/a.JPG photos/2023/b.nef");
    row("--exclude 2024/june", "photos/1.jpg photos/2.png photos/2023/a.JPG photos/2023/b.nef photos/2024/e.cr2");
    row("--exclude **/raw --exclude *.{png,jpg}", "photos/2023/b.nef photos/2024/e.cr2");
    row("--exclude 202[!4]/*.nef",
        "photos/1.jpg photos/2.png photos/2023/a.JPG photos/2024/e.cr2 photos/2024/june/c.jpg "
        "photos/2024/june/raw/d.nef");
    row("--include [12].* --exclude 1.{jpg", "photos/1.jpg photos/2.png");
}

void tst_CliInputLists::filtersTakeWildcards()
{
    QFETCH(QString, options);
    QFETCH(QString, wanted);
    const CliRun run = Run(
        QStringList{QStringLiteral("create"), QStringLiteral("-"), QStringLiteral("-oout"), QStringLiteral("photos")} +
        options.split(QLatin1Char(' ')));
    QVERIFY2(run.exitCode == 0, run.err.constData());
    QCOMPARE(InputsOf(run).join(QLatin1Char(' ')), wanted);
}

QTEST_GUILESS_MAIN(tst_CliInputLists)
#include "tst_cliinputlists.moc"
