// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QIODevice>

#include <optional>

/// Files that consist of boxes, such as JPEG 2000, JPEG XL and HEIF. The header of a box holds its size and its type.
namespace BatchWorker {

constexpr int boxTypeSize = 4;

struct BoxHeader
{
    QByteArray type;
    qint64 size = 0; ///< of the content
};

/// Reads the header of the box at the position of `file`, up to the box's content. Nothing at the end of the file and
/// for a malformed box.
std::optional<BoxHeader> NextBox(QIODevice& file);

/// A box of `type` that holds `content`.
QByteArray Box(const QByteArray& type, const QByteArray& content);

} // namespace BatchWorker
