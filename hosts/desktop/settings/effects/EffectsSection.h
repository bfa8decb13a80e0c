// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "EffectChain.h"
#include "EffectProblems.h"

#include "hosts/desktop/settings/sections/SettingsSection.h"

#include <QAction>

class QListView;
class QMenu;

namespace BatchDesktop {

class ParameterForm;

/// The chain of effects, and the parameters of the one that is chosen in it.
class EffectsSection : public SettingsSection
{
    Q_OBJECT

public:
    EffectsSection(EditedJob& job, const Choosers& choosers, QWidget* parent);

    /// Duplicate, remove, move up, move down; for menus.
    QList<QAction*> ChainActions() const { return chainActions; }

    /// An entry for each effect of the catalogue.
    QMenu* AddMenu() const { return addMenu; }

protected:
    void Refresh() override;

private:
    void MakeAddMenu(QWidget* content);
    void MakeActions();
    QWidget* MakeButtons(QWidget* content);
    QAction* MakeAction(const char* id, const QString& text, const QKeySequence& key);
    void FollowRows();
    void ShowCurrent();
    void EnableActions();
    int CurrentRow() const;
    QString State() const;

    EffectChain chain;
    EffectProblems problems;
    QListView* list;
    ParameterForm* form;
    QMenu* addMenu = nullptr;
    QList<QAction*> chainActions;
    QAction* duplicate = nullptr;
    QAction* remove = nullptr;
    QAction* up = nullptr;
    QAction* down = nullptr;
};

} // namespace BatchDesktop
