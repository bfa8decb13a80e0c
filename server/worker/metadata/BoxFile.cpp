#include "BoxFile.h"

#include <QtEndian>

namespace BatchWorker {

namespace {

constexpr int headerSize = 8;

} // namespace

std::optional<BoxHeader> NextBox(QFile& file)
{
    const QByteArray header = file.read(headerSize);
    if (header.size() < headerSize) {
        return std::nullopt;
    }
    qint64 size = qFromBigEndian<quint32>(header.constData());
    if (size == 0) {
        size = headerSize + file.size() - file.pos(); // up to the file's end
    }
    if (size < headerSize || size - headerSize > file.size() - file.pos()) {
        return std::nullopt;
    }
    return BoxHeader{header.mid(boxTypeSize), size - headerSize};
}

QByteArray Box(const QByteArray& type, const QByteArray& content)
{
    QByteArray size(headerSize - boxTypeSize, '\0');
    qToBigEndian(quint32(content.size() + headerSize), size.data());
    return size + type + content;
}

} // namespace BatchWorker
