// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "EditedFiles.h"

#include "hosts/desktop/job/BackgroundWork.h"

#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>

namespace BatchDesktop {

class EditedJob;

/// Keeps what is edited on the disk, shortly after each change, so that it outlives a window that is killed. Files are
/// written on another thread.
class Autosave : public QObject
{
    Q_OBJECT

public:
    /// `describe` tells all but the settings. `job` must outlive this object.
    Autosave(const EditedJob& job, const QString& folder, std::function<EditState()> describe);

    /// Writes what is not written yet.
    ~Autosave() override;

    const QString& Folder() const { return folder; }

    /// The description has changed.
    void NoteChange();

    /// Writes everything before it returns. The window was closed by its user.
    void Close();

    /// Whether all is on the disk.
    bool IsDone() const;

Q_SIGNALS:
    /// All that had changed is on the disk.
    void Saved();

    /// The disk is full, or the folder is not writable. What could not be written is tried again with the next change.
    void Failed();

private:
    void NoteInputs();
    void Save();
    bool TakeInputs(std::chrono::milliseconds longest);
    std::function<bool()> Work();
    void OnDone();
    void Finish();

    const EditedJob& job;
    const QString folder;
    const EditedFiles files;
    const std::function<EditState()> describe;
    bool isChanged = false;
    bool areInputsChanged = false;
    bool isClosed = false;
    std::shared_ptr<InputSnapshot> inputs; ///< those to be written; null if they are not changed, or not looked at yet
    std::shared_ptr<bool> isWritten;       ///< by the last work; read when that is done
    QTimer delay;
    std::unique_ptr<BackgroundWork> work; ///< null when nothing was written yet, or all is finished
};

} // namespace BatchDesktop
