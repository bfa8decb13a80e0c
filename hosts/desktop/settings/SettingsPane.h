// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "parameters/Choosers.h"

#include <QAction>
#include <QDateTime>
#include <QWidget>

class QMenu;

namespace BatchDesktop {

class EditedJob;
class EffectsSection;
class NamesSection;
class SettingsSection;

/// All settings of the job, in sections that can be folded.
class SettingsPane : public QWidget
{
    Q_OBJECT

public:
    /// `job` must outlive the pane.
    explicit SettingsPane(EditedJob& job, QWidget* parent = nullptr, Choosers wanted = Choosers::Dialogs());
    ~SettingsPane() override;

    /// The picture whose name is shown as the example, its place in the job, counted from 0, and when it was taken, if
    /// that is known. An empty `file` stands for any picture.
    void SetExample(const QString& file, int position = 0, const QDateTime& captured = QDateTime());

    /// In their order on the screen.
    const QVector<SettingsSection*>& Sections() const { return sections; }

    /// Adds an effect of the catalogue; and what can be done with the one that is chosen. For menus.
    QMenu* AddEffectMenu() const;
    QList<QAction*> EffectActions() const;

private:
    void OrderTabs();

    const Choosers choosers;
    QVector<SettingsSection*> sections;
    EffectsSection* effects;
    NamesSection* names;
};

} // namespace BatchDesktop
