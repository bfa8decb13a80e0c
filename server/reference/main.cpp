// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

// effect_reference PHOTO FOLDER: writes the reference page of the effects to FOLDER/effects.md, a small picture of each
// effect, made from PHOTO, to FOLDER/effects/, and the patterns of backgrounds to FOLDER/pictures/patterns.png.

#include "EffectReference.h"

#include "job/effects/EffectCatalog.h"
#include "job/values/JobValues.h"
#include "server/worker/effects/Effects.h"
#include "server/worker/framing/Background.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <cstdio>
#include <stdexcept>

using namespace BatchJob;
using namespace BatchReference;
using namespace BatchWorker;

namespace {

constexpr int width = 240;

// Shadows towards blue, lights towards orange.
const char cube[] = "LUT_3D_SIZE 2\n"
                    "0.00 0.05 0.15\n1.00 0.20 0.10\n0.05 0.90 0.20\n1.00 0.90 0.30\n"
                    "0.00 0.15 0.90\n0.90 0.25 0.80\n0.10 0.90 0.90\n1.00 0.95 0.85\n";

void Write(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush()) {
        throw std::runtime_error(path.toStdString() + ": " + file.errorString().toStdString());
    }
}

// A ring with soft edges.
void WriteMark(const QString& path)
{
    constexpr int side = 200;
    const Picture place = Picture::xyz(side, side) - (side - 1) / 2.0;
    const Picture distance = (place.extract_band(0).pow(2.0) + place.extract_band(1).pow(2.0)).pow(0.5);
    const Picture ring = ((distance - 75.0).abs() * -12.0 + 255.0).cast(VIPS_FORMAT_UCHAR);
    const std::vector<double> orange{240, 120, 20};
    const Picture colour = (Picture::black(side, side, Picture::option()->set("bands", 3)) + orange);
    colour.bandjoin(ring)
        .cast(VIPS_FORMAT_UCHAR)
        .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB))
        .write_to_file(QFile::encodeName(path).constData());
}

void WriteJpeg(const Picture& picture, const QString& path)
{
    picture.jpegsave(QFile::encodeName(path).constData(),
                     Picture::option()->set("Q", 80)->set("strip", true)->set("optimize_coding", true));
}

/// All patterns at 100 percent, side by side: two tiles each way.
void WritePatterns(const QString& path)
{
    constexpr int count = 8;
    constexpr int gap = 8;
    const QSize size(64, 64);
    const Picture grey = Picture::black(size.width(), size.height())
                             .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_B_W));
    std::vector<Picture> squares;
    for (int pattern = 0; pattern < count; ++pattern) {
        ZTBatchOutputSettings::Transformation framing;
        framing.backgroundType = int(BatchJob::BackgroundType::Pattern);
        framing.backgroundPattern = {pattern, 100, 0};
        BatchJob::Warnings warnings;
        squares.push_back(MakeBackground(framing, std::nullopt, size, grey, warnings).extract_band(0));
    }
    Picture::arrayjoin(squares, Picture::option()->set("across", count)->set("shim", gap)->set("background", 255.0))
        .pngsave(QFile::encodeName(path).constData(), Picture::option()->set("strip", true)->set("compression", 9));
}

QJsonObject ParametersOf(const EffectSchema& effect, const QDir& files)
{
    QJsonObject example = QJsonDocument::fromJson(effect.example).object();
    const auto file = example.find(QStringLiteral("file"));
    if (file != example.end()) {
        *file = files.filePath(file->toString());
    }
    const CheckedParameters checked = CheckEffect(effect, QJsonDocument(example).toJson());
    if (!checked.IsValid()) {
        throw std::runtime_error(effect.id.toStdString() + ": " + checked.error.toStdString());
    }
    return checked.values;
}

void MakeReference(const QString& photo, const QDir& folder)
{
    const QTemporaryDir temporary;
    const QDir files(temporary.path());
    Write(files.filePath(QStringLiteral("example.cube")), cube);
    WriteMark(files.filePath(QStringLiteral("example.png")));

    folder.mkpath(QStringLiteral("effects"));
    const Picture original = Picture::thumbnail(QFile::encodeName(photo).constData(), width).copy_memory();
    WriteJpeg(original, folder.filePath(QStringLiteral("effects/original.jpg")));
    for (const EffectSchema& effect : Effects()) {
        if (!effect.changesPixels) {
            continue;
        }
        WriteJpeg(ApplyEffect(effect, ParametersOf(effect, files), original),
                  folder.filePath(QStringLiteral("effects/%1.jpg").arg(effect.id)));
    }
    folder.mkpath(QStringLiteral("pictures"));
    WritePatterns(folder.filePath(QStringLiteral("pictures/patterns.png")));
    Write(folder.filePath(QStringLiteral("effects.md")), EffectReferencePage().toUtf8());
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3 || VIPS_INIT(argv[0])) {
        std::fprintf(stderr, "usage: effect_reference PHOTO FOLDER\n");
        return 2;
    }
    try {
        MakeReference(arguments[1], QDir(arguments[2]));
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "effect_reference: %s\n", problem.what());
        return 1;
    }
    return 0;
}
