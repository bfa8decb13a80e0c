// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QVector>

#include <functional>

/// Makes JPEG 2000 files by OpenJPEG's encoder, without loss, and puts boxes around them.
namespace Jpeg2000Maker {

/// One component. `value` gives the sample at a column and a line of the component, counted from the reference grid's
/// origin.
struct Plane
{
    std::function<int(int x, int y)> value;
    int bits = 8;
    bool isSigned = false;
    int dx = 1;
    int dy = 1;
};

struct Coding
{
    QRect image; ///< on the reference grid
    QVector<Plane> planes;
    QSize tile;    ///< empty: one tile
    QPoint origin; ///< of the tiles
    bool hasColourTransform = false;
    bool hasPartForEachResolution = false;
};

/// A codestream without boxes.
QByteArray Codestream(const Coding& coding);

/// The codestream with its tile-parts in another order: `order` gets their tiles and tells their new order by indices.
QByteArray Reordered(const QByteArray& codestream, const std::function<QVector<int>(const QVector<int>& tiles)>& order);

/// `segment`, with marker and length, behind the codestream's marker segment of the size.
QByteArray WithSegment(const QByteArray& codestream, const QByteArray& segment);

/// The numbers as bytes, the most significant first.
QByteArray Bytes(std::initializer_list<int> values, int bytesOfValue = 1);

QByteArray Colour(int enumerated);
QByteArray Colour(const QByteArray& profile);

/// The entries one after the other, 8 bits each, for as many channels.
QByteArray Palette(int channels, const QByteArray& entries);

/// Channel, type and association of each channel.
QByteArray Definitions(const QVector<QVector<int>>& channels);

/// A file of the codestream, with `header`, a number of boxes, in its header.
QByteArray File(const QByteArray& codestream, const QByteArray& header);

} // namespace Jpeg2000Maker
