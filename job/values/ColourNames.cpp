// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourNames.h"

#include "ParameterSchema.h"

#include <QColor>

namespace BatchJob {

QString ColourOfName(const QString& name)
{
    // Other forms with "#" mean something else to Qt: there the alpha comes first.
    if (name.startsWith(QLatin1Char('#')) || !QColor::isValidColor(name)) {
        return {};
    }
    const QColor colour(name);
    return colour.alpha() == 0 ? QStringLiteral("#00000000") : colour.name();
}

QString NearestColourName(const QString& text)
{
    return NearestWord(text, QColor::colorNames());
}

} // namespace BatchJob
