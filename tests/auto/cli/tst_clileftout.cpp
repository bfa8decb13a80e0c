// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/common/InputCollector.h"

#include "ZTBatchDocument.h"

#include <QtTest>

using namespace BatchHost;

/// Files of folders whose extension is not known, but which begin like pictures.
class tst_CliLeftOut : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { root = std::make_unique<QTemporaryDir>(); }
    void firstBytesTell_data();
    void firstBytesTell();
    void filtersSayWhatIsLookedAt_data();
    void filtersSayWhatIsLookedAt();
    void namedFilesAreInputs_data();
    void namedFilesAreInputs();
    void takesNewExtensions();
#ifdef Q_OS_UNIX
    void unreadableFilesAreNotCounted();
#endif

private:
    QString Path(const QString& name) const
    {
        return root->filePath(name);
    }

    void Make(const QString& name, const QByteArray& bytes) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(Path(name)).path()));
        QFile file(Path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), qint64(bytes.size()));
    }

    std::unique_ptr<QTemporaryDir> root;
};

namespace {

const QByteArray jpeg("\xFF\xD8\xFF\xE0");

QStringList PathsOf(const LeftOutFiles& files)
{
    QStringList paths;
    for (const LeftOutFile& file : files) {
        paths.append(file.path);
    }
    return paths;
}

} // namespace

void tst_CliLeftOut::firstBytesTell_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("format");
    const auto row = [](const char* title, const char* name, const QByteArray& bytes, const char* format) {
        QTest::newRow(title) << QString::fromLatin1(name) << bytes << QString::fromLatin1(format);
    };
    row("unknown extension", "a.picture", jpeg, "JPEG");
    row("no extension", "a", QByteArray("\x89PNG\r\n\x1A\n"), "PNG");
    row("copy", "a.jpg~", jpeg, "JPEG");
    row("TIFF", "a.scan", QByteArray("MM\0*\0\0\0\x08", 8), "TIFF");
    row("known extension", "a.jpg", jpeg, "");
    row("text", "a.picture", "hello", "");
    row("text that begins like a TIFF file", "a.notes", "MM and II* are its marks", "");
    row("shorter than any mark", "a.picture", "\xFF", "");
    row("empty", "a.picture", "", "");
    row("preview of a camera", "a.THM", jpeg, "");
    row("sidecar", "a.xmp", jpeg, "");
    row("hidden", ".a.picture", jpeg, "");
}

void tst_CliLeftOut::firstBytesTell()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, format);
    Make(QStringLiteral("in/below/") + name, bytes);
    ZTBatchDocument job;
    InputCollector collector(job, {});
    collector.Add({Path(QStringLiteral("in"))});
    QCOMPARE(collector.LeftOut().size(), format.isEmpty() ? 0 : 1);
    if (!format.isEmpty()) {
        QCOMPARE(collector.LeftOut().first().path, Path(QStringLiteral("in/below/") + name));
        QCOMPARE(collector.LeftOut().first().format, format);
    }
    QVERIFY(collector.Problems().isEmpty());
}

void tst_CliLeftOut::filtersSayWhatIsLookedAt_data()
{
    QTest::addColumn<QStringList>("only");
    QTest::addColumn<QStringList>("except");
    QTest::addColumn<bool>("subfolders");
    QTest::addColumn<bool>("hidden");
    QTest::addColumn<QStringList>("leftOut");
    const QString plain = QStringLiteral("in/a.picture");
    const QString below = QStringLiteral("in/b/b.picture");
    const QString hidden = QStringLiteral("in/.c.picture");
    QTest::newRow("all") << QStringList() << QStringList() << true << false << QStringList{plain, below};
    QTest::newRow("hidden ones too") << QStringList() << QStringList() << true << true
                                     << QStringList{hidden, plain, below};
    QTest::newRow("top only") << QStringList() << QStringList() << false << false << QStringList{plain};
    QTest::newRow("excluded") << QStringList() << QStringList{QStringLiteral("a.*")} << true << false
                              << QStringList{below};
    QTest::newRow("names are given") << QStringList{QStringLiteral("*.jpg")} << QStringList() << true << false
                                     << QStringList();
}

void tst_CliLeftOut::filtersSayWhatIsLookedAt()
{
    QFETCH(QStringList, only);
    QFETCH(QStringList, except);
    QFETCH(bool, subfolders);
    QFETCH(bool, hidden);
    QFETCH(QStringList, leftOut);
    for (const char* name : {"in/a.picture", "in/b/b.picture", "in/.c.picture", "in/d.jpg"}) {
        Make(QString::fromLatin1(name), jpeg);
    }
    InputFilter filter;
    filter.only = only;
    filter.except = except;
    filter.subfolders = subfolders;
    filter.hidden = hidden;
    ZTBatchDocument job;
    InputCollector collector(job, filter);
    collector.Add({Path(QStringLiteral("in"))});
    QStringList found = PathsOf(collector.LeftOut()).replaceInStrings(root->path() + QLatin1Char('/'), QString());
    found.sort();
    QCOMPARE(found, leftOut);
}

void tst_CliLeftOut::namedFilesAreInputs_data()
{
    QTest::addColumn<QStringList>("order");
    const QString folder = QStringLiteral("in");
    const QString file = QStringLiteral("in/a.picture");
    QTest::newRow("file alone") << QStringList{file};
    QTest::newRow("file first") << QStringList{file, folder};
    QTest::newRow("folder first") << QStringList{folder, file};
}

void tst_CliLeftOut::namedFilesAreInputs()
{
    QFETCH(QStringList, order);
    Make(QStringLiteral("in/a.picture"), jpeg);
    Make(QStringLiteral("in/b.jpg"), jpeg);
    QStringList paths;
    for (const QString& name : order) {
        paths.append(Path(name));
    }
    ZTBatchDocument job;
    InputCollector collector(job, {});
    collector.Add(paths);
    QCOMPARE(PathsOf(collector.LeftOut()), QStringList());
    QCOMPARE(job.GetInputModel()->GetFileNodesCount(), order.size());
}

void tst_CliLeftOut::takesNewExtensions()
{
    const QStringList names{QStringLiteral("a.HIF"), QStringLiteral("a.avifs"), QStringLiteral("a.gpr"),
                            QStringLiteral("a.j2c"), QStringLiteral("a.jpf"),   QStringLiteral("a.jph"),
                            QStringLiteral("a.mpo")};
    for (const QString& name : names) {
        Make(QStringLiteral("in/") + name, "x");
    }
    ZTBatchDocument job;
    InputCollector collector(job, {});
    collector.Add({Path(QStringLiteral("in"))});
    QCOMPARE(job.GetInputModel()->GetFileNodesCount(), names.size());
}

#ifdef Q_OS_UNIX
void tst_CliLeftOut::unreadableFilesAreNotCounted()
{
    Make(QStringLiteral("in/a.jpg"), jpeg);
    QVERIFY(QFile::link(QStringLiteral("missing"), Path(QStringLiteral("in/b.picture"))));
    QVERIFY(QFile::link(QStringLiteral("loop.picture"), Path(QStringLiteral("in/loop.picture"))));
    ZTBatchDocument job;
    InputCollector collector(job, {});
    collector.Add({Path(QStringLiteral("in"))});
    QCOMPARE(PathsOf(collector.LeftOut()), QStringList());
    QVERIFY(collector.Problems().isEmpty());
}
#endif

QTEST_GUILESS_MAIN(tst_CliLeftOut)
#include "tst_clileftout.moc"
