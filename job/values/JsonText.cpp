// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "JsonText.h"

namespace BatchJob {

namespace {

void AppendEscaped(QByteArray& json, ushort unit)
{
    switch (unit) {
    case '"':
        json += "\\\"";
        return;
    case '\\':
        json += "\\\\";
        return;
    case '\b':
        json += "\\b";
        return;
    case '\f':
        json += "\\f";
        return;
    case '\n':
        json += "\\n";
        return;
    case '\r':
        json += "\\r";
        return;
    case '\t':
        json += "\\t";
        return;
    default:
        constexpr int hexadecimal = 16;
        constexpr int digits = 4;
        json += "\\u" + QByteArray::number(unit, hexadecimal).rightJustified(digits, '0');
    }
}

bool IsPlain(ushort unit)
{
    return unit >= 0x20 && unit != '"' && unit != '\\' && !QChar::isSurrogate(unit);
}

} // namespace

void AppendJsonString(QByteArray& json, const QString& text)
{
    json += '"';
    for (int i = 0; i < text.size();) {
        int end = i;
        while (end < text.size() && IsPlain(text.at(end).unicode())) {
            ++end;
        }
        if (end > i) {
            json += text.midRef(i, end - i).toUtf8();
            i = end;
            continue;
        }
        const bool isPair = text.at(i).isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair) {
            json += text.midRef(i, 2).toUtf8();
            i += 2;
        } else {
            AppendEscaped(json, text.at(i++).unicode()); // A lone surrogate has no UTF-8.
        }
    }
    json += '"';
}

} // namespace BatchJob
