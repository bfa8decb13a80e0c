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

    /// Gives the active preset another name. Throws RequestError.
    void Rename(const QString& name, bool replaceExisting);

    /// Removes the active preset, and returns what its file held. The settings stay. Throws RequestError.
    QByteArray Remove();

    /// Makes a preset of the user again that Remove() has removed, and the active one.
    void Restore(const QString& name, const QByteArray& content);

    /// The settings have come from the preset `name`, and may have been changed since.
    void SetActive(const QString& name);

    /// Whether the user has a preset of that name. It may be one that means the same file, such as "web" for "Web".
    bool IsOwn(const QString& name) const;
    static bool AreSame(const QString& name, const QString& other);

    /// The settings as a preset has them: without inputs and the place for results. `preset` must be a new job.
    void Fill(ZTBatchDocument& preset, const QString& name) const;

    /// Reads the folders of the presets again.
    void ReadAgain();

Q_SIGNALS:
    /// Another preset is active.
    void ActiveChanged();

    /// A sentence for the user.
    void Problem(const QString& text);

private:
    /// The settings that a preset means here; nothing if it cannot be read.
    std::optional<Settings> Read(const QString& name);
    void Activate(const QString& name, const std::optional<Settings>& settings);
    void ShowActive();

    EditedJob& job;
    const BatchHost::Presets presets;
    QVector<BatchHost::Preset> known;
    QString active;
    std::optional<Settings> settingsOfActive;
};

} // namespace BatchDesktop
