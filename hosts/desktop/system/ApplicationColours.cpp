// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ApplicationColours.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>

namespace BatchDesktop {

namespace {

bool IsDark(const QPalette& palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

} // namespace

QPalette DarkPalette()
{
    const QColor text(0xe6, 0xe6, 0xe6);
    const QColor faint(0x8c, 0x8c, 0x8c);
    QPalette palette(QColor(0x3a, 0x3a, 0x3a), QColor(0x2b, 0x2b, 0x2b)); // It derives the edges of controls from them.
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, QColor(0x1e, 0x1e, 0x1e));
    palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x26, 0x26));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, QColor(0xff, 0x8a, 0x80));
    palette.setColor(QPalette::ToolTipBase, QColor(0x45, 0x45, 0x45));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::Highlight, QColor(0x2a, 0x62, 0xa8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Link, QColor(0x7a, 0xb4, 0xf5));
    palette.setColor(QPalette::LinkVisited, QColor(0xc3, 0xa0, 0xf0));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x50, 0x50, 0x50));
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, faint);
    return palette;
}

ApplicationColours::ApplicationColours(QObject* parent)
    : QObject(parent)
    , usualStyle(QApplication::style()->objectName())
{
    connect(&scheme, &ColourScheme::Changed, this, &ApplicationColours::Apply);
    Apply();
}

void ApplicationColours::Apply()
{
    const bool wantsDark = scheme.Preferred() == ColourScheme::Preference::Dark;
    if (wantsDark && !isDark && !IsDark(QApplication::palette())) {
        isDark = true;
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("fusion")));
        QApplication::setPalette(DarkPalette());
    } else if (!wantsDark && isDark) {
        isDark = false;
        QApplication::setPalette(QPalette());
        QApplication::setStyle(QStyleFactory::create(usualStyle));
    }
}

} // namespace BatchDesktop
