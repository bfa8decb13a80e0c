// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "ActionButtons.h"

#include "ZTBatchManager.h"

#include <QAction>
#include <QGridLayout>
#include <QToolButton>

namespace BatchDesktop {

namespace {

constexpr int columns = 2; // All in a row would make the pane too wide, in some languages.

} // namespace

ActionButtons::ActionButtons(QWidget* parent)
    : QWidget(parent)
    , grid(new QGridLayout(this))
{
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(columns, 1);
    if (const ZTBatchManager* const manager = ZTBatchManager::Instance()) {
        connect(manager, &ZTBatchManager::InputActionRegistered, this, &ActionButtons::Rebuild);
        connect(manager, &ZTBatchManager::InputActionUnregistered, this, &ActionButtons::Rebuild);
    }
    Rebuild();
}

void ActionButtons::Rebuild()
{
    while (QLayoutItem* const item = grid->takeAt(0)) {
        delete item->widget();
        delete item;
    }
    const ZTBatchManager* const manager = ZTBatchManager::Instance();
    const QList<QAction*> actions = manager ? manager->GetInputActions() : QList<QAction*>();
    for (QAction* const action : actions) {
        auto* const button = new QToolButton;
        button->setDefaultAction(action);
        button->setToolButtonStyle(Qt::ToolButtonTextOnly);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setObjectName(action->objectName() + QStringLiteral("Button"));
        button->setAccessibleName(action->iconText());
        connect(action, &QObject::destroyed, button, &QObject::deleteLater); // The manager gives no signal then.
        const int place = grid->count();
        grid->addWidget(button, place / columns, place % columns, Qt::AlignLeft);
    }
    Q_EMIT ActionsChanged();
}

} // namespace BatchDesktop
