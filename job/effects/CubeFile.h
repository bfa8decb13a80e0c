// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QIODevice>
#include <QString>

#include <array>
#include <vector>

/// Tables of colours in .cube files, in version 1.0 of the Cube LUT format by Adobe Systems. Everything here is safe on
/// any thread.
namespace BatchJob {

/// A table that maps colours to colours; both may lie outside 0 to 1.
struct CubeTable
{
    int dimensions = 0; ///< 1: each channel has a curve of its own. 3: one table for all three.
    int size = 0;       ///< entries along a dimension: 2 to 65536 of one, 2 to 129 of three dimensions
    std::array<float, 3> domainMinimum{0, 0, 0}; ///< the colour of the first entry
    std::array<float, 3> domainMaximum{1, 1, 1}; ///< the colour of the last entry; above the minimum in every channel
    std::vector<float> values; ///< red, green, blue of each entry, finite; of three dimensions red runs fastest
};

/// A table, or the reason why there is none.
struct CubeFile
{
    CubeTable table; ///< empty when refused
    QString error;   ///< names the file, the line, what is wrong and what is needed; empty when accepted

    bool IsValid() const { return error.isEmpty(); }
};

/// Reads the file at `path`, line by line. Lines end with LF or CR LF; they may be empty or comments (`#`). TITLE is
/// ignored. A file needs exactly as many entries as its size says.
CubeFile ReadCubeFile(const QString& path);

/// The same from an open device; `name` stands for the file in messages.
CubeFile ReadCube(QIODevice& device, const QString& name);

} // namespace BatchJob
