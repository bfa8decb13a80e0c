// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "LengthTexts.h"

#include "ValueTexts.h"

#include "hosts/common/RequestError.h"
#include "job/values/Phrase.h"

#include <QRegularExpression>

#include <array>
#include <cmath>
#include <limits>

using namespace BatchJob;

namespace BatchHost {

namespace {

using Settings = ZTBatchOutputSettings;

struct Unit
{
    const char* sign;
    SizeUnit unit;
};

constexpr std::array units{Unit{"px", SizeUnit::Pixels}, Unit{"%", SizeUnit::Percent}, Unit{"in", SizeUnit::Inches},
                           Unit{"cm", SizeUnit::Centimetres}, Unit{"mm", SizeUnit::Millimetres}};

RequestError NoLength(const QString& text)
{
    return {Phrase::English("\"%1\" is not a length above 0 and up to %2, such as 1600, 50%, 8in, 20cm or "
                            "200mm; \"none\" keeps the size")
                .arg(text, QString::number(largestSide))};
}

RequestError WithComma(const QString& text, const TypedLength& length)
{
    static const QRegularExpression twoNumbers(QStringLiteral("\\A(\\d+),(\\d+)\\z"));
    const QRegularExpressionMatch match = twoNumbers.match(length.number);
    if (!match.hasMatch()) {
        return {Phrase::English("\"%1\" has a comma; a size is one length, such as 1600 or 20.5cm").arg(text)};
    }
    const QString before = match.captured(1);
    const QString behind = match.captured(2);
    const QString decimal = QStringLiteral("%1.%2%3").arg(before, behind, length.sign);
    if (!length.IsInPixels()) {
        return {Phrase::English("\"%1\" has a comma; decimals are written with a point: type %2").arg(text, decimal)};
    }
    return {Phrase::English("\"%1\" has a comma, which no number has: type %2 for that many pixels, %3cm for "
                            "decimals, or --crop fill:%4 for a width and a height")
                .arg(text, before + behind + length.sign, QStringLiteral("%1.%2").arg(before, behind),
                     QStringLiteral("%1x%2").arg(before, behind))};
}

/// Whole pixels in place of `length`, which has decimals.
QString PixelsToType(const TypedLength& length)
{
    const double value = length.Value();
    if (LooksLikeThousands(length.number)) {
        const QString whole = QString(length.number).remove(QLatin1Char('.'));
        return BatchJob::Phrase::English("type %1 for that many pixels").arg(whole + length.sign);
    }
    if (value == std::trunc(value)) {
        return BatchJob::Phrase::English("type %1 for that").arg(NumberText(value) + length.sign);
    }
    if (value < 1) {
        return length.sign.isEmpty() ? BatchJob::Phrase::English("type 1") : BatchJob::Phrase::English("type 1px");
    }
    return BatchJob::Phrase::English("type %1 or %2")
        .arg(NumberText(std::floor(value)) + length.sign, NumberText(std::ceil(value)) + length.sign);
}

/// `length` is of pixels, and has decimals.
RequestError PartOfPixel(const QString& text, const TypedLength& length)
{
    const double value = length.Value();
    const QString number = NumberText(value);
    const QString meaning =
        value == 1
            ? BatchJob::Phrase::English("\"%1\" means %2 pixel, for a point begins the decimals, but pixels are "
                                        "counted in whole numbers: %3, or a unit, as in %4cm")
            : BatchJob::Phrase::English("\"%1\" means %2 pixels, for a point begins the decimals, but pixels are "
                                        "counted in whole numbers: %3, or a unit, as in %4cm");
    return {meaning.arg(text, number, PixelsToType(length), number)};
}

} // namespace

TypedLength TypedLength::Of(const QString& text)
{
    for (const Unit& unit : units) {
        const QLatin1String sign(unit.sign);
        if (text.endsWith(sign, Qt::CaseInsensitive)) {
            return {text.left(text.size() - sign.size()).trimmed(), sign, unit.unit};
        }
    }
    return {text.trimmed(), QString(), {}};
}

double TypedLength::Value() const
{
    bool isNumber = false;
    // A locale, also that of C, takes commas for separators of thousands.
    const double value = number.toDouble(&isNumber);
    return isNumber ? value : std::numeric_limits<double>::quiet_NaN();
}

QString UnitSign(int unit)
{
    for (const Unit& known : units) {
        if (unit == int(known.unit)) {
            return QString::fromLatin1(known.sign);
        }
    }
    return {};
}

bool LooksLikeThousands(const QString& number)
{
    static const QRegularExpression thousands(QStringLiteral("\\A[1-9]\\d{0,2}\\.\\d{3}\\z"));
    return thousands.match(number).hasMatch();
}

bool HasDecimals(const QString& number)
{
    const double value = number.toDouble();
    return value != std::trunc(value) || (number.contains(QLatin1Char('.')) && !number.contains(QLatin1Char('e')));
}

void LengthFromText(const QString& text, Settings::ImageSize& imageSize)
{
    static const QRegularExpression twoSides(
        QStringLiteral("\\A[\\d.,]+\\s*[xX\u00d7]\\s*[\\d.,]+\\s*(px|in|cm|mm)?\\z"));
    if (twoSides.match(text).hasMatch()) {
        QString sides = text;
        sides.replace(QChar(0xd7), QLatin1Char('x')).remove(QLatin1Char(' '));
        throw RequestError{Phrase::English("\"%1\" is a width and a height, but a size is the length of one side: type "
                                           "one of them, with --side to say which, or --crop fill:%2 for exactly that")
                               .arg(text, sides.toLower())};
    }
    const TypedLength length = TypedLength::Of(text);
    if (length.number.contains(QLatin1Char(','))) {
        throw WithComma(text, length);
    }
    const double value = length.Value();
    if (!(value > 0) || value > largestSide) {
        throw NoLength(text);
    }
    if (length.IsInPixels() && HasDecimals(length.number)) {
        throw PartOfPixel(text, length);
    }
    imageSize.size = value;
    imageSize.unit = int(length.unit.value_or(SizeUnit::Pixels));
}

QString LengthText(const Settings::ImageSize& imageSize)
{
    const QString sign = UnitSign(imageSize.unit);
    return sign.isEmpty() ? Phrase::English("%1 (unit %2)").arg(NumberText(imageSize.size)).arg(imageSize.unit)
                          : NumberText(imageSize.size) + sign;
}

} // namespace BatchHost
