// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "Resampling.h"

#include "ColumnReduction.h"
#include "RowReduction.h"

#include "server/worker/pixels/WeightedFilter.h"

#include <algorithm>
#include <cmath>

namespace BatchWorker {

namespace {

Picture Cut(const Picture& picture, const QRect& rect)
{
    if (rect == QRect(0, 0, picture.width(), picture.height())) {
        return picture;
    }
    return picture.crop(rect.x(), rect.y(), rect.width(), rect.height());
}

// From here on the library averages rows before it weighs them.
constexpr int libraryReduction = 4;

// Rows first: whole rows fill the registers of the processor, and fewer are left for the columns.
Picture ScaledAsIs(const Picture& picture, const QSize& size)
{
    const bool hasFewerRows = size.height() < picture.height() && picture.height() < libraryReduction * size.height();
    const bool hasFewerColumns = size.width() < picture.width();
    const Picture rows = hasFewerRows ? WithFewerRows(picture, size.height()) : picture;
    const double vertical = double(size.height()) / rows.height();
    const double horizontal = hasFewerColumns ? 1.0 : double(size.width()) / rows.width();
    const bool isScaled = vertical != 1.0 || horizontal != 1.0;
    const Picture scaled = isScaled ? rows.resize(horizontal, Picture::option()->set("vscale", vertical)) : rows;
    return hasFewerColumns ? WithFewerColumns(scaled, size.width()) : scaled;
}

Picture Scaled(const Picture& picture, const QSize& size)
{
    if (size == QSize(picture.width(), picture.height())) {
        return picture;
    }
    return FilteredByOpacity(picture, [&size](const Picture& source) { return ScaledAsIs(source, size); });
}

// The frame lies between the pixels of a source that was loaded smaller: the whole is scaled, then the frame is cut
// out. Rows and columns that the frame does not need are not computed.
Picture CutAfterScaling(const Picture& loaded, const QSize& sourceSize, const BatchJob::Geometry& geometry)
{
    const double horizontal = double(geometry.scaledSize.width()) / geometry.part.width();
    const double vertical = double(geometry.scaledSize.height()) / geometry.part.height();
    const QSize whole =
        QSize(int(std::lround(sourceSize.width() * horizontal)), int(std::lround(sourceSize.height() * vertical)))
            .expandedTo(geometry.cut.size());
    const QPoint start(int(std::lround(geometry.part.x() * horizontal)) + geometry.cut.x(),
                       int(std::lround(geometry.part.y() * vertical)) + geometry.cut.y());
    const QPoint last(whole.width() - geometry.cut.width(), whole.height() - geometry.cut.height());
    const QPoint within(std::min(start.x(), last.x()), std::min(start.y(), last.y()));
    return Cut(Scaled(loaded, whole), QRect(within, geometry.cut.size()));
}

} // namespace

Picture Resampled(const Picture& loaded, const QSize& sourceSize, const BatchJob::Geometry& geometry)
{
    const bool isWhole = geometry.part.size() == sourceSize;
    if (!isWhole && QSize(loaded.width(), loaded.height()) != sourceSize) {
        return CutAfterScaling(loaded, sourceSize, geometry);
    }
    const Picture part = isWhole ? loaded : Cut(loaded, geometry.part);
    return Cut(Scaled(part, geometry.scaledSize), geometry.cut);
}

} // namespace BatchWorker
