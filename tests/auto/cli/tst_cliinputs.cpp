// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "hosts/common/InputCollector.h"
#include "hosts/common/NaturalNames.h"
#include "hosts/common/RequestError.h"
#include "job/settings/JobFiles.h"

#include "ZTBatchDocument.h"

#include <QtTest>

#include <array>

#ifdef Q_OS_LINUX
#include <linux/capability.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

using namespace BatchJob;
using namespace BatchHost;

namespace {

QStringList FilesOf(const ZTBatchDocument& job, const QString& root)
{
    QStringList files;
    for (const BatchJob::JobFile& file : BatchJob::FilesOfJob(*job.GetInputModel())) {
        files.append(QDir(root).relativeFilePath(file.path));
    }
    return files;
}

#ifdef Q_OS_LINUX
/// Root may read files whatever their permissions. While this object lives, permissions hold for root too.
class PermissionsHold
{
public:
    PermissionsHold()
    {
        syscall(SYS_capget, &header, own.data());
        auto fewer = own;
        fewer[0].effective &= ~(CAP_TO_MASK(CAP_DAC_OVERRIDE) | CAP_TO_MASK(CAP_DAC_READ_SEARCH));
        syscall(SYS_capset, &header, fewer.data());
    }
    ~PermissionsHold() { syscall(SYS_capset, &header, own.data()); }

private:
    Q_DISABLE_COPY(PermissionsHold)

    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> own{};
};
#endif

} // namespace

class tst_CliInputs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { root = std::make_unique<QTemporaryDir>(); }
    void numbersSortNaturally_data();
    void numbersSortNaturally();
    void foldersAreReadWhole();
    void filtersChoose();
    void nothingComesTwice();
    void outputFolderIsNoInput();
    void missingInputsAreRefused();
#ifdef Q_OS_UNIX
    void linksAreFollowedOnce();
    void oddEntriesAreReported();
#endif
#ifdef Q_OS_LINUX
    void unreadableFoldersAreReported();
#endif
    void deepFoldersCanBeSaved();
    void manyFiles();

private:
    void Make(const QString& path) const
    {
        const QString whole = root->filePath(path);
        QVERIFY(QDir().mkpath(QFileInfo(whole).path()));
        QFile file(whole);
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    std::unique_ptr<QTemporaryDir> root;
};

void tst_CliInputs::numbersSortNaturally_data()
{
    QTest::addColumn<QStringList>("inOrder");
    const auto row = [](const char* name, const char* names) {
        QTest::newRow(name) << QString::fromLatin1(names).split(QLatin1Char(' '));
    };
    row("one number", "img2.jpg img10.jpg img100.jpg");
    row("number alone", "1.jpg 2.jpg 11.jpg");
    row("several numbers", "1-2.jpg 1-10.jpg 2-1.jpg 10-1.jpg");
    row("other words", "a9.jpg a10.jpg b1.jpg b2.jpg");
    row("zeros in front", "a01.jpg a2.jpg a010.jpg");
    row("upper case first", "B2 B10 a1");
}

void tst_CliInputs::numbersSortNaturally()
{
    QFETCH(QStringList, inOrder);
    QStringList backwards = inOrder;
    std::reverse(backwards.begin(), backwards.end());
    QStringList texts = NaturalNames(backwards);
    QVector<QPair<QString, QString>> sorted;
    for (int i = 0; i < texts.size(); ++i) {
        sorted.append({texts.at(i), backwards.at(i)});
    }
    std::sort(sorted.begin(), sorted.end());
    QStringList names;
    for (const auto& pair : sorted) {
        names.append(pair.second);
    }
    QCOMPARE(names, inOrder);
    const QStringList even{QStringLiteral("img_0001.jpg"), QStringLiteral("img_0002.jpg"), QStringLiteral("x.jpg")};
    QCOMPARE(NaturalNames(even), even);
}

void tst_CliInputs::foldersAreReadWhole()
{
    for (const char* path : {"b/2.jpg", "b/10.JPG", "b/c/x.nef", "b/readme.txt", "b/.hidden.jpg", "b/empty/none.txt"}) {
        Make(QLatin1String(path));
    }
    ZTBatchDocument job;
    InputCollector collector(job, {});
    collector.Add({root->filePath(QStringLiteral("b"))});
    QCOMPARE(FilesOf(job, root->path()),
             QStringList({QStringLiteral("b/c/x.nef"), QStringLiteral("b/2.jpg"), QStringLiteral("b/10.JPG")}));
    QCOMPARE(job.GetInputModel()->GetFileNodesCount(), 3);
    QVERIFY(collector.Problems().isEmpty());
    // Saving and loading keeps the inputs.
    ZTBatchDocument copy;
    QVERIFY(copy.Deserialize(job.Serialize(nullptr)));
    QCOMPARE(FilesOf(copy, root->path()), FilesOf(job, root->path()));
    QCOMPARE(copy.Serialize(nullptr), job.Serialize(nullptr));
}

void tst_CliInputs::filtersChoose()
{
    for (const char* path : {"a.jpg", "b.png", "c.xyz", ".d.jpg", "sub/e.jpg", "no/f.jpg"}) {
        Make(QLatin1String(path));
    }
    InputFilter filter;
    filter.only = QStringList{QStringLiteral("*.jpg"), QStringLiteral("*.xyz")};
    filter.except = QStringList{QStringLiteral("NO")};
    filter.hidden = true;
    ZTBatchDocument job;
    InputCollector(job, filter).Add({root->path()});
    QCOMPARE(FilesOf(job, root->path()), QStringList({QStringLiteral("sub/e.jpg"), QStringLiteral(".d.jpg"),
                                                      QStringLiteral("a.jpg"), QStringLiteral("c.xyz")}));

    filter = InputFilter();
    filter.subfolders = false;
    ZTBatchDocument flat;
    InputCollector(flat, filter).Add({root->path()});
    QCOMPARE(FilesOf(flat, root->path()), QStringList({QStringLiteral("a.jpg"), QStringLiteral("b.png")}));

    ZTBatchDocument named;
    InputCollector(named, filter).Add({root->filePath(QStringLiteral("c.xyz"))});
    QCOMPARE(named.GetInputModel()->GetFileNodesCount(), 1);
}

void tst_CliInputs::nothingComesTwice()
{
    Make(QStringLiteral("a/1.jpg"));
    ZTBatchDocument job;
    InputCollector collector(job, {});
    const QString folder = root->filePath(QStringLiteral("a"));
    collector.Add({folder, folder + QStringLiteral("/../a/1.jpg"), folder});
    QCOMPARE(job.GetInputModel()->GetFileNodesCount(), 1);
    QCOMPARE(collector.Repetitions().size(), 2);
    QCOMPARE(collector.Problems(), QStringList());
    InputCollector again(job, {});
    again.Add({folder});
    QCOMPARE(job.GetInputModel()->GetFileNodesCount(), 1);
    QVERIFY(again.Repetitions().value(0).contains(QStringLiteral("in the job already")));
}

void tst_CliInputs::outputFolderIsNoInput()
{
    Make(QStringLiteral("a.jpg"));
    Make(QStringLiteral("results/a.jpg"));
    InputFilter filter;
    filter.outputFolder = root->filePath(QStringLiteral("results"));
    ZTBatchDocument job;
    InputCollector collector(job, filter);
    collector.Add({root->path()});
    QCOMPARE(job.GetInputModel()->GetFileNodesCount(), 1);
    QVERIFY(collector.Problems().isEmpty());
#ifdef Q_OS_UNIX
    // However the folder is reached.
    QTemporaryDir elsewhere;
    const QString link = elsewhere.filePath(QStringLiteral("link"));
    QVERIFY(QFile::link(root->path(), link));
    filter.outputFolder = link + QStringLiteral("/results");
    ZTBatchDocument again;
    InputCollector(again, filter).Add({root->path()});
    QCOMPARE(again.GetInputModel()->GetFileNodesCount(), 1);
#endif
}

void tst_CliInputs::missingInputsAreRefused()
{
    Make(QStringLiteral("a.jpg"));
    ZTBatchDocument job;
    InputCollector collector(job, {});
    QVERIFY_EXCEPTION_THROWN(
        collector.Add({root->filePath(QStringLiteral("a.jpg")), root->filePath(QStringLiteral("b.jpg"))}),
        RequestError);
#ifdef Q_OS_UNIX
    QVERIFY_EXCEPTION_THROWN(collector.Add({QStringLiteral("/dev/null")}), RequestError);
#endif
    QCOMPARE(job.GetInputModel()->GetFileNodesCount(), 0);
}

#ifdef Q_OS_UNIX
void tst_CliInputs::linksAreFollowedOnce()
{
    Make(QStringLiteral("top/z/1.jpg"));
    Make(QStringLiteral("elsewhere/2.jpg"));
    QVERIFY(QFile::link(root->filePath(QStringLiteral("top")), root->filePath(QStringLiteral("top/z/up"))));
    QVERIFY(QFile::link(root->filePath(QStringLiteral("top/z")), root->filePath(QStringLiteral("top/a"))));
    QVERIFY(QFile::link(root->filePath(QStringLiteral("elsewhere")), root->filePath(QStringLiteral("top/out"))));
    QVERIFY(QFile::link(root->filePath(QStringLiteral("top/z/1.jpg")), root->filePath(QStringLiteral("top/3.jpg"))));
    ZTBatchDocument job;
    InputCollector collector(job, {});
    collector.Add({root->filePath(QStringLiteral("top"))});
    QCOMPARE(FilesOf(job, root->path()), QStringList({QStringLiteral("top/out/2.jpg"), QStringLiteral("top/z/1.jpg"),
                                                      QStringLiteral("top/3.jpg")}));
    QCOMPARE(collector.Problems().size(), 1);
    QVERIFY(collector.Problems().value(0).contains(QStringLiteral("z/up leads back to ")));
    QCOMPARE(collector.Repetitions().size(), 1);
    QVERIFY(collector.Repetitions().value(0).contains(QStringLiteral("top/a is the folder ")));
}

void tst_CliInputs::oddEntriesAreReported()
{
    Make(QStringLiteral("a.jpg"));
    Make(QStringLiteral("line\nbreak.jpg"));
    Make(QStringLiteral("bell\a.jpg"));
    Make(QStringLiteral("last\uFFFF.jpg"));
    QVERIFY(QFile::link(QStringLiteral("/nowhere/at/all"), root->filePath(QStringLiteral("lost.jpg"))));
    const QByteArray folder = QFile::encodeName(root->path());
    FILE* const odd = std::fopen((folder + "/\xE9t\xE9.jpg").constData(), "w");
    QVERIFY(odd != nullptr);
    std::fclose(odd);
    QCOMPARE(mkfifo((folder + "/pipe.jpg").constData(), 0600), 0);
    ZTBatchDocument job;
    InputCollector collector(job, {});
    collector.Add({root->path()});
    QCOMPARE(FilesOf(job, root->path()),
             QStringList({QStringLiteral("a.jpg"), QStringLiteral("bell\a.jpg"), QStringLiteral("line\nbreak.jpg")}));
    QCOMPARE(collector.Problems().size(), 3);
    const QString problems = collector.Problems().join(QLatin1Char('\n'));
    QVERIFY2(problems.contains(QStringLiteral("lost.jpg is a dangling link")), qPrintable(problems));
    QVERIFY2(problems.contains(QStringLiteral("\\xe9t\\xe9.jpg has a name that is not valid UTF-8")),
             qPrintable(problems));
    std::remove((folder + "/\xE9t\xE9.jpg").constData()); // Qt cannot remove it.
    QVERIFY2(problems.contains(QStringLiteral("last\uFFFF.jpg has a name with a character that a job cannot hold")),
             qPrintable(problems));
}
#endif

#ifdef Q_OS_LINUX
void tst_CliInputs::unreadableFoldersAreReported()
{
    Make(QStringLiteral("a.jpg"));
    Make(QStringLiteral("closed/b.jpg"));
    const QByteArray closed = QFile::encodeName(root->filePath(QStringLiteral("closed")));
    QCOMPARE(chmod(closed.constData(), 0), 0);
    ZTBatchDocument job;
    InputCollector collector(job, {});
    {
        const PermissionsHold theyHold;
        collector.Add({root->path()});
    }
    QCOMPARE(chmod(closed.constData(), 0700), 0);
    QCOMPARE(job.GetInputModel()->GetFileNodesCount(), 1);
    QVERIFY(collector.Problems().value(0).contains(QStringLiteral("closed cannot be read: Permission denied")));
}
#endif

void tst_CliInputs::deepFoldersCanBeSaved()
{
    QString path = QStringLiteral("d");
    for (int i = 0; i < 300; ++i) {
        path += QStringLiteral("/d");
    }
    Make(path + QStringLiteral("/a.jpg"));
    ZTBatchDocument job;
    InputCollector(job, {}).Add({root->filePath(QStringLiteral("d"))});
    ZTBatchDocument copy;
    QVERIFY(copy.Deserialize(job.Serialize(nullptr)));
    QCOMPARE(copy.GetInputModel()->GetFileNodesCount(), 1);
}

void tst_CliInputs::manyFiles()
{
    constexpr int folders = 20;
    constexpr int filesEach = 500;
    for (int i = 0; i < folders; ++i) {
        QVERIFY(QDir(root->path()).mkpath(QString::number(i)));
        for (int j = 0; j < filesEach; ++j) {
            QFile file(root->filePath(QStringLiteral("%1/p%2.jpg").arg(i).arg(j)));
            QVERIFY(file.open(QIODevice::WriteOnly));
        }
    }
    ZTBatchDocument job;
    InputCollector collector(job, {});
    int told = 0;
    collector.onProgress = [&told](int, int files, const QString&) { told = files; };
    collector.Add({root->path()});
    QCOMPARE(job.GetInputModel()->GetFileNodesCount(), folders * filesEach);
    QCOMPARE(told, folders * filesEach);
    const QStringList files = FilesOf(job, root->path());
    QCOMPARE(files.value(0), QStringLiteral("0/p0.jpg"));
    QCOMPARE(files.value(10), QStringLiteral("0/p10.jpg"));
    QCOMPARE(files.last(), QStringLiteral("19/p499.jpg"));
}

QTEST_GUILESS_MAIN(tst_CliInputs)
#include "tst_cliinputs.moc"
