// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Sanitizers.h"
#include "Text.h"
#include "WorkerBench.h"

#include "job/values/JobValues.h"

#include "ZTBatchDocument.h"
#include "ZTStyle.h"

#include <QDir>
#include <QTest>

#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <unistd.h>

Q_DECLARE_METATYPE(ZTBatchOutputSettings::Transformation)

using namespace BatchJob;
using namespace BatchProtocol;
using namespace BatchWorker;

namespace {

// A line of the system's account of a process, such as "VmHWM".
QByteArray StatusOf(qint64 process, const char* line)
{
    QFile file(QStringLiteral("/proc/%1/status").arg(process));
    if (!file.open(QIODevice::ReadOnly)) {
        return {};
    }
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& text : lines) {
        if (text.startsWith(QByteArray(line) + ':')) {
            return text.mid(int(qstrlen(line)) + 1).simplified();
        }
    }
    return {};
}

rlimit LimitOf(qint64 process, __rlimit_resource resource)
{
    rlimit limit{};
    prlimit(pid_t(process), resource, nullptr, &limit);
    return limit;
}

// Photo-like noise, which no encoder packs small.
Picture Noise(int width, int height)
{
    const Picture band =
        Picture::gaussnoise(width, height, Picture::option()->set("mean", 128.0)->set("seed", 1)->set("sigma", 40.0))
            .cast(VIPS_FORMAT_UCHAR);
    return band.bandjoin(band.invert())
        .bandjoin(band)
        .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB))
        .copy_memory();
}

} // namespace

/// What a worker may take, what it leaves behind, and what it gives up.
class tst_WorkerLimits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void leavesNothingOnAFullDisk_data();
    void leavesNothingOnAFullDisk();
    void goesOnAfterAFullDisk();
    void boundsItsMemory();
    void refusesBeforeEncodersFail_data();
    void refusesBeforeEncodersFail();
    void writesSmoothPhotosAsAvif();
    void staysSmall_data();
    void staysSmall();
    void keepsNoNamedFilesForItself();
    void givesUpRights();
    void endsWithItsSupervisor();
};

void tst_WorkerLimits::initTestCase()
{
    StartPictures();
}

void tst_WorkerLimits::leavesNothingOnAFullDisk_data()
{
    QTest::addColumn<QString>("format");
    for (const char* format : {"JPEG", "PNG", "TIFF", "WebP", "HEIF", "AVIF", "JPEG XL", "JPEG 2000", "GIF"}) {
        QTest::newRow(format) << Text(format);
    }
}

void tst_WorkerLimits::leavesNothingOnAFullDisk()
{
    QFETCH(const QString, format);

    WorkerBench bench;
    WritePicture(Noise(200, 150), bench.Path(Text("in.png")));
    const rlimit small{2'000, 2'000};
    QCOMPARE(prlimit(pid_t(bench.Worker().ProcessId()), RLIMIT_FSIZE, &small, nullptr), 0);
    const Report report = bench.Make(Text("in.png"), Text("out"), format);
    QVERIFY2(report.failure == PolicyKind::Output, qPrintable(report.reason));
    QCOMPARE(report.errorCode, qint32(ZTBatchMessage::WriteOutputFormatError));
    QVERIFY(!report.reason.isEmpty());
    QCOMPARE(bench.Names(), QStringList(Text("in.png")));
}

void tst_WorkerLimits::goesOnAfterAFullDisk()
{
    WorkerBench bench;
    WritePicture(Noise(200, 150), bench.Path(Text("in.png")));
    WritePicture(Picture::black(10, 10), bench.Path(Text("small.png")));
    const rlimit small{2'000, 2'000};
    QCOMPARE(prlimit(pid_t(bench.Worker().ProcessId()), RLIMIT_FSIZE, &small, nullptr), 0);
    QCOMPARE(bench.Make(Text("in.png"), Text("out.png"), Text("PNG")).failure, PolicyKind::Output);
    QCOMPARE(bench.Make(Text("small.png"), Text("out.png"), Text("PNG")).reason, QString());
}

void tst_WorkerLimits::boundsItsMemory()
{
    if (isSanitized) {
        QSKIP("sanitizers reserve more address space than any limit");
    }
    WorkerBench bench;
    // Turned by a quarter, so that it has to stand in memory as a whole.
    Picture large = Picture::black(9000, 9000, Picture::option()->set("bands", 3))
                        .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
    large.set(VIPS_META_ORIENTATION, 6);
    WritePicture(large, bench.Path(Text("in.jpg")));
    WritePicture(Chart(30, 20), bench.Path(Text("small.jpg")));
    Job job = JobOf(Text("JPEG"));
    job.limits.workerMemory = qint64(150) << 20;
    const Report report = bench.Make(Text("in.jpg"), Text("out.jpg"), Text("JPEG"), job);
    const bool isReported = report.failure == PolicyKind::Input && report.errorCode == ZTBatchMessage::ImageTooLarge;
    const bool isEnded = bench.Worker().ExitCode() == workerOutOfMemory;
    QVERIFY2(isReported || isEnded, qPrintable(report.reason));
    QVERIFY(!QFile::exists(bench.Path(Text("out.jpg"))));
}

void tst_WorkerLimits::refusesBeforeEncodersFail_data()
{
    QTest::addColumn<QString>("format");
    QTest::addColumn<QByteArray>("options");
    QTest::addColumn<bool>("isDeep");
    for (const char* format : {"HEIF", "AVIF"}) {
        const auto row = [format](const char* what) -> QTestData& {
            return QTest::addRow("%s, %s", format, what) << Text(format);
        };
        row("defaults") << QByteArray("{}") << false;
        row("the most memory") << QByteArray("{\"lossless\":true}") << true;
    }
}

/// Encoders end the process where memory is short. However much there is, the picture is written or refused.
void tst_WorkerLimits::refusesBeforeEncodersFail()
{
    QFETCH(const QString, format);
    QFETCH(const QByteArray, options);
    QFETCH(const bool, isDeep);
    if (isSanitized) {
        QSKIP("memory has no limit under sanitizers");
    }

    int refused = 0;
    int written = 0;
    for (const int mebibytes : {96, 192, 320, 400, 640}) {
        WorkerBench bench;
        const Picture photo = Noise(500, 500).replicate(5, 4);
        const Picture alpha = photo.extract_band(0);
        WritePicture(isDeep ? (photo.bandjoin(alpha) * 257).cast(VIPS_FORMAT_USHORT) : photo,
                     bench.Path(Text("in.tif")));
        Job job = JobOf(format, options);
        job.limits.workerMemory = qint64(mebibytes) << 20;
        const Report report = bench.Make(Text("in.tif"), Text("out"), format, job);
        if (report.reason.isEmpty()) {
            ++written;
            continue;
        }
        ++refused;
        QVERIFY2(report.reason.contains(Text("needs more memory than a worker may use")),
                 qPrintable(QStringLiteral("%1 MiB: %2; %3").arg(mebibytes).arg(report.reason, report.detail)));
        QCOMPARE(report.errorCode, qint32(ZTBatchMessage::ImageTooLarge));
        QCOMPARE(bench.Names(), QStringList(Text("in.tif")));
    }
    QVERIFY(refused > 0);
    QVERIFY(written > 0);
}

/// The encoder takes smooth photos for screenshots, and searching those for repeats takes four times the memory.
void tst_WorkerLimits::writesSmoothPhotosAsAvif()
{
    if (isSanitized) {
        QSKIP("memory has no limit under sanitizers");
    }

    WorkerBench bench;
    const Picture soft = Noise(300, 200).extract_band(0).cast(VIPS_FORMAT_FLOAT).gaussblur(8);
    const Picture smooth = ((soft - 127.5) * 10 + 127.5).cast(VIPS_FORMAT_UCHAR).resize(10);
    WritePicture(smooth.copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_B_W)),
                 bench.Path(Text("in.png")));
    Job job = JobOf(Text("AVIF"), "{}");
    job.limits.workerMemory = qint64(400) << 20;
    QCOMPARE(bench.Make(Text("in.png"), Text("out.avif"), Text("AVIF"), job).reason, QString());
}

void tst_WorkerLimits::staysSmall_data()
{
    using Framing = ZTBatchOutputSettings::Transformation;
    QTest::addColumn<QStringList>("effects"); // each with its parameters
    QTest::addColumn<int>("orientation");
    QTest::addColumn<int>("longSide"); // 0: as it is
    QTest::addColumn<Framing>("framing");
    Framing none;
    none.state = false;
    const QStringList sharp{Text("sharpen {}")};
    QTest::newRow("as it is") << QStringList() << 1 << 0 << none;
    QTest::newRow("turned") << QStringList() << 6 << 0 << none;
    QTest::newRow("smaller") << QStringList() << 1 << 1600 << none;
    QTest::newRow("with an effect") << sharp << 1 << 0 << none;
    QTest::newRow("with an effect, smaller and turned") << sharp << 6 << 1600 << none;

    // These read the picture in another order than its file holds it, or twice.
    QTest::newRow("mirrored upside down") << QStringList{Text("flip {\"direction\":\"vertical\"}")} << 1 << 0 << none;
    QTest::newRow("turned by an angle") << QStringList{Text("rotate {\"angle\":7}")} << 1 << 0 << none;
    QTest::newRow("clarity") << QStringList{Text("clarity {}")} << 1 << 0 << none;
    QTest::newRow("blurred widely") << QStringList{Text("blur {\"sigma\":40}")} << 1 << 0 << none;
    QTest::newRow("all of them") << QStringList{Text("auto-levels {}"), Text("clarity {}"),
                                                Text("rotate {\"angle\":7}"), Text("sharpen {\"sigma\":15}"),
                                                Text("flip {\"direction\":\"both\"}")}
                                 << 6 << 0 << none;
    QTest::newRow("every effect that streams")
        << QStringList{Text("exposure {\"stops\":0.5}"), Text("white-balance {\"temperature\":20}"),
                       Text("vibrance {\"amount\":30}"), Text("vignette {}"), Text("blur {}")}
        << 1 << 0 << none;

    Framing framed;
    framed.state = true;
    framed.margins = QMargins(100, 100, 100, 100);
    framed.opacity = 1;
    framed.shadowEnabled = true;
    framed.shadowOpacity = 0.6;
    framed.shadowColor = Qt::black;
    framed.shadowAngle = 135;
    framed.shadowDistance = 30;
    framed.shadowSize = 20;
    framed.backgroundType = int(BatchJob::BackgroundType::Colour);
    framed.backgroundColor = Qt::white;
    framed.backgroundOpacity = 1;
    QTest::newRow("framed with a shadow") << QStringList() << 1 << 0 << framed;
    framed.angle = 5;
    QTest::newRow("framed askew with a shadow") << QStringList() << 1 << 0 << framed;
    QTest::newRow("framed askew, after effects") << QStringList{Text("clarity {}")} << 6 << 0 << framed;
}

void tst_WorkerLimits::staysSmall()
{
    QFETCH(const QStringList, effects);
    QFETCH(const int, orientation);
    QFETCH(const int, longSide);
    QFETCH(const ZTBatchOutputSettings::Transformation, framing);
    if (isSanitized) {
        QSKIP("sanitizers take memory of their own");
    }

    WorkerBench bench;
    Picture photo = Noise(1000, 1000).replicate(6, 4);
    photo.set(VIPS_META_ORIENTATION, orientation);
    WritePicture(photo, bench.Path(Text("in.jpg")));
    const Job job = JobOf([&](ZTBatchDocument& document) {
        document.GetOutputSettings()->SetFormat(Text("JPEG"), {});
        document.GetOutputSettings()->SetTransformationSettings(framing);
        ZTBatchOutputSettings::ImageSize size;
        size.restriction = longSide > 0 ? int(BatchJob::SizeRestriction::Fit) : 0;
        size.side = int(BatchJob::SizeSide::LongSide);
        size.size = longSide;
        document.GetOutputSettings()->SetImageSizeSettings(size);
        for (const QString& effect : effects) {
            const QString id = effect.section(QLatin1Char(' '), 0, 0);
            document.GetStyle()->AppendEffect(id, effect.mid(id.size()).toUtf8(), true);
        }
    });
    QCOMPARE(bench.Make(Text("in.jpg"), Text("out.jpg"), Text("JPEG"), job).reason, QString());
    constexpr int most = 160; // MiB
    const int peak = StatusOf(bench.Worker().ProcessId(), "VmHWM").split(' ').first().toInt() / 1024;
    qInfo("24 megapixels: %d MiB at the peak", peak);
    QVERIFY2(peak > 0 && peak <= most, qPrintable(QStringLiteral("%1 MiB").arg(peak)));
}

/// What does not fit into memory goes to disk; a worker that is killed meanwhile must not leave it there.
void tst_WorkerLimits::keepsNoNamedFilesForItself()
{
    if (isSanitized) {
        QSKIP("under sanitizers this takes minutes");
    }
    const QTemporaryDir folder;
    const QTemporaryDir own;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(Text("TMPDIR"), own.path());
    WorkerProcess worker(environment);
    QVERIFY(worker.IsReady());
    WritePicture(Noise(1000, 1000).replicate(6, 4), folder.filePath(Text("in.jpg")));
    worker.Send(JobOf([](ZTBatchDocument& document) {
        document.GetOutputSettings()->SetFormat(Text("JPEG"), {});
        document.GetStyle()->AppendEffect(Text("rotate"), "{\"angle\":7}", true);
        document.GetStyle()->AppendEffect(Text("flip"), "{\"direction\":\"vertical\"}", true);
    }));
    PictureTask task;
    task.number = 1;
    task.inputFile = folder.filePath(Text("in.jpg"));
    task.outputFile = folder.filePath(Text("out.jpg"));
    task.format = Text("JPEG");
    worker.Send(task);
    const QDir files(QStringLiteral("/proc/%1/fd").arg(worker.ProcessId()));
    const QString deleted = own.path() + QLatin1Char('/');
    const auto hasFile = [&] {
        const QFileInfoList links = files.entryInfoList(QDir::AllEntries | QDir::System);
        return std::any_of(links.begin(), links.end(),
                           [&](const QFileInfo& link) { return link.symLinkTarget().startsWith(deleted); });
    };
    QVERIFY(QTest::qWaitFor(hasFile, 60'000));
    do {
        QCOMPARE(QDir(own.path()).entryList(QDir::Files | QDir::Hidden), QStringList());
    } while (hasFile());
    const std::optional<Report> report = worker.NextReport();
    QVERIFY(report.has_value());
    QCOMPARE(report->reason, QString());
}

void tst_WorkerLimits::givesUpRights()
{
    WorkerBench bench;
    WritePicture(Chart(30, 20), bench.Path(Text("in.png")));
    QCOMPARE(bench.Make(Text("in.png"), Text("out.png"), Text("PNG")).reason, QString());
    const qint64 process = bench.Worker().ProcessId();
    QCOMPARE(StatusOf(process, "NoNewPrivs"), QByteArray("1"));
    QCOMPARE(StatusOf(process, "Seccomp"), QByteArray("2"));
    QCOMPARE(qint64(LimitOf(process, RLIMIT_CORE).rlim_max), qint64(0));
    const ServerLimits limits;
    if (!isSanitized) {
        QCOMPARE(qint64(LimitOf(process, RLIMIT_DATA).rlim_max), limits.workerMemory);
    }
    QVERIFY(LimitOf(process, RLIMIT_FSIZE).rlim_max != RLIM_INFINITY);
}

void tst_WorkerLimits::endsWithItsSupervisor()
{
    // A shell in the place of the supervisor starts a worker whose input never ends, and is killed.
    QTemporaryDir folder;
    QProcess shell;
    const QString script = Text("mkfifo \"$0/input\"; exec 3<>\"$0/input\"; \"$1\" <\"$0/input\" >/dev/null & "
                                "echo $!; wait");
    shell.start(Text("bash"), {Text("-c"), script, folder.path(), Text(WORKER_PATH)});
    QVERIFY(shell.waitForReadyRead(30'000));
    const pid_t worker = shell.readLine().trimmed().toInt();
    QVERIFY(worker > 0);
    QTRY_VERIFY_WITH_TIMEOUT(StatusOf(worker, "NoNewPrivs") == "1", 30'000);
    shell.kill();
    QVERIFY(shell.waitForFinished(30'000));
    QTRY_VERIFY_WITH_TIMEOUT(StatusOf(worker, "Name").isEmpty() || StatusOf(worker, "State").startsWith('Z'), 30'000);
}

QTEST_GUILESS_MAIN(tst_WorkerLimits)
#include "tst_workerlimits.moc"
