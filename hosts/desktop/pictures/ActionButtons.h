// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class QAction;
class QGridLayout;

namespace BatchDesktop {

/// A button for each action that modules have registered for the inputs, in the manager's order.
class ActionButtons : public QWidget
{
    Q_OBJECT

public:
    /// The manager, if there is one now, is followed until it is released.
    explicit ActionButtons(QWidget* parent = nullptr);

Q_SIGNALS:
    void ActionsChanged();

private:
    void Rebuild();

    QGridLayout* grid = nullptr;
};

} // namespace BatchDesktop
