// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "PngColours.h"

#include "PngChunks.h"

#include "server/worker/colour/GeneratedProfile.h"
#include "server/worker/pixels/FileCalls.h"

#include <QFile>
#include <QtEndian>

#include <zlib.h>

#include <array>
#include <cmath>
#include <memory>

namespace BatchWorker {

namespace {

// Source of the contents: W3C, Portable Network Graphics (3rd edition), chapter 11.
constexpr int fieldSize = 4; // of a number
constexpr int largestProfile = 16 << 20;

struct Chunks
{
    QByteArray cicp;
    QByteArray iccp;
    QByteArray chrm;
    QByteArray gama;
    bool isSrgb = false;
    bool hasProfile = false; ///< maybe a damaged one
};

bool IsWhole(const QByteArray& typeAndContent, const QByteArray& checksum)
{
    const auto* bytes = reinterpret_cast<const Bytef*>(typeAndContent.constData());
    return checksum.size() == PngChunk::checksumSize &&
           crc32(0, bytes, uInt(typeAndContent.size())) == qFromBigEndian<quint32>(checksum.constData());
}

void Keep(const QByteArray& type, const QByteArray& content, Chunks& chunks)
{
    const auto keepFirst = [&content](QByteArray& place) { place = place.isEmpty() ? content : place; };
    if (type == "cICP") {
        keepFirst(chunks.cicp);
    } else if (type == "iCCP") {
        keepFirst(chunks.iccp);
    } else if (type == "cHRM") {
        keepFirst(chunks.chrm);
    } else if (type == "gAMA") {
        keepFirst(chunks.gama);
    } else if (type == "sRGB") {
        chunks.isSrgb = true;
    }
}

// Those before the pixels; others do not count.
Chunks ReadChunks(const QString& path)
{
    Chunks chunks;
    QFile file;
    if (!OpenFile(file, path, QIODevice::ReadOnly)) {
        return chunks;
    }
    file.seek(pngSignatureSize);
    while (const std::optional<PngChunk> chunk = NextPngChunk(file)) {
        if (chunk->type == "IDAT" || chunk->type == "IEND") {
            break;
        }
        const qint64 next = file.pos() + chunk->RestSize();
        chunks.hasProfile = chunks.hasProfile || chunk->type == "iCCP";
        if (chunk->size <= largestProfile) {
            const QByteArray content = file.read(chunk->size);
            if (IsWhole(chunk->type + content, file.read(PngChunk::checksumSize))) {
                Keep(chunk->type, content, chunks);
            }
        }
        file.seek(next);
    }
    return chunks;
}

QByteArray Inflated(const QByteArray& packed)
{
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK) {
        return {};
    }
    const std::unique_ptr<z_stream, decltype(&inflateEnd)> end(&stream, inflateEnd);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(packed.constData()));
    stream.avail_in = uInt(packed.size());
    QByteArray whole;
    QByteArray piece(64 << 10, '\0');
    int result = Z_OK;
    while (result == Z_OK && whole.size() <= largestProfile) {
        stream.next_out = reinterpret_cast<Bytef*>(piece.data());
        stream.avail_out = uInt(piece.size());
        result = inflate(&stream, Z_NO_FLUSH);
        whole += piece.left(piece.size() - int(stream.avail_out));
    }
    return result == Z_STREAM_END && whole.size() <= largestProfile ? whole : QByteArray();
}

// The name, its end, the method, which is always 0, and the packed profile.
QByteArray ProfileIn(const QByteArray& iccp)
{
    const int end = iccp.indexOf('\0');
    return end > 0 && end + 2 < iccp.size() ? Inflated(iccp.mid(end + 2)) : QByteArray();
}

// Nothing when the chunk is not what it should be.
std::optional<FileColours> ColoursOfNumbers(const QByteArray& cicp)
{
    constexpr int matrixOfRgb = 0;
    if (cicp.size() != 4 || cicp[2] != matrixOfRgb || quint8(cicp[3]) > 1) {
        return std::nullopt;
    }
    FileColours colours = ColoursOf({quint8(cicp[0]), quint8(cicp[1])});
    if (colours.isUnusable) {
        return std::nullopt;
    }
    colours.isSrgb = !colours.hdr && colours.profile.isEmpty();
    colours.isNarrow = cicp[3] == 0;
    return colours;
}

constexpr double unit = 100'000.0;

std::optional<double> Exponent(const QByteArray& gama)
{
    constexpr double least = 0.1;
    constexpr double most = 10.0;
    const double stored = gama.size() == fieldSize ? qFromBigEndian<quint32>(gama.constData()) / unit : 0.0;
    return stored >= least && stored <= most ? std::optional<double>(1.0 / stored) : std::nullopt;
}

std::optional<Primaries> PrimariesIn(const QByteArray& chrm)
{
    std::array<Chromaticity, 4> points{};
    if (chrm.size() != int(points.size()) * 2 * fieldSize) {
        return std::nullopt;
    }
    const auto number = [&chrm](std::size_t index) {
        return qFromBigEndian<quint32>(chrm.constData() + index * fieldSize) / unit;
    };
    for (std::size_t i = 0; i < points.size(); ++i) {
        points[i] = {number(2 * i), number(2 * i + 1)};
    }
    const Primaries primaries{points[1], points[2], points[3], points[0]};
    return MakeSense(primaries) ? std::optional<Primaries>(primaries) : std::nullopt;
}

bool AreAlike(const Primaries& one, const Primaries& other)
{
    const auto areClose = [](const Chromaticity& a, const Chromaticity& b) {
        constexpr double nearby = 0.002;
        return std::abs(a.x - b.x) < nearby && std::abs(a.y - b.y) < nearby;
    };
    return areClose(one.red, other.red) && areClose(one.green, other.green) && areClose(one.blue, other.blue) &&
           areClose(one.white, other.white);
}

// The exponent 1 / 0.45455 is how files say sRGB.
ToneCurve CurveOfExponent(double exponent)
{
    constexpr double ofSrgb = 1.0 / 0.45455;
    constexpr double rounding = 0.001;
    return std::abs(exponent - ofSrgb) < rounding ? SrgbCurve() : GammaCurve(exponent);
}

FileColours ColoursOfCurve(const QByteArray& gama, const QByteArray& chrm)
{
    const std::optional<double> exponent = Exponent(gama);
    const std::optional<Primaries> found = PrimariesIn(chrm);
    const bool hasOwn = found && !AreAlike(*found, SrgbPrimaries());
    const ToneCurve plain = exponent ? CurveOfExponent(*exponent) : SrgbCurve();
    FileColours colours;
    if (hasOwn) {
        colours.profile = ProfileOf(*found, exponent ? GammaCurve(*exponent) : SrgbCurve());
    } else if (plain.start == 0.0) {
        colours.profile = ProfileOf(SrgbPrimaries(), plain);
    }
    return colours;
}

} // namespace

FileColours ReadPngColours(const QString& path)
{
    const Chunks chunks = ReadChunks(path);
    if (const std::optional<FileColours> coded = ColoursOfNumbers(chunks.cicp)) {
        return *coded;
    }
    FileColours colours;
    colours.profile = ProfileIn(chunks.iccp);
    colours.isUnusable = chunks.hasProfile && colours.profile.isEmpty();
    if (colours.isUnusable || !colours.profile.isEmpty() || chunks.isSrgb) {
        return colours;
    }
    return ColoursOfCurve(chunks.gama, chunks.chrm);
}

} // namespace BatchWorker
