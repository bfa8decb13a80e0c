// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "EffectCases.h"
#include "Stopwatch.h"
#include "WorkerProcess.h"
#include "ZTBatchDocument.h"
#include "ZTStyle.h"

#include "job/effects/EffectCatalog.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>
#include <QProcess>
#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <sys/resource.h>

/// What each effect adds to the processor time of a worker, in nanoseconds for each pixel of the given picture, over
/// the same job without it; and what the nearest operation of another program adds to that program's copy of the
/// picture. The cases take turns with the job without effects, so that all see the same machine; medians count.
namespace {

double Seconds(const timeval& time)
{
    return double(time.tv_sec) + double(time.tv_usec) / 1e6;
}

[[noreturn]] void Fail(const QString& reason)
{
    std::fprintf(stderr, "%s\n", qPrintable(reason));
    std::exit(1);
}

void WriteText(const QString& path, const QByteArray& text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size()) {
        Fail(file.errorString());
    }
}

QByteArray WarmCube()
{
    constexpr int size = 33;
    QByteArray text = "LUT_3D_SIZE " + QByteArray::number(size) + "\n";
    for (int entry = 0; entry < size * size * size; ++entry) {
        const double red = entry % size / (size - 1.0);
        const double green = entry / size % size / (size - 1.0);
        const double blue = entry / size / size / (size - 1.0);
        text += QByteArray::number(0.9 * red + 0.1 * green) + ' ' + QByteArray::number(green * (0.7 + 0.3 * red)) +
                ' ' + QByteArray::number(0.8 * blue * blue) + '\n';
    }
    return text;
}

/// The picture, a worker, and files that the cases need.
class Bench
{
public:
    explicit Bench(const QString& picture);

    double Pixels() const { return pixels; }

    /// How many times the goals of 8 bits may be taken.
    double Allowance() const { return format == QLatin1String("JPEG") ? 1.0 : 2.5; }

    /// Processor seconds of the worker for one picture.
    double WorkerSeconds(const EffectCase* effect);

    /// Processor seconds of a program, with its start.
    double ProgramSeconds(const QString& command);

private:
    QString Result() const { return folder.filePath(QStringLiteral("out.") + extension); }
    QByteArray Parameters(const EffectCase& effect) const;

    QTemporaryDir folder;
    QString extension;
    QString format;
    QByteArray options;
    QString input;
    double pixels = 0;
    WorkerProcess worker;
};

Bench::Bench(const QString& picture)
{
    extension = QFileInfo(picture).suffix();
    const bool isJpeg = extension == QLatin1String("jpg");
    format = isJpeg ? QStringLiteral("JPEG") : QStringLiteral("TIFF");
    options = isJpeg ? R"({"quality": 85})" : R"({"bitDepth": 16, "compression": "none"})";
    input = folder.filePath(QStringLiteral("in.") + extension);
    if (!worker.IsReady() || !QFile::copy(picture, input)) {
        Fail(QStringLiteral("There is no worker, or no picture %1.").arg(picture));
    }
    WriteText(folder.filePath(QStringLiteral("warm.cube")), WarmCube());
    WriteText(folder.filePath(QStringLiteral("matrix.mat")), "3 3\n1.4 -0.3 -0.1\n-0.1 1.2 -0.1\n-0.1 -0.4 1.5\n");
    WriteText(folder.filePath(QStringLiteral("grey.mat")), "3 1\n0.2126 0.7152 0.0722\n");
    QImage tones(256, 1, QImage::Format_Grayscale8);
    for (int value = 0; value < 256; ++value) {
        tones.scanLine(0)[value] = uchar(value * value / 255);
    }
    QImage mark(400, 200, QImage::Format_ARGB32);
    mark.fill(QColor(200, 40, 90, 128));
    if (!tones.save(folder.filePath(QStringLiteral("tones.png"))) ||
        !mark.save(folder.filePath(QStringLiteral("mark.png")))) {
        Fail(QStringLiteral("The files of the cases cannot be written."));
    }
    worker.Send(JobOf(format, options));
    const BatchProtocol::Report report = worker.Do(BatchProtocol::ProbeTask{1, input});
    pixels = double(report.facts.inputSize.width()) * report.facts.inputSize.height();
}

QByteArray Bench::Parameters(const EffectCase& effect) const
{
    QJsonObject parameters = QJsonDocument::fromJson(effect.parameters).object();
    const QString name = QStringLiteral("file");
    if (parameters.contains(name)) {
        parameters.insert(name, folder.filePath(parameters[name].toString()));
    }
    return QJsonDocument(parameters).toJson(QJsonDocument::Compact);
}

double Bench::WorkerSeconds(const EffectCase* effect)
{
    worker.Send(JobOf([&](ZTBatchDocument& document) {
        document.GetOutputSettings()->SetFormat(format, options);
        if (effect) {
            document.GetStyle()->AppendEffect(QString::fromLatin1(effect->id), Parameters(*effect), true);
        }
    }));
    BatchProtocol::PictureTask task;
    task.number = 1;
    task.inputFile = input;
    task.outputFile = Result();
    task.format = format;
    task.replaceExisting = true;
    // The clock of another process; it counts threads that have ended, too.
    clockid_t clock = 0;
    if (clock_getcpuclockid(pid_t(worker.ProcessId()), &clock) != 0) {
        Fail(QStringLiteral("The worker's processor time cannot be read."));
    }
    const auto now = [clock] {
        timespec time{};
        clock_gettime(clock, &time);
        return double(time.tv_sec) + double(time.tv_nsec) / 1e9;
    };
    const double before = now();
    const BatchProtocol::Report report = worker.Do(task);
    if (report.failure != BatchJob::PolicyKind::None) {
        Fail(QStringLiteral("%1: %2").arg(QLatin1String(effect ? effect->id : "copy"), report.reason));
    }
    return now() - before;
}

double Bench::ProgramSeconds(const QString& command)
{
    QString line = command;
    line.replace(QLatin1String("IN"), input).replace(QLatin1String("OUT"), Result());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    // One thread, as the worker has.
    environment.insert(QStringLiteral("VIPS_CONCURRENCY"), QStringLiteral("1"));
    environment.insert(QStringLiteral("OMP_NUM_THREADS"), QStringLiteral("1"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder.path());
    rusage before{};
    getrusage(RUSAGE_CHILDREN, &before);
    process.start(QStringLiteral("sh"), {QStringLiteral("-c"), line});
    if (!process.waitForFinished(-1) || process.exitCode() != 0) {
        Fail(line + QLatin1Char('\n') + QString::fromLocal8Bit(process.readAllStandardError()));
    }
    rusage after{};
    getrusage(RUSAGE_CHILDREN, &after);
    return Seconds(after.ru_utime) + Seconds(after.ru_stime) - Seconds(before.ru_utime) - Seconds(before.ru_stime);
}

std::vector<EffectCase> WantedCases(const QStringList& ids)
{
    std::vector<EffectCase> wanted;
    QStringList covered;
    for (const EffectCase& effect : EffectCases()) {
        covered.append(QLatin1String(effect.id));
        if (ids.isEmpty() || ids.contains(covered.last())) {
            wanted.push_back(effect);
        }
    }
    for (const BatchJob::EffectSchema& schema : BatchJob::Effects()) {
        if (!covered.contains(schema.id)) {
            Fail(QStringLiteral("There is no case for the effect %1.").arg(schema.id));
        }
    }
    return wanted;
}

/// The command that copies a picture in the program of `peer`.
QString CopyBy(const QString& peer)
{
    return peer.startsWith(QLatin1String("vips")) ? QStringLiteral("vips copy IN OUT")
                                                  : QStringLiteral("convert IN OUT");
}

void Measure(Bench& bench, const std::vector<EffectCase>& cases, int rounds, bool withPeers)
{
    std::vector<std::vector<double>> differences(cases.size());
    QMap<QString, std::vector<double>> programs;
    std::vector<double> plain;
    bench.WorkerSeconds(nullptr);
    for (int round = 0; round < rounds; ++round) {
        for (size_t i = 0; i < cases.size(); ++i) {
            plain.push_back(bench.WorkerSeconds(nullptr));
            differences[i].push_back(bench.WorkerSeconds(&cases[i]) - plain.back());
            const QString peer = QLatin1String(cases[i].peer);
            if (withPeers && !peer.isEmpty()) {
                programs[peer].push_back(bench.ProgramSeconds(peer) - bench.ProgramSeconds(CopyBy(peer)));
            }
        }
    }
    const auto perPixel = [&bench](const std::vector<double>& seconds) {
        return Median(seconds) * 1e9 / bench.Pixels();
    };
    std::printf("%.1f megapixels, without effects %.1f ns a pixel; ns a pixel that an effect adds, medians of %d:\n",
                bench.Pixels() / 1e6, perPixel(plain), rounds);
    for (size_t i = 0; i < cases.size(); ++i) {
        std::printf("%-20s %-52s %6.1f", cases[i].id, cases[i].parameters, perPixel(differences[i]));
        if (cases[i].goal > 0) {
            std::printf("   goal %4.1f", cases[i].goal * bench.Allowance());
        }
        if (programs.contains(QLatin1String(cases[i].peer))) {
            std::printf("   %6.1f %s", perPixel(programs[QLatin1String(cases[i].peer)]), cases[i].peer);
        }
        std::printf("\n");
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption rounds(QStringLiteral("rounds"), QStringLiteral("How often."), QStringLiteral("count"),
                                    QStringLiteral("5"));
    const QCommandLineOption effects(QStringLiteral("effects"), QStringLiteral("Only these, separated by commas."),
                                     QStringLiteral("ids"));
    const QCommandLineOption alone(QStringLiteral("alone"), QStringLiteral("Without other programs."));
    parser.addOptions({rounds, effects, alone});
    parser.addPositionalArgument(QStringLiteral("picture"), QStringLiteral("A .jpg, or a .tif of 16 bits."));
    parser.addHelpOption();
    parser.process(application);
    if (parser.positionalArguments().size() != 1) {
        parser.showHelp(2);
    }
    const QStringList ids = parser.value(effects).split(QLatin1Char(','), Qt::SkipEmptyParts);
    Bench bench(parser.positionalArguments().constFirst());
    Measure(bench, WantedCases(ids), parser.value(rounds).toInt(), !parser.isSet(alone));
    return 0;
}
