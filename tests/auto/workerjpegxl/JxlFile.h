// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QRect>
#include <QSize>
#include <QVector>

#include <jxl/codestream_header.h>
#include <jxl/color_encoding.h>

#include <functional>

/// A value from 0 to 1 for each place and channel; extra channels come after those of colour.
using JxlValues = std::function<double(int x, int y, int channel)>;

struct JxlLayer
{
    JxlValues values;
    QRect place; ///< empty: the whole picture
    JxlBlendMode blend = JXL_BLEND_REPLACE;
    int source = 0;   ///< the number of what lies below
    int keptAs = 0;   ///< the number under which the result is kept
    int duration = 0; ///< in an animation
};

/// A JPEG XL file, made by the codec's own encoder.
struct JxlFile
{
    QSize size{48, 32};
    int bits = 8;
    int exponentBits = 0;
    bool isGrey = false;
    bool isLossless = true;
    int orientation = 1;
    bool isPremultiplied = false;
    bool isAnimation = false;
    JxlTransferFunction transfer = JXL_TRANSFER_FUNCTION_SRGB;
    JxlPrimaries primaries = JXL_PRIMARIES_SRGB;
    QVector<double> points; ///< in place of `primaries`: x and y of white, red, green and blue
    QByteArray profile;     ///< in place of all of them
    float brightest = 0;    ///< cd/m2 of a screen that the picture is made for; 0: not said
    QVector<JxlExtraChannelType> extras;
    QVector<JxlLayer> layers;

    /// The bytes of the file; none when the encoder refuses something.
    QByteArray Bytes() const;
};
