// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFrame>

class QLabel;
class QLineEdit;
class QPushButton;

namespace BatchDesktop {

class PresetBox;

/// Asks for the name of a preset in a line of the window, to save the settings under it or to rename the active one.
/// What is wrong with a name is said beside it.
class PresetNameLine : public QFrame
{
    Q_OBJECT

public:
    enum class Purpose { Save, Rename };

    explicit PresetNameLine(PresetBox& presets, QWidget* parent = nullptr);

    void Ask(Purpose wanted, const QString& suggestion);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void Accept();
    void Refresh();

    PresetBox& presets;
    Purpose purpose = Purpose::Save;
    QLabel* const label;
    QLineEdit* const name;
    QPushButton* const accept;
    QPushButton* const cancel;
    QLabel* const problem;
};

} // namespace BatchDesktop
