// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ZTXmlWriter_p.h"

#include <QByteArray>

#include <algorithm>
#include <utility>

namespace {

constexpr int indentation = 4;

/// Whether a code unit is written unchanged, whatever surrounds it.
bool IsLiteral(QChar character)
{
    switch (character.unicode()) {
    case '<':
    case '>':
    case '&':
    case '"':
    case '\t':
    case '\n':
    case '\r':
    case 0xFFFE:
    case 0xFFFF:
        return false;
    default:
        return true;
    }
}

} // namespace

ZTXmlWriter::ZTXmlWriter(QLatin1String documentType)
{
    text += QLatin1String("<!DOCTYPE ") + documentType + QLatin1String(">\n");
}

void ZTXmlWriter::StartElement(QLatin1String name)
{
    if (isStartTagOpen) {
        text += QLatin1String(">\n");
    }
    StartLine();
    text += QLatin1Char('<');
    text += name;
    openElements.append(name);
    isStartTagOpen = true;
}

void ZTXmlWriter::WriteAttribute(QLatin1String name, const QString& value)
{
    Q_ASSERT(isStartTagOpen);
    text += QLatin1Char(' ');
    text += name;
    text += QLatin1String("=\"");
    AppendEscaped(value);
    text += QLatin1Char('"');
}

void ZTXmlWriter::WriteAttribute(QLatin1String name, int value)
{
    WriteAttribute(name, QString::number(value));
}

void ZTXmlWriter::WriteAttribute(QLatin1String name, uint value)
{
    WriteAttribute(name, QString::number(value));
}

void ZTXmlWriter::WriteAttribute(QLatin1String name, bool value)
{
    WriteAttribute(name, value ? 1 : 0);
}

void ZTXmlWriter::WriteAttribute(QLatin1String name, double value)
{
    // 17 significant digits identify every double, and the DOM writes as many.
    WriteAttribute(name, QString::number(value, 'g', 17));
}

void ZTXmlWriter::WriteAttribute(QLatin1String name, const QByteArray& bytes)
{
    WriteAttribute(name, QString::fromLatin1(bytes.toHex()));
}

void ZTXmlWriter::EndElement()
{
    const QLatin1String name = openElements.takeLast();
    if (isStartTagOpen) {
        text += QLatin1String("/>\n");
        isStartTagOpen = false;
        return;
    }
    StartLine();
    text += QLatin1String("</");
    text += name;
    text += QLatin1String(">\n");
}

QString ZTXmlWriter::TakeText()
{
    Q_ASSERT(openElements.isEmpty());
    return std::exchange(text, QString());
}

void ZTXmlWriter::StartLine()
{
    const int begin = text.size();
    text.resize(begin + indentation * openElements.size());
    std::fill(text.begin() + begin, text.end(), QLatin1Char(' '));
}

void ZTXmlWriter::AppendEscaped(const QString& value)
{
    const QChar* const begin = value.constData();
    const QChar* const end = begin + value.size();
    for (const QChar* next = begin; next != end; ++next) {
        const QChar* const literalEnd = std::find_if_not(next, end, IsLiteral);
        text.append(next, static_cast<int>(literalEnd - next));
        next = literalEnd;
        if (next == end) {
            return;
        }
        switch (next->unicode()) {
        case '<':
            text += QLatin1String("&lt;");
            break;
        case '&':
            text += QLatin1String("&amp;");
            break;
        case '"':
            text += QLatin1String("&quot;");
            break;
        case '\t':
            // A parser replaces literal white space in attributes with blanks.
            text += QLatin1String("&#x9;");
            break;
        case '\n':
            text += QLatin1String("&#xa;");
            break;
        case '\r':
            text += QLatin1String("&#xd;");
            break;
        case '>':
            // The DOM escapes it only at the end of what could be a CDATA section.
            if (next - begin >= 2 && next[-1] == QLatin1Char(']') && next[-2] == QLatin1Char(']')) {
                text += QLatin1String("&gt;");
            } else {
                text += QLatin1Char('>');
            }
            break;
        default:
            text += QChar(QChar::ReplacementCharacter);
        }
    }
}
