// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QVector>

namespace BatchWorker {

class FileBytes;

/// What a file says around its JPEG 2000 codestream: where that is, and what its components mean. Source of the layout:
/// ITU-T T.800 (ISO/IEC 15444-1), annex I; for the box of 64 bits and further colour spaces T.801 (15444-2), annex M.
struct Jpeg2000Boxes
{
    enum ColourMethod { Enumerated = 1, RestrictedProfile = 2, AnyProfile = 3 };

    struct Colour
    {
        int method = 0;
        quint32 enumerated = 0;
        QByteArray profile;
    };

    struct PaletteColumn
    {
        int bits = 0;
        bool isSigned = false;
        QVector<qint64> values;
    };

    /// Where a channel comes from: a component, and a column of the palette when it is 0 or more.
    struct ChannelSource
    {
        int component = 0;
        int column = -1;
    };

    struct ChannelDefinition
    {
        int channel = 0;
        int type = 0;        ///< 0 colour, 1 opacity, 2 opacity that the colours are multiplied with
        int association = 0; ///< 0 the whole picture, else the number of the colour, from 1
    };

    qint64 codestreamBegin = 0;
    qint64 codestreamEnd = 0; ///< as the file says, maybe behind its end
    int codestreams = 1;
    QVector<Colour> colours; ///< in the file's order
    QVector<PaletteColumn> palette;
    QVector<ChannelSource> mapping;
    QVector<ChannelDefinition> definitions;
};

/// Reads the boxes of `file`; a codestream without boxes has none. Throws PictureFailure for a file that has no
/// codestream, or whose boxes are damaged.
Jpeg2000Boxes ReadJpeg2000Boxes(const FileBytes& file);

} // namespace BatchWorker
