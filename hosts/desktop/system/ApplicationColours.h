// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "ColourScheme.h"

#include <QPalette>

namespace BatchDesktop {

/// Colours of a dark window, for the style Fusion.
QPalette DarkPalette();

/// Gives the application the colours that the user prefers, also when that changes. A desktop that has made it dark
/// already keeps its own.
class ApplicationColours : public QObject
{
    Q_OBJECT

public:
    explicit ApplicationColours(QObject* parent = nullptr);

private:
    void Apply();

    ColourScheme scheme;
    const QString usualStyle;
    bool isDark = false; ///< made so here
};

} // namespace BatchDesktop
