// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Stopwatch.h"

#include <QByteArray>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QHash>

#include <vips/vips8>

#include <algorithm>
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <thread>
#include <vector>

#include <jpeglib.h>

/// What decoding a folder of JPEG files, and encoding pictures of the results' size, take alone: no disk, no scaling,
/// no metadata, one thread for each core. Files, and pixels to encode, are in memory before the clock starts. A program
/// that makes photos smaller cannot be faster on the same cores. Prints "seconds S cpu S bytes N".
namespace {

struct Photo
{
    QByteArray file;
    int width = 0; ///< of the result
    int height = 0;
    std::vector<JSAMPLE> pixels; ///< of the result
};

constexpr int bands = 3;

Photo ReadPhoto(const QString& path, int side)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "%s cannot be read.\n", qPrintable(path));
        std::exit(1);
    }
    Photo photo;
    photo.file = file.readAll();
    const vips::VImage decoded =
        vips::VImage::new_from_buffer(photo.file.constData(), std::size_t(photo.file.size()), "");
    const double scale = std::min(1.0, double(side) / std::max(decoded.width(), decoded.height()));
    const vips::VImage result = scale < 1.0 ? decoded.resize(scale) : decoded;
    if (result.bands() != bands) {
        std::fprintf(stderr, "%s is not a colour photo.\n", qPrintable(path));
        std::exit(1);
    }
    photo.width = result.width();
    photo.height = result.height();
    std::size_t size = 0;
    auto* const pixels = static_cast<JSAMPLE*>(result.write_to_memory(&size));
    photo.pixels.assign(pixels, pixels + size);
    g_free(pixels);
    return photo;
}

void Decode(const QByteArray& file)
{
    jpeg_decompress_struct decoder;
    jpeg_error_mgr errors;
    decoder.err = jpeg_std_error(&errors);
    jpeg_create_decompress(&decoder);
    jpeg_mem_src(&decoder, reinterpret_cast<const unsigned char*>(file.constData()), std::size_t(file.size()));
    jpeg_read_header(&decoder, TRUE);
    jpeg_start_decompress(&decoder);
    std::vector<JSAMPLE> row(std::size_t(decoder.output_width) * std::size_t(decoder.output_components));
    JSAMPROW rows[] = {row.data()};
    while (decoder.output_scanline < decoder.output_height) {
        jpeg_read_scanlines(&decoder, rows, 1);
    }
    jpeg_finish_decompress(&decoder);
    jpeg_destroy_decompress(&decoder);
}

/// Returns the bytes of the file. `buffer` is used again for the next one.
std::size_t Encode(Photo& photo, std::vector<unsigned char>& buffer)
{
    constexpr int quality = 85;
    jpeg_compress_struct encoder;
    jpeg_error_mgr errors;
    encoder.err = jpeg_std_error(&errors);
    jpeg_create_compress(&encoder);
    unsigned char* target = buffer.data();
    unsigned long size = buffer.size();
    jpeg_mem_dest(&encoder, &target, &size);
    encoder.image_width = JDIMENSION(photo.width);
    encoder.image_height = JDIMENSION(photo.height);
    encoder.input_components = bands;
    encoder.in_color_space = JCS_RGB;
    jpeg_set_defaults(&encoder);
    jpeg_set_quality(&encoder, quality, TRUE);
    jpeg_start_compress(&encoder, TRUE);
    const std::size_t lineSize = std::size_t(photo.width) * bands;
    while (encoder.next_scanline < encoder.image_height) {
        JSAMPROW rows[] = {&photo.pixels[encoder.next_scanline * lineSize]};
        jpeg_write_scanlines(&encoder, rows, 1);
    }
    jpeg_finish_compress(&encoder);
    jpeg_destroy_compress(&encoder);
    if (target != buffer.data()) {
        std::free(target);
    }
    return std::size_t(size);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QCommandLineParser parser;
    const QCommandLineOption threads(QStringLiteral("threads"), QStringLiteral("How many; one a core by default."),
                                     QStringLiteral("count"), QString::number(std::thread::hardware_concurrency()));
    const QCommandLineOption side(QStringLiteral("side"), QStringLiteral("Long side of the results."),
                                  QStringLiteral("pixels"), QStringLiteral("1600"));
    parser.addOptions({threads, side});
    parser.addPositionalArgument(QStringLiteral("folder"), QStringLiteral("The folder of photos."));
    parser.addHelpOption();
    parser.process(application);
    if (parser.positionalArguments().size() != 1 || VIPS_INIT(argv[0]) != 0) {
        parser.showHelp(2);
    }

    QHash<QString, std::size_t> known; // Links to one photo share its memory.
    std::vector<Photo> photos;
    std::vector<std::size_t> order;
    for (const QFileInfo& file : QDir(parser.positionalArguments().constFirst()).entryInfoList(QDir::Files)) {
        const QString path = file.canonicalFilePath();
        if (!known.contains(path)) {
            known.insert(path, photos.size());
            photos.push_back(ReadPhoto(path, parser.value(side).toInt()));
        }
        order.push_back(known[path]);
    }

    std::atomic<std::size_t> next{0};
    std::atomic<std::size_t> bytes{0};
    const auto work = [&] {
        constexpr std::size_t largestResult = 16 << 20;
        std::vector<unsigned char> buffer(largestResult);
        for (std::size_t place = next++; place < order.size(); place = next++) {
            Photo& photo = photos[order[place]];
            Decode(photo.file);
            bytes += Encode(photo, buffer);
        }
    };
    const std::clock_t processorBefore = std::clock();
    const Stopwatch watch;
    std::vector<std::thread> team;
    for (int i = 0; i < parser.value(threads).toInt(); ++i) {
        team.emplace_back(work);
    }
    for (std::thread& one : team) {
        one.join();
    }
    const double seconds = watch.Nanoseconds() / 1e9;
    std::printf("seconds %.3f cpu %.2f bytes %zu\n", seconds, double(std::clock() - processorBefore) / CLOCKS_PER_SEC,
                bytes.load());
    return 0;
}
