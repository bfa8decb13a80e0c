// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "TextLayout.h"

#include <QVector>

namespace BatchCli {

namespace {

bool IsBetween(uint value, uint first, uint last)
{
    return value >= first && value <= last;
}

/// Characters of wide scripts that must not begin a line.
bool ClosesText(uint character)
{
    static const QString closing =
        QStringLiteral("\u3001\u3002\uFF0C\uFF0E\u30FB\uFF1A\uFF1B\uFF1F\uFF01\u30FC\u3063\u3083"
                       "\u3085\u3087\u30C3\u30E3\u30E5\u30E7\u30A1\u30A3\u30A5\u30A7\u30A9\uFF05.,:;?!%");
    const QChar::Category category = QChar::category(character);
    return category == QChar::Punctuation_Close || category == QChar::Punctuation_FinalQuote ||
           closing.contains(QString::fromUcs4(&character, 1));
}

bool OpensText(uint character)
{
    const QChar::Category category = QChar::category(character);
    return category == QChar::Punctuation_Open || category == QChar::Punctuation_InitialQuote;
}

/// Whether a line may end between these neighbours, neither of which is a blank.
bool CanBreak(uint before, uint after)
{
    const bool isWide = ColumnsOf(before) == 2 || ColumnsOf(after) == 2;
    return isWide && !OpensText(before) && !ClosesText(after);
}

/// What stays on one line, and whether a blank stands in front of it.
struct Piece
{
    QString text;
    int columns = 0;
    bool hasBlank = false;
};

QVector<Piece> PiecesOf(const QString& text)
{
    QVector<Piece> pieces{Piece()};
    uint previous = ' ';
    for (const uint character : text.toUcs4()) {
        if (character == ' ') {
            pieces.append({QString(), 0, true});
        } else {
            if (previous != ' ' && CanBreak(previous, character)) {
                pieces.append(Piece());
            }
            pieces.last().text += QString::fromUcs4(&character, 1);
            pieces.last().columns += ColumnsOf(character);
        }
        previous = character;
    }
    return pieces;
}

} // namespace

int ColumnsOf(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Mark_NonSpacing:
    case QChar::Mark_Enclosing:
    case QChar::Other_Format:
        return 0;
    default:
        break;
    }
    // East Asian scripts, their punctuation and full-width forms, and pictographs.
    const bool isWide = IsBetween(character, 0x1100, 0x115F) || IsBetween(character, 0x2E80, 0xA4CF) ||
                        IsBetween(character, 0xAC00, 0xD7A3) || IsBetween(character, 0xF900, 0xFAFF) ||
                        IsBetween(character, 0xFE30, 0xFE6F) || IsBetween(character, 0xFF00, 0xFF60) ||
                        IsBetween(character, 0xFFE0, 0xFFE6) || IsBetween(character, 0x1F300, 0x1FAFF) ||
                        IsBetween(character, 0x20000, 0x3FFFD);
    return isWide ? 2 : 1;
}

QString Wrapped(const QString& text, int indent, int columns)
{
    QString wrapped;
    int column = indent;
    for (const Piece& piece : PiecesOf(text)) {
        const int blank = piece.hasBlank ? 1 : 0;
        if (column > indent && column + blank + piece.columns > columns) {
            wrapped += QLatin1Char('\n') + QString(indent, QLatin1Char(' '));
            column = indent;
        } else if (column > indent) {
            wrapped += QString(blank, QLatin1Char(' '));
            column += blank;
        }
        wrapped += piece.text;
        column += piece.columns;
    }
    return wrapped;
}

} // namespace BatchCli
