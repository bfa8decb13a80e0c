// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "Jpeg2000Boxes.h"
#include "Jpeg2000Codestream.h"

#include "job/values/Warning.h"

#include <QByteArray>

namespace BatchWorker {

/// What the components of a JPEG 2000 file mean: which of them, or which column of the palette over them, is grey, red,
/// cyan or opacity.
struct Jpeg2000Channels
{
    enum class Colours {
        Grey,
        Rgb,
        Ycc, ///< luma, and differences of blue and red from it, with the numbers of sYCC (IEC 61966-2-1, amendment 1)
        Cmyk
    };

    /// One channel of the picture.
    struct Channel
    {
        int component = 0;
        int bits = 0;
        QVector<double> palette; ///< when it is not empty, the component's samples count its entries; least value 0
    };

    Colours colours = Colours::Grey;
    QVector<Channel> channels; ///< the colours in their order, then opacity if there is any
    bool hasOpacity = false;
    bool isMultiplied = false; ///< the colours are multiplied with the opacity
    QByteArray profile;

    int ColourCount() const { return channels.size() - (hasOpacity ? 1 : 0); }

    /// Whether a channel has more than 8 bits.
    bool IsDeep() const;
};

/// Throws PictureFailure for colours that are not supported, and for a description that does not fit the components.
Jpeg2000Channels ChannelsOf(const Jpeg2000Boxes& boxes, const Jpeg2000Codestream& codestream,
                            BatchJob::Warnings& warnings);

} // namespace BatchWorker
