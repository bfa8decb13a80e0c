// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ValueTexts.h"

#include "Words.h"

#include "hosts/common/UserPath.h"
#include "job/settings/NamePart.h"
#include "job/tokens/TokenText.h"
#include "job/values/Phrase.h"

#include <QDir>
#include <QLocale>

#include <cmath>
#include <limits>

using namespace BatchJob;

namespace BatchHost {

namespace {

constexpr int lastPattern = 7;

using Settings = ZTBatchOutputSettings;

QString HeadOf(const QString& text)
{
    return text.section(QLatin1Char(':'), 0, 0);
}

QString TailOf(const QString& text)
{
    return text.section(QLatin1Char(':'), 1);
}

void SetTokens(const QString& text, Settings::NamingPart part, Settings& settings)
{
    const TokenText tokens(text);
    if (!tokens.IsValid()) {
        throw RequestError{tokens.Error()};
    }
    NamePart named = NamePartOf(settings, part);
    named.kind = TemplateTokens;
    named.text = text;
    named.startNumber = 1;
    SetNamePart(settings, part, named);
}

} // namespace

double NumberFromText(const QString& text, double minimum, double maximum)
{
    bool isNumber = false;
    // A locale, also that of C, takes commas for separators of thousands.
    const double number = text.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(number) || number < minimum || number > maximum) {
        throw RequestError{Phrase::English("\"%1\" is not a number from %2 to %3")
                               .arg(text, NumberText(minimum), NumberText(maximum))};
    }
    return number;
}

int IntegerFromText(const QString& text, int minimum, int maximum)
{
    bool isNumber = false;
    const int number = text.toInt(&isNumber);
    if (!isNumber || number < minimum || number > maximum) {
        throw RequestError{Phrase::English("\"%1\" is not a whole number from %2 to %3")
                               .arg(text, QString::number(minimum), QString::number(maximum))};
    }
    return number;
}

QString NumberText(double number)
{
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

QSize SizeFromText(const QString& text)
{
    const QStringList sides = text.toLower().split(QLatin1Char('x'));
    bool isWidth = false;
    bool isHeight = false;
    const QSize size(sides.value(0).toInt(&isWidth), sides.value(1).toInt(&isHeight));
    if (sides.size() != 2 || !isWidth || !isHeight || size.isEmpty() || size.width() > largestSide ||
        size.height() > largestSide) {
        throw RequestError{
            Phrase::English(
                "\"%1\" does not have the form WIDTHxHEIGHT, with whole numbers from 1 to %2, such as 800x600")
                .arg(text, QString::number(largestSide))};
    }
    return size;
}

QString SizeText(const QSize& size)
{
    return QStringLiteral("%1x%2").arg(size.width()).arg(size.height());
}

QMargins MarginsFromText(const QString& text)
{
    const QStringList numbers = text.split(QLatin1Char(','));
    QVector<int> sides;
    for (const QString& number : numbers) {
        bool isNumber = false;
        sides.append(number.trimmed().toInt(&isNumber));
        if (!isNumber || sides.last() < 0 || sides.last() > largestSide) {
            sides.clear();
            break;
        }
    }
    if (sides.size() == 1) {
        return {sides[0], sides[0], sides[0], sides[0]};
    }
    if (sides.size() == 4) {
        return {sides[0], sides[1], sides[2], sides[3]};
    }
    throw RequestError{Phrase::English("\"%1\" is neither a number of pixels, such as 40, nor LEFT,TOP,RIGHT,BOTTOM; "
                                       "\"none\" means no frame")
                           .arg(text)};
}

QString MarginsText(const QMargins& margins)
{
    const QMargins even(margins.left(), margins.left(), margins.left(), margins.left());
    return margins == even ? QString::number(margins.left())
                           : QStringLiteral("%1,%2,%3,%4")
                                 .arg(margins.left())
                                 .arg(margins.top())
                                 .arg(margins.right())
                                 .arg(margins.bottom());
}

QColor ColourFromText(const QString& text)
{
    QColor colour(text);
    if (!colour.isValid() && text.size() == 6) {
        colour.setNamedColor(QLatin1Char('#') + text);
    }
    if (!colour.isValid() || colour.alpha() != 255) {
        throw RequestError{Phrase::English("\"%1\" is not a colour; use #rrggbb or a name").arg(text) +
                           NearestHint(text, QColor::colorNames())};
    }
    return colour;
}

void BackgroundFromText(const QString& text, Settings::Transformation& transformation)
{
    const QString value = TailOf(text);
    const int type = ValueOf(BatchJob::BackgroundTypeWords, HeadOf(text));
    const auto need = [&](const char* example) {
        if (value.isEmpty()) {
            throw RequestError{
                Phrase::English("\"%1\" is incomplete; complete it as in %2").arg(text, QLatin1String(example))};
        }
    };
    switch (BatchJob::BackgroundType(type)) {
    case BatchJob::BackgroundType::None:
        break;
    case BatchJob::BackgroundType::Colour:
        need("colour:#f0f0f0");
        transformation.backgroundColor = ColourFromText(value);
        break;
    case BatchJob::BackgroundType::Pattern: {
        need("pattern:3 or pattern:3:150");
        const QString scale = TailOf(value);
        transformation.backgroundPattern = {IntegerFromText(HeadOf(value), 0, lastPattern),
                                            scale.isEmpty() ? 0 : IntegerFromText(scale, 1, 10'000), 0};
        break;
    }
    case BatchJob::BackgroundType::Image:
        need("image:paper.jpg");
        transformation.backgroundImage = AbsolutePath(value);
        break;
    }
    transformation.backgroundType = type;
}

QString BackgroundText(const Settings::Transformation& transformation)
{
    const QString word = WordOf(BatchJob::BackgroundTypeWords, transformation.backgroundType);
    switch (BatchJob::BackgroundType(transformation.backgroundType)) {
    case BatchJob::BackgroundType::Colour:
        return word + QLatin1Char(':') + transformation.backgroundColor.name();
    case BatchJob::BackgroundType::Pattern: {
        const int scale = transformation.backgroundPattern[1];
        const QString pattern = QStringLiteral("%1:%2").arg(word).arg(transformation.backgroundPattern[0]);
        return scale == 0 ? pattern : QStringLiteral("%1:%2").arg(pattern).arg(scale);
    }
    case BatchJob::BackgroundType::Image:
        return word + QLatin1Char(':') + transformation.backgroundImage;
    default:
        return word;
    }
}

void NamePartFromText(const QString& text, Settings::NamingPart part, Settings& settings)
{
    const QString head = HeadOf(text);
    const QString value = TailOf(text);
    const QStringList words = AllWords(BatchJob::NamePartWords);
    if (!words.contains(head, Qt::CaseInsensitive)) {
        if (text.contains(QLatin1Char('{'))) {
            SetTokens(text, part, settings);
            return;
        }
        throw RequestError{NoSuchWord(head, words).text +
                           Phrase::English("; write a text of your own as text:%1").arg(text)};
    }
    const auto kind = Settings::NamingTemplate(ValueOf(BatchJob::NamePartWords, head));
    if (kind == TemplateTokens) {
        SetTokens(value, part, settings);
        return;
    }
    const bool takesMore = kind == Settings::TemplateNumber || kind == Settings::TemplateCustomText;
    if (!takesMore && text.contains(QLatin1Char(':'))) {
        throw RequestError{Phrase::English("\"%1\" takes no value").arg(head)};
    }
    if (kind == Settings::TemplateNumber) {
        constexpr int mostDigits = 20;
        const QString digitsText = TailOf(value);
        const int start = value.isEmpty() ? 1 : IntegerFromText(HeadOf(value), 0, std::numeric_limits<int>::max());
        const int digits = digitsText.isEmpty() ? 3 : IntegerFromText(digitsText, 1, mostDigits);
        settings.SetNamingTemplate(part, kind);
        settings.SetStartNumber(part, start);
        settings.SetDigitsCount(part, digits);
        return;
    }
    NamePart named = NamePartOf(settings, part);
    named.kind = kind;
    if (kind == Settings::TemplateCustomText) {
        named.text = value;
    }
    SetNamePart(settings, part, named);
}

QString NamePartText(Settings::NamingPart part, const Settings& settings)
{
    const NamePart named = NamePartOf(settings, part);
    const QString word = WordOf(BatchJob::NamePartWords, named.kind);
    if (named.kind == TemplateTokens || named.kind == Settings::TemplateCustomText) {
        return word + QLatin1Char(':') + named.text;
    }
    if (named.kind == Settings::TemplateNumber) {
        return QStringLiteral("%1:%2:%3").arg(word).arg(named.startNumber).arg(named.digits);
    }
    return word;
}

} // namespace BatchHost
