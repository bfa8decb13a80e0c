// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureFiles.h"
#include "PrivateTempDir.h"
#include "ProgramFiles.h"
#include "SystemWords.h"

#include "hosts/desktop/preview/PreviewMaker.h"

#include "ZTBatchDocument.h"

#include <QColorSpace>
#include <QDir>
#include <QSignalSpy>
#include <QtTest>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sched.h>
#include <sys/types.h>
#elif defined(Q_OS_WIN)
#include <qt_windows.h>
#endif

using namespace BatchDesktop;
using namespace BatchProtocol;

/// What is shown for which picture, whatever happens to workers and files.
class tst_PreviewMaker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void beforeAndAfter();
    void sizeIsThatOfTheResult();
    void theNewestWins();
    void staleWorkersAreEnded();
    void stopGivesUp();
    void pictureBeforeIsKept();
    void changedFilesAreReadAgain();
    void resultsStayUntilTheNext();
    void refusedSettings();
    void vanishedFiles();
    void endsOfWorkers_data();
    void endsOfWorkers();
    void missingWorker();
#ifdef Q_OS_LINUX
    void previewsDoNotWaitBehindOthers();
    void killedSpareWorkers();
#endif
    void foldersOfKilledProcessesAreRemoved();

private:
    void UseStandIn(int pictureSeconds = 60);
    QString StandInFile(const QByteArray& command);
    PreviewPictures MadeOf(const QString& file, const Settings& settings);
    QString ReasonFor(const QString& file, const Settings& settings);
    QStringList FilesOfPreviews() const;
#ifdef Q_OS_LINUX
    static QList<QByteArray> ChildProcesses();
#endif

    std::unique_ptr<PrivateTempDir> folder;
    QString photo;
    std::unique_ptr<PreviewMaker> maker;
};

namespace {

constexpr int patience = 60'000; // ms

Settings ToJpeg()
{
    Settings settings = Settings::Of(ZTBatchDocument());
    settings.format = QStringLiteral("JPEG");
    return settings;
}

Settings OfLength(double length)
{
    Settings settings = ToJpeg();
    settings.imageSize.restriction = 1;
    settings.imageSize.size = length;
    return settings;
}

Settings WithEffect(const char* name)
{
    Settings settings = ToJpeg();
    settings.effects.append({QString::fromLatin1(name), "{}", true});
    return settings;
}

/// Windows cannot tell a folder that was left from one that is just being made, unless it is of some age.
#ifdef Q_OS_WIN
bool MakeOld(const QString& path)
{
    constexpr quint64 age = 120ULL * 10'000'000; // two minutes in units of FILETIME
    FILETIME now{};
    GetSystemTimeAsFileTime(&now);
    const quint64 then = (quint64(now.dwHighDateTime) << 32 | now.dwLowDateTime) - age;
    const FILETIME changed{DWORD(then), DWORD(then >> 32)};
    const HANDLE opened =
        CreateFileW(QDir::toNativeSeparators(path).toStdWString().c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr); // The flag opens folders.
    const bool isSet = SetFileTime(opened, nullptr, nullptr, &changed) != FALSE;
    CloseHandle(opened);
    return isSet;
}
#else
bool MakeOld(const QString&)
{
    return true;
}
#endif

int BrightnessOf(const QImage& picture)
{
    return qGray(picture.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(0, 0));
}

} // namespace

void tst_PreviewMaker::init()
{
    folder = std::make_unique<PrivateTempDir>();
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(folder->FilePath(QString())));
    photo = folder->FilePath(QStringLiteral("photo.jpg"));
    QImage image(60, 40, QImage::Format_RGB32);
    image.fill(QColor(200, 200, 200));
    QVERIFY(image.save(photo));
    maker = std::make_unique<PreviewMaker>();
}

void tst_PreviewMaker::cleanup()
{
    maker.reset();
    QCOMPARE(folder->Entries().filter(QStringLiteral("velkora-")), QStringList());
    folder.reset();
}

/// Previews are made by a worker that does what the first lines of its files say.
void tst_PreviewMaker::UseStandIn(int pictureSeconds)
{
    ServerLimits limits = ServerLimits::FromEnvironment();
    limits.pictureSeconds = pictureSeconds;
    maker = std::make_unique<PreviewMaker>(BuiltProgram(QStringLiteral("standinworker")), limits, QByteArray());
}

QString tst_PreviewMaker::StandInFile(const QByteArray& command)
{
    const QString path =
        folder->FilePath(QString::fromLatin1(command).simplified().replace(QLatin1Char(' '), QLatin1Char('-')));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(command + '\n') < 0) {
        qFatal("%s cannot be written", qUtf8Printable(path));
    }
    return path;
}

PreviewPictures tst_PreviewMaker::MadeOf(const QString& file, const Settings& settings)
{
    QSignalSpy made(maker.get(), &PreviewMaker::Made);
    QSignalSpy failed(maker.get(), &PreviewMaker::Failed);
    maker->Show(file, settings);
    if (!QTest::qWaitFor([&] { return made.count() + failed.count() > 0; }, patience) || made.isEmpty()) {
        qWarning("%s", qUtf8Printable(failed.value(0).value(0).toString()));
        return {};
    }
    return made.first().first().value<PreviewPictures>();
}

QString tst_PreviewMaker::ReasonFor(const QString& file, const Settings& settings)
{
    QSignalSpy made(maker.get(), &PreviewMaker::Made);
    QSignalSpy failed(maker.get(), &PreviewMaker::Failed);
    maker->Show(file, settings);
    const bool isOver = QTest::qWaitFor([&] { return made.count() + failed.count() > 0; }, patience);
    return isOver && made.isEmpty() ? failed.first().first().toString() : QStringLiteral("no failure");
}

QStringList tst_PreviewMaker::FilesOfPreviews() const
{
    QStringList files = QDir(maker->Folder()).entryList(QDir::Files | QDir::Hidden);
    files.removeAll(QStringLiteral("in-use")); // holds the folder on Windows
    return files;
}

void tst_PreviewMaker::beforeAndAfter()
{
    const PreviewPictures pictures = MadeOf(photo, WithEffect("invert"));
    QCOMPARE(pictures.input, photo);
    QCOMPARE(pictures.inputSize, QSize(60, 40));
    QCOMPARE(pictures.inputBytes, QFileInfo(photo).size());
    QCOMPARE(pictures.size, QSize(60, 40));
    QCOMPARE(pictures.bytes, QFileInfo(pictures.result).size());
    QCOMPARE(pictures.format, QStringLiteral("JPEG"));
    QVERIFY(pictures.seconds > 0);
    QCOMPARE(pictures.before.size(), QSize(60, 40));
    QCOMPARE(pictures.after.size(), QSize(60, 40));
    QVERIFY(qAbs(BrightnessOf(pictures.before) - 200) < 4);
    QVERIFY(qAbs(BrightnessOf(pictures.after) - 55) < 4);
}

void tst_PreviewMaker::sizeIsThatOfTheResult()
{
    const PreviewPictures pictures = MadeOf(photo, OfLength(30));
    QCOMPARE(pictures.size, QSize(30, 20));
    QCOMPARE(pictures.before.size(), QSize(30, 20));
    QCOMPARE(pictures.after.size(), QSize(30, 20));
}

void tst_PreviewMaker::theNewestWins()
{
    QSignalSpy updating(maker.get(), &PreviewMaker::Updating);
    QSignalSpy made(maker.get(), &PreviewMaker::Made);
    for (const int length : {12, 15, 18}) {
        maker->Show(photo, OfLength(length));
    }
    QTRY_COMPARE_WITH_TIMEOUT(made.count(), 1, patience);
    QVERIFY(!maker->IsUpdating());
    QCOMPARE(made.first().first().value<PreviewPictures>().size, QSize(18, 12));
    QCOMPARE(updating.count(), 1);
}

void tst_PreviewMaker::staleWorkersAreEnded()
{
    UseStandIn();
    QSignalSpy failed(maker.get(), &PreviewMaker::Failed);
    maker->Show(StandInFile("hang"), ToJpeg());
    QTRY_VERIFY_WITH_TIMEOUT(!FilesOfPreviews().isEmpty(), patience);
    maker->Show(StandInFile("input 7"), ToJpeg());
    QTRY_COMPARE_WITH_TIMEOUT(failed.count(), 1, patience);
    QVERIFY(failed.first().first().toString().contains(QStringLiteral("as the script says")));
    // What the ended workers had begun goes with the next preview.
    QTRY_VERIFY_WITH_TIMEOUT((ReasonFor(StandInFile("input 7"), ToJpeg()), FilesOfPreviews().isEmpty()), patience);
}

void tst_PreviewMaker::stopGivesUp()
{
    UseStandIn();
    QSignalSpy failed(maker.get(), &PreviewMaker::Failed);
    maker->Show(StandInFile("hang"), ToJpeg());
    QTRY_VERIFY_WITH_TIMEOUT(!FilesOfPreviews().isEmpty(), patience);
    maker->Stop();
    QVERIFY(!maker->IsUpdating());
    QVERIFY(!ReasonFor(StandInFile("input 7"), ToJpeg()).isEmpty());
    QCOMPARE(failed.count(), 1);
}

void tst_PreviewMaker::pictureBeforeIsKept()
{
    const PreviewPictures first = MadeOf(photo, WithEffect("invert"));
    const PreviewPictures second = MadeOf(photo, WithEffect("sepia"));
    QVERIFY(!first.before.isNull());
    QCOMPARE(second.before.cacheKey(), first.before.cacheKey());
    QVERIFY(second.after.cacheKey() != first.after.cacheKey());
}

void tst_PreviewMaker::changedFilesAreReadAgain()
{
    const PreviewPictures first = MadeOf(photo, ToJpeg());
    PictureFiles::WriteJpeg(photo, 1, 50, 20);
    const PreviewPictures second = MadeOf(photo, ToJpeg());
    QCOMPARE(first.before.size(), QSize(60, 40));
    QCOMPARE(second.before.size(), QSize(50, 20));
}

void tst_PreviewMaker::resultsStayUntilTheNext()
{
    const PreviewPictures first = MadeOf(photo, ToJpeg());
    QCOMPARE(FilesOfPreviews(), QStringList(QFileInfo(first.result).fileName()));
    const PreviewPictures second = MadeOf(photo, OfLength(30));
    QCOMPARE(FilesOfPreviews(), QStringList(QFileInfo(second.result).fileName()));
}

void tst_PreviewMaker::refusedSettings()
{
    Settings settings = ToJpeg();
    settings.formatOptions = R"({"quality": 101})";
    QVERIFY(ReasonFor(photo, settings).contains(QStringLiteral("quality")));
    QCOMPARE(MadeOf(photo, ToJpeg()).size, QSize(60, 40));
}

void tst_PreviewMaker::vanishedFiles()
{
    QFile::remove(photo);
    const QString words = WordsForMissing(photo);
    QVERIFY(ReasonFor(photo, ToJpeg()).contains(words));
    Settings sameFormat = ToJpeg();
    sameFormat.format = ZTBatchOutputSettings::GetOriginalFormat();
    QVERIFY(ReasonFor(photo, sameFormat).contains(words));
}

void tst_PreviewMaker::endsOfWorkers_data()
{
    QTest::addColumn<QString>("reason");
    QTest::newRow("crash") << QStringLiteral("the worker ended by");
    QTest::newRow("exit") << QStringLiteral("the worker ended with exit code 3");
    QTest::newRow("outofmemory") << QStringLiteral("more memory than the limit");
    QTest::newRow("garbage") << QStringLiteral("the worker sent an invalid answer");
    QTest::newRow("hang") << QStringLiteral("longer than the limit of 1 seconds");
}

void tst_PreviewMaker::endsOfWorkers()
{
    QFETCH(QString, reason);
    UseStandIn(1);
    const QString said = ReasonFor(StandInFile(QTest::currentDataTag()), ToJpeg());
    QVERIFY2(said.contains(reason), qUtf8Printable(said));
    QVERIFY(ReasonFor(StandInFile("input 7"), ToJpeg()).contains(QStringLiteral("as the script says")));
}

void tst_PreviewMaker::missingWorker()
{
    const QString missing = folder->FilePath(QStringLiteral("missing"));
    maker = std::make_unique<PreviewMaker>(missing, ServerLimits::FromEnvironment(), QByteArray());
    QVERIFY(ReasonFor(photo, ToJpeg()).startsWith(QStringLiteral("the worker ")));
}

#ifdef Q_OS_LINUX
QList<QByteArray> tst_PreviewMaker::ChildProcesses()
{
    const qint64 self = QCoreApplication::applicationPid();
    QFile children(QStringLiteral("/proc/%1/task/%1/children").arg(self));
    return children.open(QIODevice::ReadOnly) ? children.readAll().simplified().split(' ') : QList<QByteArray>();
}

// Runs do, and the user waits for a preview.
void tst_PreviewMaker::previewsDoNotWaitBehindOthers()
{
    QCOMPARE(MadeOf(photo, ToJpeg()).size, QSize(60, 40));
    const QList<QByteArray> processes = ChildProcesses();
    QVERIFY(processes.size() >= 2); // those that are spare, and that of the display
    for (const QByteArray& process : processes) {
        QCOMPARE(sched_getscheduler(pid_t(process.toInt())), sched_getscheduler(0));
    }
}

void tst_PreviewMaker::killedSpareWorkers()
{
    QCOMPARE(MadeOf(photo, ToJpeg()).size, QSize(60, 40));
    const QList<QByteArray> processes = ChildProcesses();
    QVERIFY(processes.size() >= 2); // those that are spare, and that of the display
    for (const QByteArray& process : processes) {
        QCOMPARE(kill(pid_t(process.toInt()), SIGKILL), 0);
    }
    QCOMPARE(MadeOf(photo, OfLength(30)).after.size(), QSize(30, 20));
}
#endif

void tst_PreviewMaker::foldersOfKilledProcessesAreRemoved()
{
    const QString left = folder->FilePath(QStringLiteral("velkora-preview-aB3xYz"));
    QVERIFY(QDir().mkpath(left));
    QVERIFY(MakeOld(left));
    maker = std::make_unique<PreviewMaker>();
    QVERIFY(!QFileInfo::exists(left));
    QVERIFY(QFileInfo(maker->Folder()).isDir());
}

QTEST_MAIN(tst_PreviewMaker)

#include "tst_previewmaker.moc"
