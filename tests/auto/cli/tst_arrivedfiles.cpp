// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/common/ArrivedFiles.h"

#include <QtTest>

using namespace BatchHost;

namespace {

constexpr qint64 settle = 2'000;

SeenFile File(const char* name, qint64 bytes, qint64 modified = 0)
{
    return {QLatin1String(name), {bytes, modified}};
}

} // namespace

/// Which files of a watched folder have arrived, at times that the test says.
class tst_ArrivedFiles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { files = std::make_unique<ArrivedFiles>(settle); }
    void filesThatStayTheSameArrive();
    void filesThatGrowWait();
    void newTimesCountAsChanges();
    void movedFilesArriveAtOnce();
    void movedFilesThatChangeWait();
    void emptyFilesWait();
    void openFilesWait();
    void filesThatAreNeverClosedArriveLate();
    void arrivedFilesComeOnce();
    void changedFilesComeAgain();
    void settledFilesStayAway();
    void filesThatGoAreForgotten();
    void nextLooks();
    void orderIsThatOfTheLook();
    void withoutSettlingFilesArriveAtOnce();

private:
    QStringList Look(const QVector<SeenFile>& seen, qint64 now)
    {
        files->Look(seen, now);
        QStringList names;
        for (const SeenFile& file : files->Take(now)) {
            names.append(file.path);
        }
        return names;
    }

    std::unique_ptr<ArrivedFiles> files;
    const QStringList none;
    const QStringList a{QStringLiteral("a")};
};

void tst_ArrivedFiles::filesThatStayTheSameArrive()
{
    QCOMPARE(Look({File("a", 5)}, 0), none);
    QCOMPARE(Look({File("a", 5)}, 1'999), none);
    QCOMPARE(Look({File("a", 5)}, 2'000), a);
}

void tst_ArrivedFiles::filesThatGrowWait()
{
    for (qint64 step = 0; step < 10; ++step) {
        QCOMPARE(Look({File("a", 5 + step)}, step * 1'900), none);
    }
    QCOMPARE(Look({File("a", 14)}, 9 * 1'900 + 1'999), none);
    QCOMPARE(Look({File("a", 14)}, 9 * 1'900 + 2'000), a);
}

void tst_ArrivedFiles::newTimesCountAsChanges()
{
    QCOMPARE(Look({File("a", 5, 1)}, 0), none);
    QCOMPARE(Look({File("a", 5, 2)}, 2'000), none);
    QCOMPARE(Look({File("a", 5, 2)}, 4'000), a);
}

void tst_ArrivedFiles::movedFilesArriveAtOnce()
{
    files->NoteMovedIn(QStringLiteral("a"));
    QCOMPARE(Look({File("a", 5), File("b", 5)}, 0), a);
}

void tst_ArrivedFiles::movedFilesThatChangeWait()
{
    files->NoteMovedIn(QStringLiteral("a"));
    files->NoteWriting(QStringLiteral("a"), 0);
    QCOMPARE(Look({File("a", 5)}, 0), none);
    files->NoteClosed(QStringLiteral("a"));
    QCOMPARE(Look({File("a", 6)}, 10), none);
    QCOMPARE(Look({File("a", 6)}, 2'010), a);
}

void tst_ArrivedFiles::emptyFilesWait()
{
    files->NoteMovedIn(QStringLiteral("a"));
    QCOMPARE(Look({File("a", 0)}, 0), none);
    QCOMPARE(Look({File("a", 0)}, 100'000), none);
    QVERIFY(!files->NextLook(100'000));
    QCOMPARE(Look({File("a", 1)}, 100'001), none);
    QCOMPARE(Look({File("a", 1)}, 102'001), a);
}

void tst_ArrivedFiles::openFilesWait()
{
    files->NoteWriting(QStringLiteral("a"), 0);
    QCOMPARE(Look({File("a", 5)}, 0), none);
    QCOMPARE(Look({File("a", 5)}, 30'000), none);
    QVERIFY(!files->NextLook(30'000));
    files->NoteClosed(QStringLiteral("a"));
    QCOMPARE(Look({File("a", 5)}, 30'001), a);
}

void tst_ArrivedFiles::filesThatAreNeverClosedArriveLate()
{
    files->NoteWriting(QStringLiteral("a"), 0);
    QCOMPARE(Look({File("a", 5)}, 0), none);
    QCOMPARE(Look({File("a", 5)}, 59'999), none);
    QCOMPARE(Look({File("a", 5)}, 60'000), a);
    files->NoteWriting(QStringLiteral("b"), 60'000);
    QCOMPARE(Look({File("b", 5)}, 60'000), none);
    files->ForgetNotes();
    QCOMPARE(Look({File("b", 5)}, 62'000), QStringList{QStringLiteral("b")});
}

void tst_ArrivedFiles::arrivedFilesComeOnce()
{
    files->NoteMovedIn(QStringLiteral("a"));
    QCOMPARE(Look({File("a", 5)}, 0), a);
    QCOMPARE(Look({File("a", 5)}, 100'000), none);
    files->NoteMovedIn(QStringLiteral("a"));
    QCOMPARE(Look({File("a", 5)}, 100'001), none);
    files->Unsettle(QStringLiteral("a"));
    QCOMPARE(Look({File("a", 5)}, 100'002), none);
    QCOMPARE(Look({File("a", 5)}, 102'002), a);
}

void tst_ArrivedFiles::changedFilesComeAgain()
{
    Look({File("a", 5)}, 0);
    QCOMPARE(Look({File("a", 5)}, 2'000), a);
    QCOMPARE(Look({File("a", 6)}, 3'000), none);
    QCOMPARE(Look({File("a", 6)}, 5'000), a);
    // Back to what it was is a change, too.
    QCOMPARE(Look({File("a", 5)}, 6'000), none);
    QCOMPARE(Look({File("a", 5)}, 8'000), a);
}

void tst_ArrivedFiles::settledFilesStayAway()
{
    files->Settle(File("a", 5, 7));
    QCOMPARE(Look({File("a", 5, 7)}, 0), none);
    QCOMPARE(Look({File("a", 5, 7)}, 10'000), none);
    QCOMPARE(Look({File("a", 5, 8)}, 20'000), none);
    QCOMPARE(Look({File("a", 5, 8)}, 22'000), a);
}

void tst_ArrivedFiles::filesThatGoAreForgotten()
{
    Look({File("a", 5)}, 0);
    Look({}, 1'000);
    QVERIFY(!files->NextLook(1'000));
    QCOMPARE(Look({File("a", 5)}, 5'000), none);
    QCOMPARE(Look({File("a", 5)}, 7'000), a);
}

void tst_ArrivedFiles::nextLooks()
{
    QVERIFY(!files->NextLook(0));
    Look({File("a", 5)}, 0);
    QCOMPARE(files->NextLook(500).value_or(-1), qint64(1'500));
    Look({File("a", 5), File("b", 5)}, 500);
    QCOMPARE(files->NextLook(600).value_or(-1), qint64(1'400));
    QCOMPARE(files->NextLook(9'000).value_or(-1), qint64(0));
}

void tst_ArrivedFiles::orderIsThatOfTheLook()
{
    const QVector<SeenFile> seen{File("c", 1), File("a", 1), File("b", 1)};
    Look(seen, 0);
    QCOMPARE(Look(seen, 2'000), QStringList({QStringLiteral("c"), QStringLiteral("a"), QStringLiteral("b")}));
}

void tst_ArrivedFiles::withoutSettlingFilesArriveAtOnce()
{
    files = std::make_unique<ArrivedFiles>(0);
    QCOMPARE(Look({File("a", 5)}, 0), a);
}

QTEST_GUILESS_MAIN(tst_ArrivedFiles)
#include "tst_arrivedfiles.moc"
