#pragma once

#include <QByteArray>
#include <QFile>

#include <optional>

/// Files of boxes, as JPEG 2000 and JPEG XL have them: each box has a header of its size and its type.
namespace BatchWorker {

constexpr int boxTypeSize = 4;

struct BoxHeader
{
    QByteArray type;
    qint64 size = 0; ///< of the content
};

/// Reads the header of the box that begins where `file` stands; its content comes next. Nothing at the end, and where
/// no box of sense begins. Sizes of 64 bits are not read.
std::optional<BoxHeader> NextBox(QFile& file);

/// A box of `type` that holds `content`.
QByteArray Box(const QByteArray& type, const QByteArray& content);

} // namespace BatchWorker
