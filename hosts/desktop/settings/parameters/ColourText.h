// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QString>

namespace BatchDesktop {

/// "#rrggbb", or "#rrggbbaa" for a colour that is not opaque, as parameters have it; Qt has the alpha in front.
QString TextOfColour(const QColor& colour);

/// The colour of such a text; invalid for another text.
QColor ColourOfText(const QString& text);

} // namespace BatchDesktop
