#include "TestPictures.h"

#include <QFile>

#include <limits>

using BatchWorker::Picture;

namespace {

bool HaveSameForm(const Picture& left, const Picture& right)
{
    return left.width() == right.width() && left.height() == right.height() && left.bands() == right.bands();
}

} // namespace

void StartPictures()
{
    if (VIPS_INIT("test") != 0) {
        qFatal("The imaging library does not start: %s", vips_error_buffer());
    }
    vips_cache_set_max(0);
    vips_concurrency_set(1);
}

Picture Chart(int width, int height, int square)
{
    const Picture places = Picture::xyz(width, height);
    const Picture across = places.extract_band(0);
    const Picture down = places.extract_band(1);
    const Picture red = across * (255.0 / std::max(1, width - 1));
    const Picture green = down * (255.0 / std::max(1, height - 1));
    const Picture blue = (((across / square).floor() + (down / square).floor()) % 2) * 255;
    return red.bandjoin(green)
        .bandjoin(blue)
        .rint()
        .cast(VIPS_FORMAT_UCHAR)
        .copy(Picture::option()->set("interpretation", VIPS_INTERPRETATION_sRGB))
        .copy_memory();
}

Picture ReadPicture(const QString& file)
{
    return Picture::new_from_file(QFile::encodeName(file).constData()).copy_memory();
}

void WritePicture(const Picture& picture, const QString& file, const char* options)
{
    picture.write_to_file((QFile::encodeName(file) + options).constData());
}

double LargestDifference(const Picture& left, const Picture& right)
{
    return HaveSameForm(left, right) ? (left - right).abs().max() : std::numeric_limits<double>::infinity();
}

double MeanDifference(const Picture& left, const Picture& right)
{
    return HaveSameForm(left, right) ? (left - right).abs().avg() : std::numeric_limits<double>::infinity();
}
