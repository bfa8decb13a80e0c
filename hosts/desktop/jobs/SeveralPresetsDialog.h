// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QStringList>

class QListWidget;
class QPushButton;

namespace BatchDesktop {

/// Asks for the presets of a run that makes a result of each of them from every picture. Emits accepted() when there
/// are two at least.
class SeveralPresetsDialog : public QDialog
{
    Q_OBJECT

public:
    /// `names` are the presets to choose from, `folder` is where the results would go.
    SeveralPresetsDialog(const QStringList& names, const QString& folder, QWidget* parent);

    /// Those that are marked, in the order of the list.
    QStringList Chosen() const;

    /// Marks those of `wanted` that are there, and no others.
    void Choose(const QStringList& wanted);

private:
    void UpdateStart();

    QListWidget* const list;
    QPushButton* const start;
};

} // namespace BatchDesktop
