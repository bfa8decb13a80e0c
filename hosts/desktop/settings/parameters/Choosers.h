// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QString>

#include <functional>

class QWidget;

namespace BatchDesktop {

/// The dialogs that editors open. Tests put their own functions here.
struct Choosers
{
    /// The path that was chosen, empty for none. `current` is where the dialog begins.
    using ChoosePath = std::function<QString(QWidget* parent, const QString& title, const QString& current)>;

    /// Returns at once; `chosen` is called if a colour is chosen, as long as `parent` lives.
    using ChooseColour = std::function<void(QWidget* parent, const QString& title, const QColor& current,
                                            const std::function<void(const QColor&)>& chosen)>;

    ChoosePath file;
    ChoosePath folder;
    ChooseColour colour;

    /// The dialogs of the system, and Qt's dialog for colours beside the window.
    static Choosers Dialogs();
};

} // namespace BatchDesktop
