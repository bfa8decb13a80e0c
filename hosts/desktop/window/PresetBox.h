// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/common/Presets.h"
#include "hosts/desktop/job/EditedJob.h"

#include <QComboBox>

#include <optional>

namespace BatchDesktop {

/// The presets to choose from, and which one the settings are: its name, with a star when they have been changed since.
/// Choosing one is a step of the history. It shares the presets with all other hosts.
class PresetBox : public QComboBox
{
    Q_OBJECT

public:
    PresetBox(EditedJob& job, const QString& settingsFolder, QWidget* parent = nullptr);

    /// The preset that was chosen last; empty if none was.
    const QString& Active() const { return active; }

    /// Whether the settings are no longer those of the active preset.
    bool IsChanged() const;

    /// Makes the preset `name` the settings; the output folder stays unless the preset names one. Emits Problem() if
    /// it cannot be used.
    void Choose(const QString& name);

    /// Keeps the settings as the user's preset `name`, which becomes the active one. Throws RequestError.
    void Save(const QString& name, bool replaceExisting);

    /// Reads the folders of the presets again.
    void ReadAgain();

Q_SIGNALS:
    /// A sentence for the user.
    void Problem(const QString& text);

private:
    void ShowActive();

    EditedJob& job;
    const BatchHost::Presets presets;
    QString active;
    std::optional<Settings> settingsOfActive;
};

} // namespace BatchDesktop
