// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TestPictures.h"
#include "WorkerProcess.h"

#include "job/values/JobValues.h"
#include "server/protocol/SystemProtection.h"

#include "ZTBatchDocument.h"
#include "ZTStyle.h"

#include <QDir>
#include <QTest>

#include <numeric>

using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

/// A job of PNG files whose width is `width`.
Job ScaledJob(BatchJob::SizeRestriction restriction, int width)
{
    return JobOf(QStringLiteral("PNG"), {}, [restriction, width](ZTBatchOutputSettings& output) {
        ZTBatchOutputSettings::ImageSize size;
        size.restriction = int(restriction);
        size.size = width;
        output.SetImageSizeSettings(size);
    });
}

} // namespace

/// The worker as its supervisor sees it: messages, reports, files.
class tst_WorkerProcess : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void endsWithItsInput();
    void refusesWhatIsNoMessage();
    void refusesTasksBeforeItsJob();
    void opensFilesOfItsJobOnly();
    void reportsARefusedJob();
    void writesAPicture();
    void reportsInOrder();
    void reportsBadInput_data();
    void reportsBadInput();
    void leavesATakenNameAlone();
    void replacesOnRequest();
    void reportsAnUnusableFolder();
    void followsNoLinkBelowTheRoot();
    void probesFiles();
    void scalesAPicture();

private:
    QString Path(const QString& name) const { return folder->filePath(name); }
    QByteArray Bytes(const QString& name) const;
    void WriteBytes(const QString& name, const QByteArray& bytes) const;
    PictureTask Task(const QString& input, const QString& output) const;

    std::unique_ptr<QTemporaryDir> folder;
};

void tst_WorkerProcess::initTestCase()
{
    StartPictures();
}

void tst_WorkerProcess::init()
{
    folder = std::make_unique<QTemporaryDir>();
    QVERIFY(folder->isValid());
}

QByteArray tst_WorkerProcess::Bytes(const QString& name) const
{
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("no such file");
}

void tst_WorkerProcess::WriteBytes(const QString& name, const QByteArray& bytes) const
{
    QFile file(Path(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(bytes), qint64(bytes.size()));
}

PictureTask tst_WorkerProcess::Task(const QString& input, const QString& output) const
{
    PictureTask task;
    task.number = 7;
    task.inputFile = Path(input);
    task.outputFile = Path(output);
    task.format = QStringLiteral("JPEG");
    return task;
}

void tst_WorkerProcess::endsWithItsInput()
{
    WorkerProcess worker;
    QVERIFY(worker.IsReady());
    QCOMPARE(worker.ExitCode(), 0);
}

void tst_WorkerProcess::refusesWhatIsNoMessage()
{
    WorkerProcess worker;
    worker.SendBytes(QByteArray("\0\0\0\1\x77", 5));
    QCOMPARE(worker.NextReport().has_value(), false);
    QCOMPARE(worker.ExitCode(), 1);
    QVERIFY(worker.ErrorOutput().contains("an invalid message"));
}

/// Its job says what it may open: before that it is not confined.
void tst_WorkerProcess::refusesTasksBeforeItsJob()
{
    WritePicture(Chart(30, 20), Path(QStringLiteral("in.jpg")));
    WorkerProcess worker;
    worker.Send(ProbeTask{1, Path(QStringLiteral("in.jpg"))});
    QCOMPARE(worker.NextReport().has_value(), false);
    QCOMPARE(worker.ExitCode(), 1);
    QVERIFY(worker.ErrorOutput().contains("a task before its job"));
}

void tst_WorkerProcess::opensFilesOfItsJobOnly()
{
    if (SystemProtection::OfThisSystem().fileAccess == 0) {
        QSKIP("this kernel does not restrict the access to files");
    }
    for (const char* name : {"of the job", "of another", "results"}) {
        QVERIFY(QDir(folder->path()).mkdir(QLatin1String(name)));
    }
    WritePicture(Chart(30, 20), Path(QStringLiteral("of the job/in.jpg")));
    WritePicture(Chart(30, 20), Path(QStringLiteral("of another/in.jpg")));
    Job job = JobOf(QStringLiteral("JPEG"));
    job.rights.readable = QStringList(Path(QStringLiteral("of the job")));
    job.rights.writable = QStringList(Path(QStringLiteral("results")));
    WorkerProcess worker;
    worker.Send(job);
    const PictureTask good = Task(QStringLiteral("of the job/in.jpg"), QStringLiteral("results/out.jpg"));
    QCOMPARE(worker.Do(good).reason, QString());
    const Report unread = worker.Do(Task(QStringLiteral("of another/in.jpg"), QStringLiteral("results/two.jpg")));
    QCOMPARE(unread.failure, BatchJob::PolicyKind::Input);
    QCOMPARE(unread.errorCode, qint32(ZTBatchMessage::ReadFileError));
    const Report unwritten = worker.Do(Task(QStringLiteral("of the job/in.jpg"), QStringLiteral("of another/out.jpg")));
    QCOMPARE(unwritten.failure, BatchJob::PolicyKind::Output);

    // A later job opens nothing more.
    worker.Send(JobOf(QStringLiteral("JPEG")));
    QCOMPARE(worker.Do(ProbeTask{1, Path(QStringLiteral("of another/in.jpg"))}).failure, BatchJob::PolicyKind::Input);
    QCOMPARE(worker.Do(ProbeTask{1, Path(QStringLiteral("of the job/in.jpg"))}).reason, QString());
}

void tst_WorkerProcess::reportsARefusedJob()
{
    WritePicture(Chart(30, 20), Path(QStringLiteral("in.jpg")));
    const PictureTask task = Task(QStringLiteral("in.jpg"), QStringLiteral("out.jpg"));
    WorkerProcess worker;
    worker.Send(JobOf(
        [](ZTBatchDocument& document) { document.GetStyle()->AppendEffect(QStringLiteral("sparkle"), {}, true); }));
    const Report report = worker.Do(task);
    QCOMPARE(report.failure, BatchJob::PolicyKind::Processing);
    QCOMPARE(report.errorCode, qint32(ZTBatchMessage::NoAdjustment));
    QVERIFY2(report.reason.contains(QStringLiteral("\"sparkle\"")), qUtf8Printable(report.reason));
    QVERIFY(!QFile::exists(task.outputFile));

    // The next job is none the worse for it.
    worker.Send(JobOf(QStringLiteral("JPEG")));
    QCOMPARE(worker.Do(task).reason, QString());
}

void tst_WorkerProcess::writesAPicture()
{
    const Picture chart = Chart(64, 40);
    WritePicture(chart, Path(QStringLiteral("in.png")));
    WorkerProcess worker;
    worker.Send(JobOf(QStringLiteral("PNG")));
    PictureTask task = Task(QStringLiteral("in.png"), QStringLiteral("out.png"));
    task.format = QStringLiteral("PNG");
    const Report report = worker.Do(task);
    QCOMPARE(report.reason, QString());
    QCOMPARE(report.failure, BatchJob::PolicyKind::None);
    QCOMPARE(report.number, task.number);
    QCOMPARE(report.facts.inputSize, QSize(64, 40));
    QCOMPARE(report.facts.outputSize, QSize(64, 40));
    QCOMPARE(report.facts.quality, 0);
    QVERIFY(report.facts.milliseconds >= 0);
    QCOMPARE(LargestDifference(ReadPicture(task.outputFile), chart), 0.0);
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void tst_WorkerProcess::reportsInOrder()
{
    WritePicture(Chart(300, 200), Path(QStringLiteral("in.jpg")));
    WorkerProcess worker;
    worker.Send(JobOf(QStringLiteral("JPEG")));
    constexpr int count = 20;
    for (int i = 0; i < count; ++i) {
        // Every third file is missing: what fails is quicker than what is written.
        const bool isMissing = i % 3 == 1;
        PictureTask task =
            Task(isMissing ? QStringLiteral("none.jpg") : QStringLiteral("in.jpg"), QStringLiteral("out%1.jpg").arg(i));
        task.number = i;
        worker.Send(task);
    }
    for (int i = 0; i < count; ++i) {
        const std::optional<Report> report = worker.NextReport();
        QVERIFY(report.has_value());
        QCOMPARE(report->number, i);
        QCOMPARE(report->failure, i % 3 == 1 ? BatchJob::PolicyKind::Input : BatchJob::PolicyKind::None);
        QCOMPARE(QFile::exists(Path(QStringLiteral("out%1.jpg").arg(i))), i % 3 != 1);
    }
    QVector<int> all(count);
    std::iota(all.begin(), all.end(), 0);
    QCOMPARE(worker.Begun(), all);
}

void tst_WorkerProcess::reportsBadInput_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("error");
    QTest::addColumn<QString>("words");

    const auto encoded = [](const char* suffix) {
        const QTemporaryDir place;
        const QString file = place.filePath(QStringLiteral("whole") + QLatin1String(suffix));
        WritePicture(Chart(400, 300), file);
        QFile whole(file);
        return whole.open(QIODevice::ReadOnly) ? whole.readAll() : QByteArray();
    };
    const QByteArray jpeg = encoded(".jpg");
    const QByteArray png = encoded(".png");
    const int damaged = ZTBatchMessage::ReadFileError;
    const int unknown = ZTBatchMessage::UnsupportedInputFormat;
    QTest::newRow("zero bytes") << QByteArray("") << damaged << QStringLiteral("empty");
    QTest::newRow("text") << QByteArray("no picture at all") << unknown << QStringLiteral("decoder");
    QTest::newRow("half a JPEG") << jpeg.left(jpeg.size() / 2) << damaged << QString();
    QTest::newRow("a JPEG without its last hundred bytes") << jpeg.chopped(100) << damaged << QString();
    QTest::newRow("start of a JPEG") << jpeg.left(30) << damaged << QString();
    QTest::newRow("half a PNG") << png.left(png.size() / 2) << damaged << QString();
    QTest::newRow("start of a PNG") << png.left(20) << damaged << QString();
    QTest::newRow("half a TIFF") << encoded(".tif").left(50'000) << damaged << QString();
    QTest::newRow("half a WebP") << encoded(".webp").left(2'000) << damaged << QString();
    QTest::newRow("half a GIF") << encoded(".gif").left(2'000) << damaged << QString();
    QTest::newRow("half a JPEG XL") << encoded(".jxl").left(1'000) << damaged << QString();
    QTest::newRow("half a JPEG 2000") << encoded(".jp2").left(2'000) << damaged << QString();
    QTest::newRow("half an AVIF") << encoded(".avif").left(2'000) << damaged << QString();
}

void tst_WorkerProcess::reportsBadInput()
{
    QFETCH(const QByteArray, bytes);
    QFETCH(const int, error);
    QFETCH(const QString, words);

    WriteBytes(QStringLiteral("in.jpg"), bytes);
    WorkerProcess worker;
    worker.Send(JobOf(QStringLiteral("JPEG")));
    const Report report = worker.Do(Task(QStringLiteral("in.jpg"), QStringLiteral("out.jpg")));
    QCOMPARE(report.failure, BatchJob::PolicyKind::Input);
    QCOMPARE(report.errorCode, error);
    QVERIFY(!report.reason.isEmpty());
    QVERIFY2(report.reason.contains(words), qUtf8Printable(report.reason));
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files | QDir::Hidden), QStringList(QStringLiteral("in.jpg")));
    QCOMPARE(worker.ExitCode(), 0);
}

void tst_WorkerProcess::leavesATakenNameAlone()
{
    WritePicture(Chart(30, 20), Path(QStringLiteral("in.jpg")));
    WriteBytes(QStringLiteral("out.jpg"), "somebody's");
    WorkerProcess worker;
    worker.Send(JobOf(QStringLiteral("JPEG")));
    const Report report = worker.Do(Task(QStringLiteral("in.jpg"), QStringLiteral("out.jpg")));
    QCOMPARE(report.failure, BatchJob::PolicyKind::Naming);
    QCOMPARE(report.errorCode, qint32(ZTBatchMessage::FileNameAlreadyExists));
    QCOMPARE(Bytes(QStringLiteral("out.jpg")), QByteArray("somebody's"));
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}

void tst_WorkerProcess::replacesOnRequest()
{
    // The source itself is the hardest case: it is read while its successor is written.
    WritePicture(Chart(300, 200), Path(QStringLiteral("in.png")));
    WorkerProcess worker;
    worker.Send(ScaledJob(BatchJob::SizeRestriction::Fit, 30));
    PictureTask task = Task(QStringLiteral("in.png"), QStringLiteral("in.png"));
    task.format = QStringLiteral("PNG");
    task.replaceExisting = true;
    QCOMPARE(worker.Do(task).reason, QString());
    QCOMPARE(ReadPicture(task.outputFile).width(), 30);
    QCOMPARE(ReadPicture(task.outputFile).height(), 20);
    QCOMPARE(QDir(folder->path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

void tst_WorkerProcess::reportsAnUnusableFolder()
{
    WritePicture(Chart(30, 20), Path(QStringLiteral("in.jpg")));
    WorkerProcess worker;
    worker.Send(JobOf(QStringLiteral("JPEG")));
    const Report report = worker.Do(Task(QStringLiteral("in.jpg"), QStringLiteral("no such folder/out.jpg")));
    QCOMPARE(report.failure, BatchJob::PolicyKind::Output);
    QCOMPARE(report.errorCode, qint32(ZTBatchMessage::WriteOutputFormatError));
    QVERIFY(!report.reason.isEmpty());
}

void tst_WorkerProcess::followsNoLinkBelowTheRoot()
{
#ifdef Q_OS_WIN
    QSKIP("A link that Qt creates is an ordinary file there.");
#endif
    WritePicture(Chart(30, 20), Path(QStringLiteral("in.png")));
    QVERIFY(QDir(folder->path()).mkpath(QStringLiteral("private")));
    QVERIFY(QDir(folder->path()).mkpath(QStringLiteral("out")));
    QVERIFY(QFile::link(Path(QStringLiteral("private")), Path(QStringLiteral("out/link"))));
    PictureTask task = Task(QStringLiteral("in.png"), QStringLiteral("out/link/out.jpg"));
    task.outputRoot = Path(QStringLiteral("out"));
    WorkerProcess worker;
    worker.Send(JobOf(QStringLiteral("JPEG")));
    const Report report = worker.Do(task);
    QCOMPARE(report.failure, BatchJob::PolicyKind::Output);
    QCOMPARE(report.errorCode, qint32(ZTBatchMessage::WriteOutputFormatError));
    QVERIFY2(report.reason.contains(QStringLiteral("/out/link is a link; ")), qUtf8Printable(report.reason));
    QVERIFY(QDir(Path(QStringLiteral("private"))).isEmpty());
    task.outputRoot.clear();
    QCOMPARE(worker.Do(task).reason, QString());
    QVERIFY(QFile::exists(Path(QStringLiteral("private/out.jpg"))));
}

void tst_WorkerProcess::probesFiles()
{
    Picture picture = Chart(30, 20);
    picture.set("exif-ifd2-DateTimeOriginal", "2019:07:06 05:04:03");
    WritePicture(picture, Path(QStringLiteral("dated.jpg")));
    WritePicture(Chart(30, 20), Path(QStringLiteral("plain.png")));
    WorkerProcess worker;
    worker.Send(JobOf(QStringLiteral("JPEG")));
    const Report dated = worker.Do(ProbeTask{1, Path(QStringLiteral("dated.jpg"))});
    QCOMPARE(dated.reason, QString());
    QCOMPARE(dated.inputFormat, QStringLiteral("JPEG"));
    QCOMPARE(dated.captured, QDateTime(QDate(2019, 7, 6), QTime(5, 4, 3)));
    const Report plain = worker.Do(ProbeTask{2, Path(QStringLiteral("plain.png"))});
    QCOMPARE(plain.inputFormat, QStringLiteral("PNG"));
    QCOMPARE(plain.captured, QFileInfo(Path(QStringLiteral("plain.png"))).lastModified());
    QCOMPARE(plain.nearestFormat, QStringLiteral("JPEG"));
    QCOMPARE(worker.Do(ProbeTask{3, Path(QStringLiteral("none"))}).errorCode, qint32(ZTBatchMessage::ReadFileError));
}

void tst_WorkerProcess::scalesAPicture()
{
    WritePicture(Chart(1200, 800, 64), Path(QStringLiteral("in.jpg")));
    WorkerProcess worker;
    worker.Send(ScaledJob(BatchJob::SizeRestriction::ReduceOnly, 150));
    PictureTask task = Task(QStringLiteral("in.jpg"), QStringLiteral("out.png"));
    task.format = QStringLiteral("PNG");
    QCOMPARE(worker.Do(task).reason, QString());
    const Picture result = ReadPicture(task.outputFile);
    QCOMPARE(result.width(), 150);
    QCOMPARE(result.height(), 100);
    // The worker lets the decoder do a part of the reduction. Nobody must see that.
    const double difference = MeanDifference(result, ReadPicture(Path(QStringLiteral("in.jpg"))).resize(0.125));
    QVERIFY2(difference < 1.0, qPrintable(QString::number(difference)));
}

QTEST_GUILESS_MAIN(tst_WorkerProcess)
#include "tst_workerprocess.moc"
