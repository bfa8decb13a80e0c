// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CutText.h"

#include <QTextBoundaryFinder>

namespace BatchJob {

QString CutToBytes(const QString& text, int bytes)
{
    if (text.size() <= bytes && text.toUtf8().size() <= bytes) {
        return text;
    }
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    int end = 0;
    int size = 0;
    for (int next = finder.toNextBoundary(); next != -1; next = finder.toNextBoundary()) {
        size += text.mid(end, next - end).toUtf8().size();
        if (size > bytes) {
            break;
        }
        end = next;
    }
    return text.left(end);
}

} // namespace BatchJob
