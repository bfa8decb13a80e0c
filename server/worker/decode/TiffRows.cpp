// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TiffRows.h"

#include "job/values/Phrase.h"

#include "server/worker/pixels/DamageText.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <numeric>

using namespace BatchJob;

namespace BatchWorker {

namespace {

constexpr int bytesOfRgb = 3;

// The planes of `layout` that are used.
std::vector<int> PlanesOf(const TiffLayout& layout)
{
    std::vector<int> planes(std::size_t(layout.colourSamples));
    std::iota(planes.begin(), planes.end(), 0);
    if (layout.alpha != TiffAlpha::None) {
        planes.push_back(layout.alphaSample);
    }
    return layout.isPlanar ? planes : std::vector<int>{0};
}

qint64 Product(qint64 a, qint64 b)
{
    qint64 product = 0;
    return __builtin_mul_overflow(a, b, &product) ? std::numeric_limits<qint64>::max() : product;
}

} // namespace

TiffRows::TiffRows(int descriptor, qint64 memory, Warnings& warnings)
{
    files.push_back(std::make_unique<TiffHandle>(descriptor, memory));
    layout = LayoutOf(*files.front(), warnings);
    if (layout.colours == TiffColours::Converted) {
        TiffLayout rgb = layout;
        rgb.colours = TiffColours::Rgb;
        rgb.samples = rgb.colourSamples;
        rgb.bits = 8;
        rgb.numbers = TiffNumbers::Unsigned;
        samples = std::make_unique<TiffSamples>(*files.front(), rgb);
    } else {
        samples = std::make_unique<TiffSamples>(*files.front(), layout);
        OpenPlanes(descriptor, memory);
    }
    Reserve(memory);
    for (const std::unique_ptr<TiffHandle>& file : files) {
        file->WarnTo(warnings);
    }
}

TiffRows::~TiffRows()
{
    if (converter) {
        TIFFRGBAImageEnd(converter.get());
    }
}

int TiffRows::PixelSize() const
{
    return samples->PixelSize();
}

// Planes are apart from each other in the file: each is read by a decoder of its own.
void TiffRows::OpenPlanes(int descriptor, qint64 memory)
{
    Warnings known;
    while (files.size() < PlanesOf(layout).size()) {
        files.push_back(std::make_unique<TiffHandle>(descriptor, memory));
        LayoutOf(*files.back(), known);
    }
}

void TiffRows::Reserve(qint64 memory)
{
    const bool isConverted = layout.colours == TiffColours::Converted;
    const bool isRowwise = !layout.isTiled && !isConverted;
    const int rows = isRowwise ? 1 : layout.unitHeight;
    const qint64 ofPixel = PixelSize() + (isConverted ? qint64(sizeof(std::uint32_t)) : 0);
    const qint64 ofBand = Product(Product(layout.width, rows), ofPixel);
    const qint64 ofUnit = layout.isTiled ? TIFFTileSize64(File())
                          : isRowwise    ? TIFFScanlineSize64(File())
                                         : TIFFStripSize64(File());
    const qint64 ofUnits = Product(ofUnit, qint64(files.size()));
    if (ofUnit <= 0) {
        throw DamagedFile(Phrase::English("its strips or tiles have no size that makes sense"));
    }
    if (ofBand > memory || ofUnits > memory - ofBand) {
        throw TooLarge(Phrase::English("its strips or tiles need more memory than a worker may use"));
    }
    band.resize(std::size_t(ofBand));
    if (isConverted) {
        raster.resize(std::size_t(layout.width) * std::size_t(rows));
        char reason[1024] = "";
        auto image = std::make_unique<TIFFRGBAImage>();
        if (TIFFRGBAImageBegin(image.get(), File(), 0, reason) == 0) {
            throw UnknownFormat(
                Phrase::English("its way of storing colours is not supported: %1").arg(QString::fromLocal8Bit(reason)));
        }
        converter = std::move(image);
        // As stored: the picture is turned upright with all others.
        converter->orientation = ORIENTATION_TOPLEFT;
        converter->req_orientation = ORIENTATION_TOPLEFT;
    } else {
        stored.assign(files.size(), std::vector<std::uint8_t>(std::size_t(ofUnit)));
    }
}

void TiffRows::Copy(int left, int y, int count, std::uint8_t* target)
{
    const std::lock_guard<std::mutex> lock(mutex);
    const bool isInMemory = y >= firstRow && y < firstRow + rowCount;
    if (!isInMemory && (hasFailed || !LoadBand(y))) {
        hasFailed = true;
        throw Failure();
    }
    const std::size_t pixelSize = std::size_t(PixelSize());
    const std::size_t first = std::size_t(y - firstRow) * std::size_t(layout.width) + std::size_t(left);
    std::memcpy(target, &band[first * pixelSize], std::size_t(count) * pixelSize);
}

bool TiffRows::LoadBand(int y)
{
    rowCount = 0;
    if (layout.colours == TiffColours::Converted) {
        return LoadConverted(y);
    }
    return layout.isTiled ? LoadTiles(y) : LoadRow(y);
}

// Decoders of most compressions cannot skip rows of a strip.
bool TiffRows::LoadRow(int y)
{
    const int startOfStrip = y - y % layout.unitHeight;
    if (nextRow > y || nextRow < startOfStrip) {
        nextRow = startOfStrip;
    }
    firstRow = y;
    while (nextRow <= y) {
        if (!DecodeRow(nextRow)) {
            return false;
        }
        ++nextRow;
    }
    if (samples->IsPlain() && !layout.isPlanar) {
        std::memcpy(band.data(), stored.front().data(), std::min(band.size(), stored.front().size()));
    } else {
        std::vector<const std::uint8_t*> rows;
        for (const std::vector<std::uint8_t>& plane : stored) {
            rows.push_back(plane.data());
        }
        samples->Convert(rows, layout.width, band.data());
    }
    rowCount = 1;
    return true;
}

bool TiffRows::DecodeRow(int y)
{
    const std::vector<int> planes = PlanesOf(layout);
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (TIFFReadScanline(files[i]->Get(), stored[i].data(), quint32(y), quint16(planes[i])) < 0) {
            return false;
        }
    }
    return true;
}

bool TiffRows::LoadTiles(int y)
{
    const std::vector<int> planes = PlanesOf(layout);
    firstRow = y - y % layout.unitHeight;
    const int rows = std::min(layout.unitHeight, layout.height - firstRow);
    const std::size_t lineSize = std::size_t(TIFFTileRowSize(File()));
    std::vector<const std::uint8_t*> lines(files.size());
    for (int left = 0; left < layout.width; left += layout.unitWidth) {
        const int columns = std::min(layout.unitWidth, layout.width - left);
        for (std::size_t i = 0; i < files.size(); ++i) {
            TIFF* const file = files[i]->Get();
            const ttile_t tile = TIFFComputeTile(file, quint32(left), quint32(firstRow), 0, quint16(planes[i]));
            if (TIFFReadEncodedTile(file, tile, stored[i].data(), tmsize_t(stored[i].size())) < 0) {
                return false;
            }
        }
        for (int row = 0; row < rows; ++row) {
            for (std::size_t i = 0; i < files.size(); ++i) {
                lines[i] = &stored[i][std::size_t(row) * lineSize];
            }
            const std::size_t pixel = std::size_t(row) * std::size_t(layout.width) + std::size_t(left);
            std::uint8_t* const target = &band[pixel * std::size_t(PixelSize())];
            if (samples->IsPlain() && !layout.isPlanar) {
                std::memcpy(target, lines[0], std::size_t(columns) * std::size_t(PixelSize()));
            } else {
                samples->Convert(lines, columns, target);
            }
        }
    }
    rowCount = rows;
    return true;
}

bool TiffRows::LoadConverted(int y)
{
    firstRow = y - y % layout.unitHeight;
    const int rows = std::min(layout.unitHeight, layout.height - firstRow);
    converter->row_offset = firstRow;
    if (TIFFRGBAImageGet(converter.get(), raster.data(), quint32(layout.width), quint32(rows)) == 0 ||
        !files.front()->Problem().isEmpty()) {
        return false;
    }
    std::uint8_t* target = band.data();
    for (std::size_t i = 0; i < std::size_t(rows) * std::size_t(layout.width); ++i) {
        const std::uint32_t pixel = raster[i];
        target[0] = std::uint8_t(TIFFGetR(pixel));
        target[1] = std::uint8_t(TIFFGetG(pixel));
        target[2] = std::uint8_t(TIFFGetB(pixel));
        target += bytesOfRgb;
    }
    rowCount = rows;
    return true;
}

// Says how much of the picture is there.
PictureFailure TiffRows::Failure() const
{
    const int percent = int(qint64(firstRow) * 100 / layout.height);
    QString detail;
    qint64 end = 0;
    for (const std::unique_ptr<TiffHandle>& file : files) {
        detail = detail.isEmpty() ? file->Problem() : detail;
        const quint32 units = layout.isTiled ? TIFFNumberOfTiles(file->Get()) : TIFFNumberOfStrips(file->Get());
        for (quint32 unit = 0; unit < units; ++unit) {
            end = std::max(end,
                           qint64(TIFFGetStrileOffset(file->Get(), unit) + TIFFGetStrileByteCount(file->Get(), unit)));
        }
    }
    if (end > files.front()->FileSize()) {
        return DamagedFile(Phrase::English("the file ends after %1 % of the picture").arg(percent), detail);
    }
    return DamagedFile(DamageText(DamageKind::Damaged, percent), detail);
}

} // namespace BatchWorker
