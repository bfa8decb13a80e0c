// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "GainMap.h"

#include "BoxFile.h"
#include "ItemBoxes.h"

#include "server/worker/decode/MpfIndex.h"

#include <QFile>

#include <algorithm>

namespace BatchWorker {

namespace {

bool SaysGainMap(const JpegSegment& segment)
{
    constexpr uchar app1 = 0xe1;
    constexpr uchar app2 = 0xe2;
    if (segment.marker == app2) {
        return segment.content.startsWith(QByteArray("urn:iso:std:iso:ts:21496:-1\0", 28));
    }
    const QByteArray& text = segment.content;
    const bool isInContainer = text.contains("http://ns.google.com/photos/1.0/container/") && text.contains("GainMap");
    return segment.marker == app1 && (isInContainer || text.contains("http://ns.adobe.com/hdr-gain-map/1.0/") ||
                                      text.contains("http://ns.apple.com/HDRGainMap/1.0/") ||
                                      text.contains("urn:com:apple:photo:2020:aux:hdrgainmap"));
}

// The map is a picture behind the first one, which need not mention it.
bool HasJpegGainMap(QFile& file)
{
    const QVector<JpegSegment> first = JpegSegmentsAt(file, 0);
    if (std::any_of(first.begin(), first.end(), SaysGainMap)) {
        return true;
    }
    const QVector<ListedPicture> pictures = FurtherPictures(first);
    return std::any_of(pictures.begin(), pictures.end(), [&file](const ListedPicture& picture) {
        const QVector<JpegSegment> segments = JpegSegmentsAt(file, picture.place);
        return std::any_of(segments.begin(), segments.end(), SaysGainMap);
    });
}

bool HasBox(QFile& file, const QByteArray& type)
{
    while (const std::optional<BoxHeader> box = NextBox(file)) {
        if (box->type == type) {
            return true;
        }
        if (!file.seek(file.pos() + box->size)) {
            break;
        }
    }
    return false;
}

} // namespace

bool HasGainMap(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return false;
    }
    constexpr int enough = 8;
    const QByteArray head = file.peek(enough);
    if (head.startsWith("\xFF\xD8")) {
        return HasJpegGainMap(file);
    }
    const QByteArray type = head.mid(boxTypeSize);
    return (type == "JXL " && HasBox(file, "jhgm")) || (type == "ftyp" && ReadItemBoxes(path).hasGainMap);
}

} // namespace BatchWorker
