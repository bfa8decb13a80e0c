// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QIODevice>

namespace BatchJob {

/// The lines of a file that is read at once: the files of OwnFile.h have no buffer, and would be read byte by byte.
class Lines
{
public:
    explicit Lines(QIODevice& file)
        : text(file.readAll())
    {
    }

    bool IsAtEnd() const { return position == text.size(); }

    /// The next line with its line feed, which only a truncated last line lacks. It is valid as long as this object.
    QByteArray Next()
    {
        const int lineFeed = text.indexOf('\n', position);
        const int begin = position;
        position = lineFeed < 0 ? text.size() : lineFeed + 1;
        return QByteArray::fromRawData(text.constData() + begin, position - begin);
    }

private:
    const QByteArray text;
    int position = 0;
};

} // namespace BatchJob
