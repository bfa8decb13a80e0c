// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ColourText.h"

namespace BatchDesktop {

namespace {

constexpr int opaqueLength = 7; // "#rrggbb"
constexpr int alphaLength = 9;

} // namespace

QString TextOfColour(const QColor& colour)
{
    const QString opaque = colour.name(QColor::HexRgb);
    constexpr int hexadecimal = 16;
    return colour.alpha() == 255 ? opaque
                                 : opaque + QStringLiteral("%1").arg(colour.alpha(), 2, hexadecimal, QLatin1Char('0'));
}

QColor ColourOfText(const QString& text)
{
    if (text.size() != alphaLength) {
        return text.size() == opaqueLength ? QColor(text) : QColor();
    }
    return QColor(QLatin1Char('#') + text.right(2) + text.mid(1, opaqueLength - 1));
}

} // namespace BatchDesktop
