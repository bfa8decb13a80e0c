#include "ZTXmlWriter_p.h"

#include <QByteArray>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int indentation = 4;

/// How many UTF-16 units at the front of the range XML can hold: 2 for a surrogate pair, 0 for what it cannot.
int CarriedUnits(const QChar* begin, const QChar* end)
{
    const ushort unit = begin->unicode();
    if (begin->isHighSurrogate()) {
        return end - begin > 1 && begin[1].isLowSurrogate() ? 2 : 0;
    }
    const bool isRefused =
        begin->isLowSurrogate() || unit >= 0xFFFE || (unit < 0x20 && unit != '\t' && unit != '\n' && unit != '\r');
    return isRefused ? 0 : 1;
}

/// Whether a character may stand as it is whatever its neighbours are.
bool IsPlain(QChar character)
{
    const ushort unit = character.unicode();
    return unit >= 0x20 && unit != '<' && unit != '>' && unit != '&' && unit != '"' &&
           (unit < 0xD800 || (unit > 0xDFFF && unit < 0xFFFE));
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
    // QString::number() drops the sign of a zero.
    const bool isNegativeZero = value == 0 && std::signbit(value);
    // 17 significant digits tell any two doubles apart, and they are what the DOM writes.
    WriteAttribute(name, isNegativeZero ? QStringLiteral("-0") : QString::number(value, 'g', 17));
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
    const QChar* next = begin;
    while (next != end) {
        const QChar* const plainEnd = std::find_if_not(next, end, IsPlain);
        text.append(next, static_cast<int>(plainEnd - next));
        next = plainEnd;
        if (next == end) {
            return;
        }
        const int units = CarriedUnits(next, end);
        switch (units == 1 ? next->unicode() : 0) {
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
            // A parser makes blanks of white space that is not written as a reference.
            text += QLatin1String("&#x9;");
            break;
        case '\n':
            text += QLatin1String("&#xa;");
            break;
        case '\r':
            text += QLatin1String("&#xd;");
            break;
        case '>':
            // Only the end of a CDATA section is taken for something else.
            if (next - begin >= 2 && next[-1] == QLatin1Char(']') && next[-2] == QLatin1Char(']')) {
                text += QLatin1String("&gt;");
            } else {
                text += QLatin1Char('>');
            }
            break;
        default:
            if (units == 0) {
                text += QChar(QChar::ReplacementCharacter);
            } else {
                text.append(next, units);
            }
        }
        next += std::max(units, 1);
    }
}
