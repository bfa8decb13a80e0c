// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "server/protocol/ResultFolder.h"
#include "server/protocol/TemporaryFile.h"

#include <QDir>
#include <QtTest>

#include <sys/stat.h>
#include <unistd.h>

using namespace BatchProtocol;

/// Folders of results, and the files in them, while somebody else puts links in their place.
class tst_ResultFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void opens_data();
    void opens();
    void makesWhatIsMissing();
    void followsLinksWithoutRoot();
    void linkBetweenCreationAndPlacing_data();
    void linkBetweenCreationAndPlacing();
    void twins_data();
    void twins();
    void fileIsOpenedOnceMore();
    void sweepsNothingBehindLinks();

private:
    QString Path(const QString& name) const { return folder->filePath(name); }
    void Write(const QString& name, const QByteArray& content) const;
    QByteArray Content(const QString& name) const;
    QStringList Names(const QString& name) const
    {
        return QDir(Path(name)).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    }
    /// Has `name` lead to the folder "private" instead.
    void SwapForLink(const QString& name) const;

    std::unique_ptr<QTemporaryDir> folder;
};

void tst_ResultFolder::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(folder->path()).mkpath(QStringLiteral("out/a/b")));
    QVERIFY(QDir(folder->path()).mkpath(QStringLiteral("private/b")));
    QCOMPARE(::symlink("../private", Path(QStringLiteral("out/link")).toUtf8().constData()), 0);
    QCOMPARE(::symlink("a", Path(QStringLiteral("out/beside")).toUtf8().constData()), 0);
    QCOMPARE(::symlink("nowhere", Path(QStringLiteral("out/dangling")).toUtf8().constData()), 0);
    QCOMPARE(::symlink("out", Path(QStringLiteral("root")).toUtf8().constData()), 0);
    Write(QStringLiteral("out/file"), "file");
}

void tst_ResultFolder::Write(const QString& name, const QByteArray& content) const
{
    QFile file(Path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

QByteArray tst_ResultFolder::Content(const QString& name) const
{
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void tst_ResultFolder::SwapForLink(const QString& name) const
{
    QVERIFY(QFile::rename(Path(name), Path(QStringLiteral("moved"))));
    QCOMPARE(::symlink(Path(QStringLiteral("private")).toUtf8().constData(), Path(name).toUtf8().constData()), 0);
}

void tst_ResultFolder::opens_data()
{
    QTest::addColumn<QString>("root");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("problem");
    const auto row = [](const char* name, const char* root, const char* path, const char* problem) {
        QTest::newRow(name) << QString::fromLatin1(root) << QString::fromLatin1(path) << QString::fromLatin1(problem);
    };
    row("the root", "out", "out", "");
    row("below", "out", "out/a/b", "");
    row("slash at the end", "out/", "out/a/", "");
    row("root that is a link", "root", "root/a/b", "");
    row("link to elsewhere", "out", "out/link", "/out/link is a link; results are not written through it");
    row("folder behind a link", "out", "out/link/b", "/out/link is a link");
    row("link within the root", "out", "out/beside/b", "/out/beside is a link");
    row("dangling link", "out", "out/dangling", "/out/dangling is a link");
    row("file", "out", "out/file", "/out/file: ");
    row("missing", "out", "out/none", "/out/none: ");
    row("missing root", "none", "none/a", "/none: ");
    row("beside the root", "out", "private", " does not lie in the output folder ");
    row("name begins like the root", "out/a", "out/ab", " does not lie in the output folder ");
    row("out of the root", "out/a", "out/a/../../private", " does not lie in the output folder ");
}

void tst_ResultFolder::opens()
{
    QFETCH(QString, root);
    QFETCH(QString, path);
    QFETCH(QString, problem);
    ResultFolder opened;
    const bool isOpen = opened.Open(Path(root), Path(path), ResultFolder::Missing::Fail);
    QVERIFY2(isOpen == problem.isEmpty() && opened.Error().contains(problem), qPrintable(opened.Error()));
}

void tst_ResultFolder::makesWhatIsMissing()
{
    const QString root = Path(QStringLiteral("new/out"));
    ResultFolder made;
    QVERIFY2(made.Open(root, root + QStringLiteral("/x/y"), ResultFolder::Missing::Make), qPrintable(made.Error()));
    QVERIFY(QFileInfo(root + QStringLiteral("/x/y")).isDir());
    ResultFolder again;
    QVERIFY(again.Open(root, root + QStringLiteral("/x/y"), ResultFolder::Missing::Make));
    for (const char* name : {"out/link/new", "out/beside/new", "out/dangling/new", "out/dangling"}) {
        ResultFolder refused;
        QVERIFY(
            !refused.Open(Path(QStringLiteral("out")), Path(QString::fromLatin1(name)), ResultFolder::Missing::Make));
        QVERIFY2(refused.Error().contains(QStringLiteral(" is a link")), qPrintable(refused.Error()));
    }
    QCOMPARE(Names(QStringLiteral("private")), QStringList(QStringLiteral("b")));
    QCOMPARE(Names(QStringLiteral("out/a")), QStringList(QStringLiteral("b")));
}

void tst_ResultFolder::followsLinksWithoutRoot()
{
    ResultFolder opened;
    QVERIFY(opened.Open({}, Path(QStringLiteral("out/link/new")), ResultFolder::Missing::Make));
    QVERIFY(QFileInfo(Path(QStringLiteral("private/new"))).isDir());
}

void tst_ResultFolder::linkBetweenCreationAndPlacing_data()
{
    QTest::addColumn<bool>("replaceExisting");
    QTest::newRow("new name") << false;
    QTest::newRow("existing name") << true;
}

// The result goes into the folder in which it was begun, wherever that is now.
void tst_ResultFolder::linkBetweenCreationAndPlacing()
{
    QFETCH(bool, replaceExisting);
    Write(QStringLiteral("private/result.jpg"), "precious");
    if (replaceExisting) {
        Write(QStringLiteral("out/a/result.jpg"), "old");
    }
    TemporaryFile file(Path(QStringLiteral("out/a/result.jpg")), Path(QStringLiteral("out")));
    QVERIFY(file.Create());
    QCOMPARE(::write(file.Descriptor(), "whole", 5), ssize_t(5));
    SwapForLink(QStringLiteral("out/a"));
    QCOMPARE(file.Place(replaceExisting), TemporaryFile::Placement::Done);
    QCOMPARE(Content(QStringLiteral("private/result.jpg")), QByteArray("precious"));
    QCOMPARE(Content(QStringLiteral("moved/result.jpg")), QByteArray("whole"));
    QCOMPARE(Names(QStringLiteral("moved")), QStringList({QStringLiteral("b"), QStringLiteral("result.jpg")}));
}

void tst_ResultFolder::twins_data()
{
    QTest::addColumn<QByteArray>("result");
    QTest::addColumn<QString>("other");
    QTest::addColumn<bool>("isTwin");
    const QByteArray large(700'000, 'x');
    QTest::newRow("same") << QByteArray("whole") << "out/a/same" << true;
    QTest::newRow("empty") << QByteArray() << "out/a/empty" << true;
    QTest::newRow("large") << large << "out/a/large" << true;
    QTest::newRow("last byte differs") << large.chopped(1) + 'y' << "out/a/large" << false;
    QTest::newRow("first byte differs") << 'y' + large.mid(1) << "out/a/large" << false;
    QTest::newRow("shorter") << large.chopped(1) << "out/a/large" << false;
    QTest::newRow("longer") << large + 'x' << "out/a/large" << false;
    QTest::newRow("link to the same") << QByteArray("whole") << "out/a/link" << false;
    QTest::newRow("folder") << QByteArray() << "out/a/b" << false;
    QTest::newRow("pipe") << QByteArray() << "out/a/pipe" << false;
    QTest::newRow("nothing") << QByteArray() << "out/a/none" << false;
}

void tst_ResultFolder::twins()
{
    QFETCH(QByteArray, result);
    QFETCH(QString, other);
    QFETCH(bool, isTwin);
    Write(QStringLiteral("out/a/same"), "whole");
    Write(QStringLiteral("out/a/empty"), "");
    Write(QStringLiteral("out/a/large"), QByteArray(700'000, 'x'));
    QCOMPARE(::symlink("same", Path(QStringLiteral("out/a/link")).toUtf8().constData()), 0);
    QCOMPARE(::mkfifo(Path(QStringLiteral("out/a/pipe")).toUtf8().constData(), 0600), 0);
    TemporaryFile file(Path(other), Path(QStringLiteral("out")));
    QVERIFY(file.Create());
    QCOMPARE(::write(file.Descriptor(), result.constData(), std::size_t(result.size())), ssize_t(result.size()));
    QCOMPARE(file.HasTwin(), isTwin);
    QCOMPARE(::lseek(file.Descriptor(), 0, SEEK_CUR), off_t(result.size()));
}

void tst_ResultFolder::fileIsOpenedOnceMore()
{
    TemporaryFile file(Path(QStringLiteral("out/a/result.jpg")), Path(QStringLiteral("out")));
    QVERIFY(file.Create());
    const QString name = QFileInfo(file.FileName()).fileName();
    SwapForLink(QStringLiteral("out/a"));
    Write(QStringLiteral("private/") + name, "precious");
    QFile again(file.OpenPath());
    QVERIFY(again.open(QIODevice::ReadWrite | QIODevice::Truncate));
    QCOMPARE(again.write("whole"), qint64(5));
    again.close();
    QCOMPARE(Content(QStringLiteral("private/") + name), QByteArray("precious"));
    QCOMPARE(file.Place(false), TemporaryFile::Placement::Done);
    QCOMPARE(Content(QStringLiteral("moved/result.jpg")), QByteArray("whole"));
}

void tst_ResultFolder::sweepsNothingBehindLinks()
{
    Write(QStringLiteral("private/.velkora-0123456789abcdef.tmp"), "precious");
    Write(QStringLiteral("out/a/.velkora-0123456789abcdef.tmp"), "left");
    const QString root = Path(QStringLiteral("out"));
    QCOMPARE(TemporaryFile::Sweep(Path(QStringLiteral("out/link")), root).removed, 0);
    QCOMPARE(TemporaryFile::Sweep(Path(QStringLiteral("out/a")), root).removed, 1);
    QCOMPARE(Content(QStringLiteral("private/.velkora-0123456789abcdef.tmp")), QByteArray("precious"));
}

QTEST_GUILESS_MAIN(tst_ResultFolder)
#include "tst_resultfolder.moc"
