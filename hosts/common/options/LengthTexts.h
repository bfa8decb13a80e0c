// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "job/values/JobValues.h"

#include "ZTBatchOutputSettings.h"

#include <QString>

#include <optional>

/// Lengths as users write them. A text that could mean two things is refused with both of them.
namespace BatchHost {

/// A number with an optional unit behind it, not yet read.
struct TypedLength
{
    QString number;
    QString sign; ///< the unit as it was written; empty for none
    std::optional<BatchJob::SizeUnit> unit;

    static TypedLength Of(const QString& text);

    bool IsInPixels() const { return !unit || unit == BatchJob::SizeUnit::Pixels; }

    /// The number with its decimals behind a point; not a number for any other text.
    double Value() const;
};

/// The sign of `unit`, a SizeUnit: "px", "%", "in", "cm", "mm"; empty for another number.
QString UnitSign(int unit);

/// A number with a point at each third digit, which users of many languages write for thousands.
bool LooksLikeThousands(const QString& number);

/// Whether `number` has decimals, which a number of pixels has not.
bool HasDecimals(const QString& number);

/// Reads "1600", "1600px", "50%", "8in", "20cm" or "200mm". Throws RequestError.
void LengthFromText(const QString& text, ZTBatchOutputSettings::ImageSize& imageSize);
QString LengthText(const ZTBatchOutputSettings::ImageSize& imageSize);

} // namespace BatchHost
