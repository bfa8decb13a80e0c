// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QString>

namespace BatchWorker {

/// The colour that "#rrggbb" or "#rrggbbaa" stands for.
inline QColor ColourOf(const QString& text)
{
    // Qt puts alpha first, users put it last.
    QColor colour(text.left(7));
    if (text.size() > 7) {
        colour.setAlpha(text.mid(7).toInt(nullptr, 16));
    }
    return colour;
}

} // namespace BatchWorker
