// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ValueChecks.h"

#include "job/values/Phrase.h"

namespace BatchJob {

void ValueChecks::Range(const char* field, int value, int minimum, int maximum)
{
    if (value < minimum || value > maximum) {
        Refuse(field, QString::number(value),
               Phrase::English("a whole number %1").arg(Phrase::English("from %1 to %2").arg(minimum).arg(maximum)));
    }
}

void ValueChecks::Opacity(const char* field, double value)
{
    const bool isAllowed = value >= 0.0 && value <= 1.0; // false for NaN, too
    if (!isAllowed) {
        Refuse(field, QString::number(value), Phrase::English("a number from 0 to 1"));
    }
}

void ValueChecks::Refuse(const char* field, const QString& value, const QString& allowed)
{
    Refuse(Phrase::English("%1 is %2; it must be %3").arg(QLatin1String(field), value, allowed));
}

void ValueChecks::Refuse(const QString& sentence)
{
    if (error.isEmpty()) {
        error = sentence;
    }
}

QString Quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

} // namespace BatchJob
