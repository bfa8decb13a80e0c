// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JobSnapshot.h"

#include <QString>

#include <optional>

namespace BatchDesktop {

/// What the window knows of the job that is edited, but for its inputs.
struct EditState
{
    QString name;
    Settings settings;
    QString preset;  ///< the active one; empty for none
    QString jobFile; ///< empty for none
    bool isChanged = false;
    bool isClosed = false; ///< the window was closed by its user
};

/// The files in which the job that is edited outlives the window. Each is written whole or not at all, on any thread.
class EditedFiles
{
public:
    explicit EditedFiles(const QString& folder);

    /// False if the disk is full or the folder is not writable.
    bool Write(const EditState& state) const;
    bool Write(const InputSnapshot& inputs) const;

    /// Nothing if they were never written, or if they are damaged.
    std::optional<EditState> ReadState() const;

    std::optional<InputSnapshot> ReadInputs() const;

private:
    QString Path(const char* name) const;

    QString folder;
};

} // namespace BatchDesktop
