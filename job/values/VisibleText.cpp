// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "VisibleText.h"

#include <algorithm>

namespace BatchJob {

namespace {

bool IsBetween(uint character, uint first, uint last)
{
    return character >= first && character <= last;
}

QString Code(const char* begin, uint character, int digits)
{
    return QLatin1String(begin) + QStringLiteral("%1").arg(character, digits, 16, QLatin1Char('0'));
}

bool HasControl(const QString& text)
{
    return std::any_of(text.begin(), text.end(), [](QChar character) { return IsControl(character.unicode()); });
}

} // namespace

bool IsControl(uint character)
{
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        break;
    }
    // Marks, embeddings, overrides and isolates of the bidirectional algorithm.
    return character == 0x061C || IsBetween(character, 0x200E, 0x200F) || IsBetween(character, 0x202A, 0x202E) ||
           IsBetween(character, 0x2066, 0x2069);
}

QString VisibleText(const QString& text)
{
    if (!HasControl(text)) {
        return text;
    }
    QString visible;
    for (const QChar character : text) {
        const uint code = character.unicode();
        visible += !IsControl(code) ? QString(character) : code < 0x100 ? Code("\\x", code, 2) : Code("\\u", code, 4);
    }
    return visible;
}

QByteArray VisibleJson(const QByteArray& json)
{
    constexpr uint firstUnwritten = 0x7F; // Qt writes those below as JSON demands, and line breaks between values.
    QString visible;
    for (const QChar character : QString::fromUtf8(json)) {
        const uint code = character.unicode();
        visible += code >= firstUnwritten && IsControl(code) ? Code("\\u", code, 4) : QString(character);
    }
    return visible.toUtf8();
}

} // namespace BatchJob
