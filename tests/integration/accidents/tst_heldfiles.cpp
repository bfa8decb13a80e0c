// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "AccidentStage.h"
#include "PictureFiles.h"

#include <QtTest>

#include <qt_windows.h>

/// Files that another program has open, as Windows lets it: others may not even read them.
class tst_HeldFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void results_data();
    void results();
    void resultsThatAreSoonFree();
    void inputs_data();
    void inputs();
    void journals();
    void journalsOfFinishedRuns();

private:
    QStringList RunOf(const QStringList& options) const
    {
        return QStringList{QStringLiteral("run"), stage->Path(QStringLiteral("in")), QStringLiteral("-o"),
                           stage->Path(QStringLiteral("out"))} +
               options;
    }

    std::unique_ptr<AccidentStage> stage;
};

namespace {

/// A file that this process has open.
class HeldFile
{
public:
    HeldFile(const QString& path, DWORD shared)
        : handle(CreateFileW(path.toStdWString().c_str(), GENERIC_READ, shared, nullptr, OPEN_EXISTING, 0, nullptr))
    {
        if (handle == INVALID_HANDLE_VALUE) {
            qFatal("%s cannot be opened", qUtf8Printable(path));
        }
    }
    ~HeldFile() { CloseHandle(handle); }

private:
    Q_DISABLE_COPY(HeldFile)

    HANDLE handle;
};

constexpr char isOpen[] = "it is open in another program";

} // namespace

void tst_HeldFiles::init()
{
    stage = std::make_unique<AccidentStage>();
    for (int i = 1; i <= 3; ++i) {
        PictureFiles::WriteJpeg(stage->Path(QStringLiteral("in/%1.jpg").arg(i)), i);
    }
}

void tst_HeldFiles::results_data()
{
    QTest::addColumn<int>("shared");
    QTest::newRow("others may do nothing") << 0;
    QTest::newRow("others may read") << int(FILE_SHARE_READ);
    QTest::newRow("others may read and write") << int(FILE_SHARE_READ | FILE_SHARE_WRITE);
}

void tst_HeldFiles::results()
{
    QFETCH(const int, shared);

    const QString result = stage->Write(QStringLiteral("out/2.png"), "an older result");
    int exitCode = -1;
    {
        const HeldFile held(result, DWORD(shared));
        exitCode = stage->Run(RunOf({QStringLiteral("--format=png"), QStringLiteral("--on-name-exists=overwrite")}));
    }
    QCOMPARE(exitCode, 1);
    const QByteArray reason = stage->Path(QStringLiteral("in/2.jpg")).toUtf8() + ": \"" + result.toUtf8() +
                              "\" cannot be replaced: " + isOpen;
    QVERIFY2(stage->Err().contains(reason), stage->Err().constData());
    QCOMPARE(stage->Content(QStringLiteral("out/2.png")), QByteArray("an older result"));
    QCOMPARE(stage->Names(QStringLiteral("out")),
             (QStringList{QStringLiteral("1.png"), QStringLiteral("2.png"), QStringLiteral("3.png")}));
}

/// Programs that look for viruses, or show pictures of files, have new files open for a moment.
void tst_HeldFiles::resultsThatAreSoonFree()
{
    stage->UseStandIn();
    const QString result = stage->Write(QStringLiteral("out/2.jpg"), "an older result");
    stage->Write(QStringLiteral("in/2.jpg"), "a new result");
    auto held = std::make_unique<HeldFile>(result, 0);
    stage->Start({QStringLiteral("run"), stage->Path(QStringLiteral("in/2.jpg")), QStringLiteral("-o"),
                  stage->Path(QStringLiteral("out")), QStringLiteral("--format=jpeg"),
                  QStringLiteral("--on-name-exists=overwrite")});
    // The worker cannot place it yet.
    const auto temporaries = [&] { return stage->Names(QStringLiteral("out")).filter(QStringLiteral(".tmp")).size(); };
    QVERIFY(QTest::qWaitFor([&] { return temporaries() > 0; }, 60'000));
    held.reset();
    QVERIFY2(stage->End() == 0, stage->Err().constData());
    QCOMPARE(stage->Content(QStringLiteral("out/2.jpg")), QByteArray("a new result"));
}

void tst_HeldFiles::inputs_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("another format") << QStringLiteral("png");
    QTest::newRow("the format of the input") << QStringLiteral("original");
}

void tst_HeldFiles::inputs()
{
    QFETCH(const QString, format);

    const QString input = stage->Path(QStringLiteral("in/2.jpg"));
    const QByteArray before = stage->Content(QStringLiteral("in/2.jpg"));
    int exitCode = -1;
    {
        const HeldFile held(input, 0);
        exitCode = stage->Run(RunOf({QStringLiteral("--format"), format}));
    }
    QCOMPARE(exitCode, 1);
    QVERIFY2(stage->Err().contains(input.toUtf8() + ": " + isOpen), stage->Err().constData());
    QCOMPARE(stage->Content(QStringLiteral("in/2.jpg")), before);
    const QStringList results = stage->Names(QStringLiteral("out"));
    QVERIFY2(results.size() == 2 && results.first().startsWith(QLatin1Char('1')) &&
                 results.last().startsWith(QLatin1Char('3')),
             qPrintable(results.join(QLatin1Char(' '))));
}

/// That of an interrupted run, which is not lost.
void tst_HeldFiles::journals()
{
    stage->UseStandIn();
    stage->Write(QStringLiteral("in/3.jpg"), "wait " + stage->Path(QStringLiteral("gate")).toUtf8());
    stage->Start(RunOf({QStringLiteral("--format=jpeg"), QStringLiteral("--workers=1")}));
    QVERIFY2(stage->WaitFor("\"event\":\"written\"", 2), stage->Err().constData());
    QVERIFY(stage->Kill());
    const QStringList journals =
        stage->Names(QStringLiteral("out")).filter(QRegularExpression(QStringLiteral("\\.journal\\z")));
    QCOMPARE(journals.size(), 1);
    const QString journal = QStringLiteral("out/") + journals.first();
    const QByteArray before = stage->Content(journal);
    stage->Write(QStringLiteral("gate"), {});
    const QStringList resume{QStringLiteral("run"), QStringLiteral("--resume"), QStringLiteral("-o"),
                             stage->Path(QStringLiteral("out"))};
    {
        const HeldFile held(stage->Path(journal), 0);
        QCOMPARE(stage->Run(resume), 7);
    }
    QVERIFY2(stage->Err().contains(stage->Path(journal).toUtf8() + " is ignored: " + isOpen), stage->Err().constData());
    QCOMPARE(stage->Content(journal), before);
    QVERIFY2(stage->Run(resume) == 0, stage->Err().constData());
    QCOMPARE(stage->Names(QStringLiteral("out")).size(), 3);
}

/// A program that reads the journal keeps it from being removed.
void tst_HeldFiles::journalsOfFinishedRuns()
{
    stage->UseStandIn();
    stage->Write(QStringLiteral("in/3.jpg"), "wait " + stage->Path(QStringLiteral("gate")).toUtf8());
    const QStringList arguments = RunOf({QStringLiteral("--format=jpeg"), QStringLiteral("--workers=1")});
    stage->Start(arguments);
    QVERIFY2(stage->WaitFor("\"event\":\"written\"", 2), stage->Err().constData());
    const QStringList journals =
        stage->Names(QStringLiteral("out")).filter(QRegularExpression(QStringLiteral("\\.journal\\z")));
    QCOMPARE(journals.size(), 1);
    {
        const HeldFile held(stage->Path(QStringLiteral("out/") + journals.first()), FILE_SHARE_READ | FILE_SHARE_WRITE);
        stage->Write(QStringLiteral("gate"), {});
        QVERIFY2(stage->End() == 0, stage->Err().constData());
    }
    // Whoever resumes it finds that everything is done.
    const int exitCode = stage->Run(
        {QStringLiteral("run"), QStringLiteral("--resume"), QStringLiteral("-o"), stage->Path(QStringLiteral("out"))});
    QVERIFY2(exitCode == 0, stage->Err().constData());
    QCOMPARE(stage->Names(QStringLiteral("out")),
             (QStringList{QStringLiteral("1.jpg"), QStringLiteral("2.jpg"), QStringLiteral("3.jpg")}));
}

QTEST_GUILESS_MAIN(tst_HeldFiles)
#include "tst_heldfiles.moc"
