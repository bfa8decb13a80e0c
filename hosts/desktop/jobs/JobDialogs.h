// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace BatchDesktop {

/// What is asked about the files of jobs in dialogs. Tests put their own functions here.
struct JobDialogs
{
    enum class Answer { Save, Discard, Cancel };

    /// The path that was chosen, empty for none. `folder` and `suggested` are where the dialogs begin.
    std::function<QString(QWidget* parent, const QString& title, const QString& folder)> openFile;
    std::function<QString(QWidget* parent, const QString& title, const QString& suggested)> saveFile;

    /// What to do with the changes of the job `name`, which would be lost.
    std::function<Answer(QWidget* parent, const QString& name)> askForChanges;

    static JobDialogs OfDesktop();
};

} // namespace BatchDesktop
