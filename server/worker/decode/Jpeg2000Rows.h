// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Jpeg2000Channels.h"
#include "Jpeg2000Decoder.h"

#include <QSize>

#include <functional>
#include <vector>

namespace BatchWorker {

/// The rows of pixels of a JPEG 2000 picture, in any order: each is put together from the samples of its channels.
///
/// Channels with fewer samples than pixels are interpolated between the two nearest samples of each direction. A sample
/// lies where the file says, else in the middle of the pixels that it covers, as encoders average.
class Jpeg2000Rows
{
public:
    /// Gives the decoded tile row.
    using Bands = std::function<const Jpeg2000Band&(int tileRow)>;

    Jpeg2000Rows(const Jpeg2000Codestream& codestream, const Jpeg2000Channels& channels, Bands bands);

    QSize Size() const { return size; }

    /// Writes the pixels of line `y` to `line`, with `largest` as the largest value of a channel. `Value` is a whole
    /// number that holds it.
    template<typename Value>
    void Write(int y, double largest, Value* line);

private:
    /// Two neighbouring samples, and how much the second counts.
    struct Place
    {
        qint64 first = 0;
        qint64 second = 0;
        double weight = 0;
    };

    /// A component that a channel needs.
    struct Source
    {
        Jpeg2000Codestream::Area area; ///< of its samples
        bool isFull = true;            ///< has a sample for each pixel
        std::vector<Place> columns;
        std::vector<Place> lines;
    };

    std::vector<Place> PlacesAlong(int count, qint64 begin, int step, int spacing, double shift, qint64 first,
                                   qint64 end, bool isWhole) const;
    std::vector<double> SamplesOfLine(int component, qint64 y);
    void FillChannel(int index, int y);

    const Jpeg2000Codestream& codestream;
    const Jpeg2000Channels& channels;
    Bands bands;
    QSize size;
    int stepX = 1;
    int stepY = 1;
    std::vector<Source> sources;             ///< by channel
    std::vector<std::vector<double>> values; ///< of the channels in one line, 0 to 1
};

} // namespace BatchWorker
