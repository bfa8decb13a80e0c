// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "RunControl.h"

namespace BatchDesktop {

RunControl::RunControl(const QString& name, const QString& label, const QKeySequence& shortcut, QWidget* parent)
    : button(new QToolButton(parent))
    , action(new QAction(parent))
{
    button->setObjectName(name);
    button->setFocusPolicy(Qt::StrongFocus);
    action->setObjectName(name + QStringLiteral("Action"));
    action->setShortcut(shortcut);
    QObject::connect(button, &QToolButton::clicked, action, &QAction::trigger);
    SetLabel(label);
    SetPossible(false);
}

void RunControl::SetLabel(const QString& label)
{
    button->setText(label);
    action->setText(label);
}

void RunControl::SetPossible(bool isVisible, bool isEnabled)
{
    button->setVisible(isVisible);
    button->setEnabled(isEnabled);
    action->setEnabled(isVisible && isEnabled);
}

} // namespace BatchDesktop
