// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QVector>

#include <functional>

/// A TIFF file of any layout, written by the format's own library.
struct TiffPicture
{
    enum Numbers { Unsigned = 1, Signed = 2, Floating = 3 };

    int width = 45; ///< no multiple of bytes, tiles or strips
    int height = 37;
    int samples = 3;
    int bits = 8;
    Numbers numbers = Unsigned;
    int photometric = 2; ///< RGB
    int compression = 1; ///< none
    int predictor = 1;
    bool isPlanar = false;
    int tile = 0;         ///< the side of tiles; strips without
    int rowsOfStrip = 10; ///< a multiple of the subsampling
    int across = 1;       ///< subsampling of colour differences
    int down = 1;
    int orientation = 1;
    int inkSet = 1;
    bool isBigEndian = false;
    QVector<quint16> extraSamples;
    QVector<quint16> palette; ///< all red, all green, all blue
    QByteArray profile;

    /// Writes the file. `value` gives the sample `s` of a pixel: 0 to 1 is the whole range.
    void Write(const QString& file, const std::function<double(int x, int y, int s)>& value) const;
};
