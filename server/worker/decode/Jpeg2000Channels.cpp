// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Jpeg2000Channels.h"

#include "job/values/Phrase.h"

#include "DecoderWarnings.h"

#include "server/worker/pixels/PictureFailure.h"

#include <algorithm>
#include <optional>

using namespace BatchJob;

namespace BatchWorker {

namespace {

using Channel = Jpeg2000Channels::Channel;
using Colours = Jpeg2000Channels::Colours;

/// Numbers of colour spaces. Source: ITU-T T.800, table I.10, and T.801, table M.25.
enum EnumeratedColours {
    YccOfPhotos = 3, ///< as in JPEG files
    Cmyk = 12,
    Srgb = 16,
    Grey = 17,
    Sycc = 18,
    ExtendedSycc = 24
};

PictureFailure DamagedHeader()
{
    return DamagedFile(Phrase::English("the file's header does not fit its picture"));
}

Channel ChannelOf(const Jpeg2000Boxes::ChannelSource& source, const Jpeg2000Boxes& boxes,
                  const Jpeg2000Codestream& codestream)
{
    if (source.component >= codestream.Components().size() || source.column >= boxes.palette.size()) {
        throw DamagedHeader();
    }
    Channel channel;
    channel.component = source.component;
    channel.bits = codestream.Components()[source.component].bits;
    if (source.column >= 0) {
        const Jpeg2000Boxes::PaletteColumn& column = boxes.palette[source.column];
        const double least = column.isSigned ? -double(qint64(1) << (column.bits - 1)) : 0.0;
        channel.bits = column.bits;
        for (const qint64 value : column.values) {
            channel.palette.append(double(value) - least);
        }
    }
    return channel;
}

QVector<Channel> AllChannels(const Jpeg2000Boxes& boxes, const Jpeg2000Codestream& codestream)
{
    QVector<Channel> channels;
    if (!boxes.palette.isEmpty() && !boxes.mapping.isEmpty()) {
        for (const Jpeg2000Boxes::ChannelSource& source : boxes.mapping) {
            channels.append(ChannelOf(source, boxes, codestream));
        }
        return channels;
    }
    for (int i = 0; i < codestream.Components().size(); ++i) {
        channels.append(ChannelOf({i, -1}, boxes, codestream));
    }
    return channels;
}

int CountOf(Colours colours)
{
    switch (colours) {
    case Colours::Grey:
        return 1;
    case Colours::Cmyk:
        return 4;
    case Colours::Rgb:
    case Colours::Ycc:
        break;
    }
    return 3;
}

// Luma in full size and two smaller components can only be luma and chroma. Encoders that embed a profile have no place
// to say so.
bool LooksLikeYcc(const QVector<Channel>& channels, const Jpeg2000Codestream& codestream)
{
    if (channels.size() < 3 || codestream.HasColourTransform()) {
        return false;
    }
    const auto cell = [&](int channel) {
        const Jpeg2000Codestream::Component& component = codestream.Components()[channels[channel].component];
        return component.dx * component.dy;
    };
    return cell(1) == cell(2) && cell(0) < cell(1) &&
           std::all_of(channels.begin(), channels.begin() + 3, [](const Channel& c) { return c.palette.isEmpty(); });
}

// Nothing when it is of a kind that is not supported.
std::optional<Colours> ColoursOf(const Jpeg2000Boxes::Colour& colour)
{
    if (colour.method == Jpeg2000Boxes::Enumerated) {
        switch (colour.enumerated) {
        case Grey:
            return Colours::Grey;
        case Srgb:
            return Colours::Rgb;
        case YccOfPhotos:
        case Sycc:
        case ExtendedSycc:
            return Colours::Ycc;
        case Cmyk:
            return Colours::Cmyk;
        default:
            return std::nullopt;
        }
    }
    if (colour.profile.isEmpty()) {
        return std::nullopt;
    }
    // Source of the place: ICC.1, table of the profile header. One that is damaged is reported where it is used.
    constexpr int placeOfSpace = 16;
    const QByteArray space = colour.profile.mid(placeOfSpace, 4);
    return space == "GRAY" ? Colours::Grey : space == "CMYK" ? Colours::Cmyk : Colours::Rgb;
}

QString NameOf(const Jpeg2000Boxes::Colour& colour)
{
    return colour.method == Jpeg2000Boxes::Enumerated ? Phrase::English("colour space %1").arg(colour.enumerated)
                                                      : Phrase::English("colours of method %1").arg(colour.method);
}

/// What the file says of its colours, as far as it can be used.
struct StatedColours
{
    std::optional<Colours> colours;
    QByteArray profile;
};

StatedColours Stated(const Jpeg2000Boxes& boxes)
{
    for (const Jpeg2000Boxes::Colour& colour : boxes.colours) {
        if (const std::optional<Colours> colours = ColoursOf(colour)) {
            return {colours, colour.profile};
        }
    }
    if (!boxes.colours.isEmpty()) {
        throw DamagedFile(
            Phrase::English("its colours are of a kind that is not supported (%1)").arg(NameOf(boxes.colours.first())));
    }
    return {};
}

Colours Guessed(int channels)
{
    constexpr int mostWithAlpha = 4;
    if (channels > mostWithAlpha) {
        throw DamagedFile(Phrase::English("it has %1 channels and does not say what they are").arg(channels));
    }
    return channels < 3 ? Colours::Grey : Colours::Rgb;
}

/// The channels by what they are.
class Assignment
{
public:
    Assignment(const QVector<Channel>& all, const QVector<Jpeg2000Boxes::ChannelDefinition>& definitions)
        : all(all)
        , definitions(definitions)
    {
    }

    // The channels of the colours, in their order. Where the file does not tell all, the others follow in its order.
    QVector<Channel> ColourChannels(int count) const
    {
        QVector<int> found(count, -1);
        QVector<int> others;
        for (int channel = 0; channel < all.size(); ++channel) {
            const auto definition = DefinitionOf(channel);
            const int colour = definition ? definition->association - 1 : -1;
            if (definition && definition->type == 0 && colour >= 0 && colour < count && found[colour] < 0) {
                found[colour] = channel;
            } else if (!definition || definition->type == 0) {
                others.append(channel);
            }
        }
        QVector<Channel> channels;
        for (const int channel : found) {
            if (channel < 0 && others.isEmpty()) {
                throw DamagedHeader();
            }
            channels.append(all[channel >= 0 ? channel : others.takeFirst()]);
        }
        return channels;
    }

    // The channel of the opacity and whether colours are multiplied with it; -1 for none. A file without definitions
    // that has one channel more than colours means that.
    std::pair<int, bool> Opacity(int colours) const
    {
        constexpr int opacity = 1;
        constexpr int multipliedOpacity = 2;
        if (definitions.isEmpty()) {
            return {all.size() == colours + 1 ? colours : -1, false};
        }
        for (const Jpeg2000Boxes::ChannelDefinition& definition : definitions) {
            const bool isOpacity = definition.type == opacity || definition.type == multipliedOpacity;
            if (isOpacity && definition.association == 0 && definition.channel < all.size()) {
                return {definition.channel, definition.type == multipliedOpacity};
            }
        }
        return {-1, false};
    }

private:
    std::optional<Jpeg2000Boxes::ChannelDefinition> DefinitionOf(int channel) const
    {
        const auto found = std::find_if(
            definitions.begin(), definitions.end(),
            [channel](const Jpeg2000Boxes::ChannelDefinition& definition) { return definition.channel == channel; });
        return found == definitions.end() ? std::nullopt : std::optional(*found);
    }

    const QVector<Channel>& all;
    const QVector<Jpeg2000Boxes::ChannelDefinition>& definitions;
};

// What is stated, unless the picture has not the channels for it.
Colours Fitting(std::optional<Colours> stated, const QVector<Channel>& all, const Jpeg2000Codestream& codestream)
{
    const Colours colours = stated.value_or(Guessed(std::min(all.size(), stated ? 4 : all.size())));
    if (colours == Colours::Rgb && LooksLikeYcc(all, codestream)) {
        return Colours::Ycc;
    }
    if (all.size() >= CountOf(colours)) {
        return colours;
    }
    if (colours == Colours::Cmyk) {
        throw DamagedHeader();
    }
    return Colours::Grey;
}

} // namespace

bool Jpeg2000Channels::IsDeep() const
{
    return std::any_of(channels.begin(), channels.end(), [](const Channel& channel) { return channel.bits > 8; });
}

Jpeg2000Channels ChannelsOf(const Jpeg2000Boxes& boxes, const Jpeg2000Codestream& codestream, Warnings& warnings)
{
    const QVector<Channel> all = AllChannels(boxes, codestream);
    const StatedColours stated = Stated(boxes);
    const Assignment assignment(all, boxes.definitions);
    Jpeg2000Channels result;
    result.colours = Fitting(stated.colours, all, codestream);
    result.profile = stated.profile;
    const int count = CountOf(result.colours);
    result.channels = assignment.ColourChannels(count);
    const auto [opacity, isMultiplied] = assignment.Opacity(count);
    if (opacity >= 0 && result.colours == Colours::Cmyk) {
        WarnOnce(warnings, WarningKind::Decoder, Phrase::English("the transparency of a CMYK picture is left out"));
    } else if (opacity >= 0) {
        result.channels.append(all[opacity]);
        result.hasOpacity = true;
        result.isMultiplied = isMultiplied;
    }
    const int used = opacity >= 0 ? count + 1 : count;
    if (all.size() > used) {
        WarnOnce(warnings, WarningKind::Decoder,
                 Phrase::English("it has %1 channels; only the first %2 are used").arg(all.size()).arg(used));
    }
    return result;
}

} // namespace BatchWorker
