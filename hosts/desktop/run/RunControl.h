// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAction>
#include <QToolButton>

namespace BatchDesktop {

/// Something to do with a run: a button that is there when it can be done, and an entry of a menu. Both belong to
/// `parent`.
class RunControl
{
public:
    /// Both names come from `name`: the button has it, the action has "Action" behind it.
    RunControl(const QString& name, const QString& label, const QKeySequence& shortcut, QWidget* parent);

    QToolButton* Button() const { return button; }
    QAction* Action() const { return action; }

    void SetLabel(const QString& label);
    void SetPossible(bool isVisible, bool isEnabled = true);

private:
    QToolButton* button;
    QAction* action;
};

} // namespace BatchDesktop
