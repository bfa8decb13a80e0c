// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Jpeg2000Boxes.h"

#include "job/values/Phrase.h"

#include "FileBytes.h"

#include "server/worker/pixels/PictureFailure.h"

#include <QByteArrayList>
#include <QtEndian>

#include <algorithm>
#include <optional>

namespace BatchWorker {

namespace {

struct Box
{
    QByteArray type;
    qint64 begin = 0; ///< of the content
    qint64 end = 0;   ///< as the box says
};

PictureFailure DamagedHeader()
{
    return DamagedFile(BatchJob::Phrase::English("the file's header is damaged"));
}

// The box at `offset`. Nothing if `end` leaves no room for its header.
std::optional<Box> BoxAt(const FileBytes& file, qint64 offset, qint64 end)
{
    constexpr int shortHeader = 8;
    constexpr int longHeader = 16;
    const QByteArray head = file.At(offset, longHeader);
    if (end - offset < shortHeader || head.size() < shortHeader) {
        return std::nullopt;
    }
    const quint32 length = qFromBigEndian<quint32>(head.constData());
    const bool isLong = length == 1;
    if (isLong && head.size() < longHeader) {
        return std::nullopt;
    }
    const int header = isLong ? longHeader : shortHeader;
    const quint64 stated = isLong ? qFromBigEndian<quint64>(head.constData() + shortHeader) : length;
    constexpr quint64 largest = quint64(1) << 62;
    if (stated > largest || (stated != 0 && stated < quint64(header))) {
        throw DamagedHeader();
    }
    return Box{head.mid(4, 4), offset + header, stated == 0 ? std::max(end, offset + header) : offset + qint64(stated)};
}

/// Takes numbers off the front of a box's content.
class Numbers
{
public:
    explicit Numbers(const QByteArray& content)
        : content(content)
    {
    }

    quint64 Next(int bytes)
    {
        if (content.size() - place < bytes) {
            throw DamagedHeader();
        }
        quint64 number = 0;
        for (int i = 0; i < bytes; ++i) {
            number = (number << 8) | quint8(content[place++]);
        }
        return number;
    }

    int Left() const { return content.size() - place; }
    QByteArray Rest() const { return content.mid(place); }

private:
    QByteArray content;
    int place = 0;
};

void ReadColour(Numbers numbers, Jpeg2000Boxes& boxes)
{
    Jpeg2000Boxes::Colour colour;
    colour.method = int(numbers.Next(1));
    numbers.Next(2); // precedence and approximation
    if (colour.method == Jpeg2000Boxes::Enumerated) {
        colour.enumerated = quint32(numbers.Next(4));
    } else if (colour.method == Jpeg2000Boxes::RestrictedProfile || colour.method == Jpeg2000Boxes::AnyProfile) {
        colour.profile = numbers.Rest();
    }
    boxes.colours.append(colour);
}

void ReadPalette(Numbers numbers, Jpeg2000Boxes& boxes)
{
    constexpr int mostEntries = 1024;
    constexpr int mostBits = 38;
    constexpr int isSigned = 0x80;
    const int entries = int(numbers.Next(2));
    const int columns = int(numbers.Next(1));
    if (entries < 1 || entries > mostEntries || columns < 1) {
        throw DamagedHeader();
    }
    boxes.palette.clear();
    for (int column = 0; column < columns; ++column) {
        const int depth = int(numbers.Next(1));
        boxes.palette.append({(depth & ~isSigned) + 1, (depth & isSigned) != 0, {}});
        if (boxes.palette.last().bits > mostBits) {
            throw DamagedHeader();
        }
    }
    for (int entry = 0; entry < entries; ++entry) {
        for (Jpeg2000Boxes::PaletteColumn& column : boxes.palette) {
            const quint64 stored = numbers.Next((column.bits + 7) / 8);
            const quint64 value = stored & ((quint64(1) << column.bits) - 1);
            const bool isNegative = column.isSigned && (value >> (column.bits - 1)) != 0;
            column.values.append(isNegative ? qint64(value) - (qint64(1) << column.bits) : qint64(value));
        }
    }
}

void ReadMapping(Numbers numbers, Jpeg2000Boxes& boxes)
{
    constexpr int entrySize = 4;
    boxes.mapping.clear();
    while (numbers.Left() >= entrySize) {
        const int component = int(numbers.Next(2));
        const bool isByPalette = numbers.Next(1) == 1;
        const int column = int(numbers.Next(1));
        boxes.mapping.append({component, isByPalette ? column : -1});
    }
}

void ReadDefinitions(Numbers numbers, Jpeg2000Boxes& boxes)
{
    boxes.definitions.clear();
    for (quint64 left = numbers.Next(2); left > 0; --left) {
        const int channel = int(numbers.Next(2));
        const int type = int(numbers.Next(2));
        boxes.definitions.append({channel, type, int(numbers.Next(2))});
    }
}

// Extended files have headers of single codestreams and of layers as well, which hold the same boxes.
bool HoldsBoxes(const QByteArray& type)
{
    return type == "jp2h" || type == "jpch" || type == "jplh" || type == "cgrp";
}

void ReadHeaderBox(const FileBytes& file, const Box& box, Jpeg2000Boxes& boxes)
{
    constexpr qint64 largest = qint64(64) << 20;
    const bool isRead = box.type == "colr" || box.type == "pclr" || box.type == "cmap" || box.type == "cdef";
    if (!isRead) {
        return;
    }
    const qint64 size = box.end - box.begin;
    if (size > largest || box.end > file.Size()) {
        throw DamagedHeader();
    }
    const Numbers numbers(file.At(box.begin, int(size)));
    if (box.type == "colr") {
        ReadColour(numbers, boxes);
    } else if (box.type == "pclr") {
        ReadPalette(numbers, boxes);
    } else if (box.type == "cmap") {
        ReadMapping(numbers, boxes);
    } else {
        ReadDefinitions(numbers, boxes);
    }
}

// The boxes between `begin` and `end`, and those in them. Of headers of single codestreams and layers the first counts.
void ReadBoxes(const FileBytes& file, qint64 begin, qint64 end, int depth, Jpeg2000Boxes& boxes)
{
    constexpr int deepest = 3;
    constexpr int mostBoxes = 10'000;
    QByteArrayList read;
    for (int count = 0; count < mostBoxes; ++count) {
        const std::optional<Box> box = BoxAt(file, begin, end);
        if (!box) {
            return;
        }
        if (box->type == "jp2c" && depth == 0) {
            if (boxes.codestreams++ == 0) {
                boxes.codestreamBegin = box->begin;
                boxes.codestreamEnd = box->end;
            }
        } else if (HoldsBoxes(box->type)) {
            const bool isWanted = depth < deepest && boxes.codestreams == 0 && !read.contains(box->type);
            read.append(box->type);
            if (isWanted) {
                ReadBoxes(file, box->begin, std::min(box->end, end), depth + 1, boxes);
            }
        } else if (depth > 0) {
            ReadHeaderBox(file, *box, boxes);
        }
        begin = box->end;
    }
}

} // namespace

Jpeg2000Boxes ReadJpeg2000Boxes(const FileBytes& file)
{
    constexpr int magicSize = 4;
    Jpeg2000Boxes boxes;
    if (file.At(0, magicSize) == QByteArray("\xFF\x4F\xFF\x51", magicSize)) {
        boxes.codestreamEnd = file.Size();
        return boxes;
    }
    boxes.codestreams = 0;
    ReadBoxes(file, 0, file.Size(), 0, boxes);
    if (boxes.codestreams == 0) {
        throw DamagedFile(
            BatchJob::Phrase::English("the file holds no picture data, or refers to another file for them"));
    }
    return boxes;
}

} // namespace BatchWorker
