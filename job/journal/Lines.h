// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QIODevice>

#include <utility>

namespace BatchJob {

/// The lines of a file that is read in blocks: the files of OwnFile.h have no buffer, and would be read byte by byte.
class Lines
{
public:
    explicit Lines(QIODevice& file)
        : file(file)
    {
    }

    bool IsAtEnd()
    {
        FindEnd();
        return begin == text.size();
    }

    /// The next line with its line feed, which only a truncated last line lacks. It is valid until the next call here.
    QByteArray Next()
    {
        FindEnd();
        const int first = std::exchange(begin, end);
        return QByteArray::fromRawData(text.constData() + first, end - first);
    }

private:
    /// Finds the end of the line at `begin`. What is appended to the file after its end was seen once does not count.
    void FindEnd()
    {
        if (begin < end) {
            return;
        }
        constexpr int block = 1 << 20;
        int searched = begin;
        for (;;) {
            const int lineFeed = text.indexOf('\n', searched);
            if (lineFeed >= 0 || isRead) {
                end = lineFeed < 0 ? text.size() : lineFeed + 1;
                return;
            }
            if (begin > 0) {
                text = text.mid(begin); // A long line gives its memory back.
                begin = 0;
                end = 0;
            }
            searched = text.size();
            const QByteArray more = file.read(block);
            isRead = more.isEmpty();
            text += more;
        }
    }

    QIODevice& file;
    QByteArray text;
    int begin = 0; ///< of the next line
    int end = 0;
    bool isRead = false;
};

} // namespace BatchJob
