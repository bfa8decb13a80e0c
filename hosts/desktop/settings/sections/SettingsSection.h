// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/job/EditedJob.h"
#include "hosts/desktop/settings/parameters/Choosers.h"

#include <QWidget>

class QLabel;
class QToolButton;

namespace BatchDesktop {

class ElidedLabel;

/// One subject of the settings, which can be folded. Its heading says its state in one line, or what is wrong with it.
class SettingsSection : public QWidget
{
    Q_OBJECT

public:
    void SetFolded(bool isFolded);
    bool IsFolded() const;

    /// The line beside the heading, or below it if something is wrong.
    QString StateText() const;

protected:
    /// `shownTitle` may have a mnemonic; `wantedId` is the name of the heading for tests. Both references must outlive
    /// it.
    SettingsSection(const QString& shownTitle, const QString& wantedId, EditedJob& editedJob, const Choosers& dialogs,
                    QWidget* parent);

    /// Must be called once, at the end of the constructor.
    void SetContent(QWidget* wanted);

    /// Shows the settings that the job has now.
    virtual void Refresh() = 0;

    /// `problem` is a text of the job's checks; it is shown instead of the state.
    void ShowState(const QString& shown, const QString& problem);

    const Settings& Now() const { return job.CurrentSettings(); }
    EditedJob& Job() const { return job; }
    const Choosers& Dialogs() const { return choosers; }

    /// The title without its mnemonic, and the id.
    const QString& Title() const { return title; }
    const QString& Id() const { return id; }

private:
    EditedJob& job;
    const Choosers& choosers;
    const QString title;
    const QString id;
    QToolButton* heading;
    ElidedLabel* state;
    QLabel* problemLine;
    QWidget* content = nullptr;
};

} // namespace BatchDesktop
