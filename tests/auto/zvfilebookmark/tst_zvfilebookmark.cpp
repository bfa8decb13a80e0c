// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZVApplication.h"
#include "ZVFileBookmark.h"

#include <QTemporaryDir>
#include <QtTest>

class tst_ZVFileBookmark : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void defaultIsEmpty();
    void emptyPathIsEmpty();
    void keepsItsPath_data();
    void keepsItsPath();
    void copiesAreIndependent();
    void existsFollowsTheDisk();
    void caseOfNames();
    void danglingLinkDoesNotExist();
    void texturePatternIndex();
};

void tst_ZVFileBookmark::defaultIsEmpty()
{
    const ZVFileBookmark bookmark;
    QVERIFY(bookmark.IsEmpty());
    QVERIFY(bookmark.Path().isEmpty());
    QVERIFY(!bookmark.Exists());
}

void tst_ZVFileBookmark::emptyPathIsEmpty()
{
    QVERIFY(ZVFileBookmark(QString()).IsEmpty());
    QVERIFY(ZVFileBookmark(QStringLiteral("")).IsEmpty());
    QVERIFY(!ZVFileBookmark(QStringLiteral("")).Exists());
}

void tst_ZVFileBookmark::keepsItsPath_data()
{
    QTest::addColumn<QString>("path");

    QTest::newRow("absolute") << QStringLiteral("/photos/2024/IMG 0001.jpg");
    QTest::newRow("relative") << QStringLiteral("a.jpg");
    QTest::newRow("not cleaned") << QStringLiteral("/photos/../photos//a.jpg/");
    QTest::newRow("other scripts") << QStringLiteral("/\u5199\u771f/Gr\u00fc\u00dfe.jpg");
}

void tst_ZVFileBookmark::keepsItsPath()
{
    QFETCH(QString, path);

    const ZVFileBookmark bookmark(path);
    QVERIFY(!bookmark.IsEmpty());
    QCOMPARE(bookmark.Path(), path);
}

void tst_ZVFileBookmark::copiesAreIndependent()
{
    const ZVFileBookmark first(QStringLiteral("/a"));
    ZVFileBookmark copy(first);
    QCOMPARE(copy.Path(), QStringLiteral("/a"));
    copy = ZVFileBookmark(QStringLiteral("/b"));
    QCOMPARE(copy.Path(), QStringLiteral("/b"));
    QCOMPARE(first.Path(), QStringLiteral("/a"));
    copy = ZVFileBookmark();
    QVERIFY(copy.IsEmpty());
}

void tst_ZVFileBookmark::existsFollowsTheDisk()
{
    const QTemporaryDir folder;
    QVERIFY(ZVFileBookmark(folder.path()).Exists());

    const QString path = folder.filePath(QStringLiteral("a.jpg"));
    const ZVFileBookmark bookmark(path);
    QVERIFY(!bookmark.Exists());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QVERIFY(bookmark.Exists());
    QVERIFY(file.remove());
    QVERIFY(!bookmark.Exists());
}

void tst_ZVFileBookmark::caseOfNames()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a.jpg")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const ZVFileBookmark otherCase(folder.filePath(QStringLiteral("A.JPG")));
#ifdef Q_OS_WIN
    QVERIFY(otherCase.Exists());
#else
    QVERIFY(!otherCase.Exists());
#endif
}

void tst_ZVFileBookmark::danglingLinkDoesNotExist()
{
    const QTemporaryDir folder;
    // On Windows the file name extension makes it a link.
    const QString link = folder.filePath(QStringLiteral("link.lnk"));
    QVERIFY(QFile::link(folder.filePath(QStringLiteral("nowhere")), link));
    QVERIFY(!ZVFileBookmark(link).Exists());
}

void tst_ZVFileBookmark::texturePatternIndex()
{
    QCOMPARE(ZVApplication::GetTexturePatternIndex(), 0);
    ZVApplication::SetTexturePatternIndex(5);
    QCOMPARE(ZVApplication::GetTexturePatternIndex(), 5);
}

QTEST_GUILESS_MAIN(tst_ZVFileBookmark)
#include "tst_zvfilebookmark.moc"
