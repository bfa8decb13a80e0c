// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PictureFiles.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>

#include <random>

namespace {

void Save(const QImage& image, const QString& path, const char* format)
{
    if (!QDir().mkpath(QFileInfo(path).path()) || !image.save(path, format, 90)) {
        qFatal("The picture %s cannot be written.", qUtf8Printable(path));
    }
}

void Write(const QString& path, const char* format, int seed, int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            image.setPixel(x, y, qRgb((x * 7 + seed * 31) % 256, (y * 5 + seed * 17) % 256, (x + y + seed) % 256));
        }
    }
    Save(image, path, format);
}

} // namespace

void PictureFiles::WriteJpeg(const QString& path, int seed, int width, int height)
{
    Write(path, "JPG", seed, width, height);
}

void PictureFiles::WriteNoise(const QString& path, int width, int height)
{
    std::mt19937 random(1);
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            image.setPixel(x, y, random() | 0xff000000U);
        }
    }
    Save(image, path, "JPG");
}

void PictureFiles::WriteTruncated(const QString& path)
{
    Write(path, nullptr, 1, 200, 200);
    QFile file(path);
    if (!file.resize(file.size() / 2)) {
        qFatal("The picture %s cannot be truncated.", qUtf8Printable(path));
    }
}
