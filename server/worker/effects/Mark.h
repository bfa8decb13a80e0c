#pragma once

#include "server/worker/pixels/Picture.h"

#include <QJsonObject>

#include <cstdint>
#include <vector>

namespace BatchWorker {

/// What a watermark lays over a picture: 8 bits a channel, red, green, blue and straight alpha for each pixel.
struct Mark
{
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;
};

/// The values of `image`, of 8 bits, one line after another.
std::vector<std::uint8_t> BytesOf(const Picture& image);

/// `image`, sRGB of 8 bits with or without alpha, as a mark, with its colours in the profile of `picture`.
Mark MarkOf(const Picture& image, const Picture& picture);

/// Whether any visible pixel of `image`, sRGB of 8 bits, has a colour other than grey.
bool HasColour(const Picture& image);

/// A length in pixels: `name` of `parameters` in their "unit", where percent are of `whole`.
double LengthIn(const QJsonObject& parameters, const char* name, double whole);

/// Lays `mark` over `picture` as the "position", "margin", "unit", "opacity" and "tile" of `parameters` say; what would
/// lie outside is cut off. Of two rows or columns that are equally near to the centre the upper or left one counts.
/// Tiles repeat the mark in its place in all directions, the margin apart.
Picture Stamped(const Picture& picture, const Mark& mark, const QJsonObject& parameters);

} // namespace BatchWorker
