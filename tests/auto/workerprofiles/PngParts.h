// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QVector>

#include <array>

/// PNG files made and taken apart by hand, because the libraries drop what these tests are about.
namespace PngParts {

using Colour = std::array<double, 3>; ///< 0 to 1

constexpr int patchSide = 8;

/// A chunk of `type` with its checksum.
QByteArray Chunk(const QByteArray& type, const QByteArray& content);

/// The chunk in which a file carries `profile`.
QByteArray ProfileChunk(const QByteArray& profile);

/// A file whose picture is a row of square patches. `extra` are chunks between the header and the pixels. `channels`
/// is 1, where the first value of each colour counts, or 3.
QByteArray File(const QVector<Colour>& patches, const QByteArray& extra, int bits = 8, int channels = 3);

/// The content of the first chunk of `type` in `file`; null without one.
QByteArray ContentOf(const QByteArray& file, const QByteArray& type);

/// The profile that `file` carries; empty without one.
QByteArray ProfileOf(const QByteArray& file);

QByteArray BigEndian(quint32 number);

} // namespace PngParts
