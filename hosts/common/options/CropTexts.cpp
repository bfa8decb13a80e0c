// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "CropTexts.h"

#include "LengthTexts.h"
#include "ValueTexts.h"
#include "Words.h"

#include "job/values/Length.h"
#include "job/values/Phrase.h"

#include <QRegularExpression>

#include <algorithm>
#include <cmath>

using namespace BatchJob;

namespace BatchHost {

namespace {

using Settings = ZTBatchOutputSettings;

/// The two types that one word stands for.
struct TurningCrop
{
    CropType turning;
    CropType fixed;
};

constexpr std::array turningCrops{TurningCrop{CropType::TurningRatio, CropType::Ratio},
                                  TurningCrop{CropType::TurningInteresting, CropType::Interesting}};

const TurningCrop* FindTurning(int type)
{
    for (const TurningCrop& crop : turningCrops) {
        if (type == int(crop.turning)) {
            return &crop;
        }
    }
    return nullptr;
}

const TurningCrop* FindFixed(int type)
{
    for (const TurningCrop& crop : turningCrops) {
        if (type == int(crop.fixed)) {
            return &crop;
        }
    }
    return nullptr;
}

/// A width and a height with their units.
struct TypedSize
{
    TypedLength width;
    TypedLength height;
    bool isComplete = false;

    explicit TypedSize(const QString& text)
    {
        static const QRegularExpression form(
            QStringLiteral("\\A([^a-z%]+(?:px|in|cm|mm|%)?)[x\u00d7]([^a-z%]+(?:px|in|cm|mm|%)?)\\z"),
            QRegularExpression::CaseInsensitiveOption);
        const QRegularExpressionMatch match = form.match(text);
        width = TypedLength::Of(match.captured(1));
        height = TypedLength::Of(match.captured(2));
        if (!width.unit) {
            width.unit = height.unit;
        }
        isComplete = match.hasMatch() && width.Value() > 0 && height.Value() > 0 && width.unit == height.unit &&
                     width.unit != SizeUnit::Percent;
    }
};

QString Pair(double width, double height, const QString& between)
{
    return NumberText(width) + between + NumberText(height);
}

RequestError NoSize(const QString& text)
{
    return {
        Phrase::English("\"%1\" does not have the form WIDTHxHEIGHT with an optional unit, such as 800x600, 15x10cm "
                        "or 6x4in")
            .arg(text)};
}

/// The pixels of one side that a user might have meant.
double WholePixels(const TypedLength& side)
{
    const double thousand = 1000;
    return LooksLikeThousands(side.number) ? std::round(side.Value() * thousand)
                                           : std::max(1.0, std::trunc(side.Value()));
}

QSize PixelsFromText(const QString& text, const TypedSize& typed)
{
    const TypedLength& width = typed.width;
    const TypedLength& height = typed.height;
    if (HasDecimals(width.number) || HasDecimals(height.number)) {
        throw RequestError{
            Phrase::English("\"%1\" means %2 pixels, for a point begins the decimals, but pixels are counted in whole "
                            "numbers, such as %3; or add a unit, as in %4cm")
                .arg(text, Pair(width.Value(), height.Value(), QStringLiteral(" x ")),
                     Pair(WholePixels(width), WholePixels(height), QStringLiteral("x")),
                     Pair(width.Value(), height.Value(), QStringLiteral("x")))};
    }
    if (width.Value() > largestSide || height.Value() > largestSide) {
        throw RequestError{Phrase::English("\"%1\" is too large; each side must be from 1 to %2 pixels")
                               .arg(text, QString::number(largestSide))};
    }
    return {int(width.Value()), int(height.Value())};
}

QSize PixelsAtResolution(const QString& text, const TypedSize& typed, int resolution)
{
    if (resolution < 1) {
        throw RequestError{
            Phrase::English("\"%1\" needs a resolution; add --resolution, as in --resolution 300").arg(text)};
    }
    const int unit = int(*typed.width.unit);
    const double width = std::round(PixelsOf(typed.width.Value(), unit, resolution));
    const double height = std::round(PixelsOf(typed.height.Value(), unit, resolution));
    if (!(width >= 1 && height >= 1 && width <= largestSide && height <= largestSide)) {
        throw RequestError{Phrase::English("\"%1\" is %2 pixels at %3 dots per inch; each side must be from 1 to %4")
                               .arg(text, Pair(width, height, QStringLiteral(" x ")), QString::number(resolution),
                                    QString::number(largestSide))};
    }
    return {int(width), int(height)};
}

/// A crop in pixels that a user most likely meant on paper, because that is how the size was given.
void CheckAgainstSize(const QString& text, const QSize& pixels, const Settings::ImageSize& imageSize)
{
    if (imageSize.restriction == int(SizeRestriction::None) || !NeedsResolution(imageSize.unit)) {
        return;
    }
    throw RequestError{Phrase::English("\"%1\" is %2 x %3 pixels, but the size is %4: type %5 for the unit of the "
                                       "size, or %6 for pixels")
                           .arg(text, QString::number(pixels.width()), QString::number(pixels.height()),
                                LengthText(imageSize), text + UnitSign(imageSize.unit), text + QStringLiteral("px"))};
}

/// "3x2" or, for a crop that does not turn, "3x2!".
void RatioFromText(const QString& head, const QString& text, const TurningCrop& types, Settings::Crop& crop)
{
    const bool isFixed = text.endsWith(QLatin1Char('!'));
    const QString ratio = isFixed ? text.left(text.size() - 1) : text;
    if (ratio.isEmpty()) {
        throw RequestError{Phrase::English("\"%1:%2\" needs a size, such as %1:3x2%2").arg(head, text)};
    }
    const TypedSize typed(ratio);
    if (typed.isComplete && typed.width.unit) {
        const QString sides = Pair(typed.width.Value(), typed.height.Value(), QStringLiteral("x"));
        throw RequestError{Phrase::English("\"%1:%2\" has a unit, but a ratio has no unit: type %1:%3, or fill:%2 for "
                                           "that size")
                               .arg(head, ratio, sides)};
    }
    crop.size = SizeFromText(ratio);
    crop.type = int(isFixed ? types.fixed : types.turning);
}

void FrameFromText(const QString& text, const QString& size, const Settings::ImageSize& imageSize, Settings::Crop& crop)
{
    if (size.endsWith(QLatin1Char('!'))) {
        throw RequestError{Phrase::English("\"%1\" ends with \"!\", but only ratio and interesting turn with the "
                                           "picture; remove the \"!\"")
                               .arg(text)};
    }
    if (size.contains(QLatin1Char(','))) {
        throw RequestError{Phrase::English("\"%1\" has a comma; decimals are written with a point, as in %2")
                               .arg(text, QString(size).replace(QLatin1Char(','), QLatin1Char('.')))};
    }
    const TypedSize typed(size);
    if (!typed.isComplete) {
        throw NoSize(size);
    }
    crop.size =
        typed.width.IsInPixels() ? PixelsFromText(size, typed) : PixelsAtResolution(size, typed, imageSize.resolution);
    if (!typed.width.unit) {
        CheckAgainstSize(text, crop.size, imageSize);
    }
}

} // namespace

QStringList CropWords()
{
    QStringList words;
    for (const Word& word : CropTypeWords) {
        if (FindFixed(word.value) == nullptr) {
            words.append(QString::fromLatin1(word.word));
        }
    }
    return words;
}

void CropFromText(const QString& text, const Settings::ImageSize& imageSize, Settings::Crop& crop)
{
    const QString head = text.section(QLatin1Char(':'), 0, 0);
    const QString size = text.section(QLatin1Char(':'), 1);
    if (!CropWords().contains(head, Qt::CaseInsensitive)) {
        throw NoSuchWord(head, CropWords());
    }
    crop.type = ValueOf(CropTypeWords, head);
    if (!HasCropSize(crop.type)) {
        if (!size.isEmpty()) {
            throw RequestError{Phrase::English("\"%1\" takes no size").arg(head)};
        }
    } else if (size.isEmpty()) {
        throw RequestError{Phrase::English("\"%1\" needs a size, such as %1:3x2").arg(text)};
    } else if (const TurningCrop* const types = FindTurning(crop.type)) {
        RatioFromText(head, size, *types, crop);
    } else {
        FrameFromText(text, size, imageSize, crop);
    }
}

QString CropText(const Settings::Crop& crop)
{
    if (!HasCropSize(crop.type)) {
        return WordOf(CropTypeWords, crop.type);
    }
    if (const TurningCrop* const types = FindFixed(crop.type)) {
        return QStringLiteral("%1:%2!").arg(WordOf(CropTypeWords, int(types->turning)), SizeText(crop.size));
    }
    const QString text = QStringLiteral("%1:%2").arg(WordOf(CropTypeWords, crop.type), SizeText(crop.size));
    return FindTurning(crop.type) == nullptr ? text + QStringLiteral("px") : text;
}

} // namespace BatchHost
