// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// A worker that a picture has taken over: it speaks the language of workers, and lies. Usage() describes it.

#include "Lies.h"

#include "server/protocol/TemporaryFile.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cstdio>

#ifdef Q_OS_WIN
#include <fcntl.h>
#include <io.h>
#else
#include <unistd.h>
#endif

using namespace BatchProtocol;

namespace {

int Usage()
{
    QByteArray text = "Usage: put this program in the place of VelkoraBatchWorker, with a file \"lies\" beside it.\n"
                      "\n"
                      "Each line of \"lies\" is PATTERN LIE: over every picture whose file name matches the wildcard\n"
                      "PATTERN, the worker tells LIE. The first line that matches counts. The result of any other\n"
                      "picture is a copy of its file, and each probe is answered. The file is read for each picture.\n"
                      "\n"
                      "Lies:\n";
    for (const Lie& lie : Lies()) {
        text += "  " + QByteArray(lie.name).leftJustified(14) + lie.help + '\n';
    }
    std::fwrite(text.constData(), 1, std::size_t(text.size()), stdout);
    return 0;
}

/// The lie for the file `path`; null for the truth.
const Lie* LieFor(const QString& path)
{
    QFile rules(QDir(QCoreApplication::applicationDirPath()).filePath(QStringLiteral("lies")));
    if (!rules.open(QIODevice::ReadOnly)) {
        return nullptr;
    }
    const QString name = QFileInfo(path).fileName();
    for (const QByteArray& line : rules.readAll().split('\n')) {
        const QList<QByteArray> words = line.simplified().split(' ');
        const QRegularExpression pattern(
            QRegularExpression::wildcardToRegularExpression(QString::fromUtf8(words.value(0))));
        if (words.size() != 2 || !pattern.match(name).hasMatch()) {
            continue;
        }
        for (const Lie& lie : Lies()) {
            if (words[1] == lie.name) {
                return &lie;
            }
        }
        qFatal("There is no lie \"%s\".", words[1].constData());
    }
    return nullptr;
}

Report CopyResult(const PictureTask& task)
{
    Report report;
    QFile input(task.inputFile);
    TemporaryFile result(task.outputFile);
    QFile bytes;
    if (!input.open(QIODevice::ReadOnly) || !result.Create() ||
        !bytes.open(result.Descriptor(), QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        report.failure = BatchJob::PolicyKind::Output;
        report.errorCode = ZTBatchMessage::WriteOutputFormatError;
        return report;
    }
    const QByteArray content = input.readAll();
    input.close(); // The result may replace it, which Windows allows for closed files only.
    if (bytes.write(content) != content.size() ||
        result.Place(task.replaceExisting) != TemporaryFile::Placement::Done) {
        report.failure = BatchJob::PolicyKind::Naming;
        report.errorCode = ZTBatchMessage::FileNameAlreadyExists;
    }
    return report;
}

Report Probe()
{
    Report report;
    report.inputFormat = QStringLiteral("PSD");
    report.nearestFormat = QStringLiteral("PNG");
    report.captured = QDateTime(QDate(2024, 5, 1), QTime(10, 20, 30));
    return report;
}

template<typename Task>
void Handle(const Task& task, const Report& truth)
{
    const Lie* const lie = LieFor(task.inputFile);
    if (lie) {
        lie->tell(task.number);
        return;
    }
    Say(FrameFromWorker(Beginning{task.number}));
    Report report = truth;
    report.number = task.number;
    Say(FrameFromWorker(report));
}

void Handle(const ToWorker& message)
{
    if (const auto* picture = std::get_if<PictureTask>(&message)) {
        Handle(*picture, LieFor(picture->inputFile) ? Report() : CopyResult(*picture));
    } else if (const auto* probe = std::get_if<ProbeTask>(&message)) {
        Handle(*probe, Probe());
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (QCoreApplication::arguments().contains(QLatin1String("--help"))) {
        return Usage();
    }
#ifdef Q_OS_WIN
    _setmode(_fileno(stdin), _O_BINARY);
    _setmode(_fileno(stdout), _O_BINARY);
#endif
    Report ready;
    ready.number = workerIsReady;
    Say(FrameFromWorker(ready));
    FrameReader reader;
    char buffer[65536];
    constexpr int standardInput = 0;
    for (auto count = ::read(standardInput, buffer, sizeof(buffer)); count > 0;
         count = ::read(standardInput, buffer, sizeof(buffer))) {
        reader.Append(QByteArray(buffer, int(count)));
        for (auto message = reader.NextToWorker(); message; message = reader.NextToWorker()) {
            Handle(*message);
        }
    }
    return 0;
}
