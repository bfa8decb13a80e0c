// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ZTBatchOutputSettings.h"

#include <QColor>
#include <QMargins>
#include <QSize>
#include <QString>

/// The most pixels, centimetres or whatever that a side or a margin may have.
constexpr int largestSide = 1'000'000;

/// The values of a job's output settings as users write them. Each ...Text() writes what the matching ...FromText()
/// reads; the latter throw RequestError for invalid text.
namespace BatchHost {

/// Decimal numbers with a point, whatever the locale.
double NumberFromText(const QString& text, double minimum, double maximum);
int IntegerFromText(const QString& text, int minimum, int maximum);
QString NumberText(double number);

/// "800x600".
QSize SizeFromText(const QString& text);
QString SizeText(const QSize& size);

/// Pixels: one number for all sides, or "left,top,right,bottom".
QMargins MarginsFromText(const QString& text);
QString MarginsText(const QMargins& margins);

/// "#rrggbb", with or without "#", or a name such as "black".
QColor ColourFromText(const QString& text);

/// "none", "colour:#rrggbb", "pattern:NUMBER[:PERCENT]" or "image:FILE".
void BackgroundFromText(const QString& text, ZTBatchOutputSettings::Transformation& transformation);
QString BackgroundText(const ZTBatchOutputSettings::Transformation& transformation);

/// What a part of a result's name holds: "original", "number[:START[:DIGITS]]", "date", "time", "text:TEXT", "nothing",
/// "tokens:TEXT". A text that has a brace and begins with none of these words has tokens, too.
void NamePartFromText(const QString& text, ZTBatchOutputSettings::NamingPart part, ZTBatchOutputSettings& settings);
QString NamePartText(ZTBatchOutputSettings::NamingPart part, const ZTBatchOutputSettings& settings);

} // namespace BatchHost
