// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "JobDialogs.h"

#include <QObject>
#include <QWidget>

namespace BatchDesktop {

class EditedJob;

/// Which file the edited job is in, and whether it has changed since: opens, saves and begins jobs. A job that cannot
/// be opened leaves the present one as it is.
class JobKeeper : public QObject
{
    Q_OBJECT

public:
    /// `window` is the parent of dialogs. Both references must outlive this object.
    JobKeeper(EditedJob& job, QWidget& window);

    /// For tests.
    JobDialogs dialogs = JobDialogs::OfDesktop();

    /// Empty for a job that has none.
    const QString& File() const { return file; }

    /// What the job is called in a title.
    QString Name() const;

    bool IsChanged() const;

    /// Begins an empty job.
    void New();

    /// Opens the job in a file that the user chooses, or the one in `path`. Changes of the present job are asked about
    /// first. False if that is the job still.
    bool Open();
    bool Open(const QString& path);

    /// False if the job is not saved.
    bool Save();
    bool SaveAs();

    /// The job that was restored is the one of `path`, with changes or without.
    void SetFile(const QString& path, bool isChanged);

Q_SIGNALS:
    /// File(), Name() or IsChanged() may have changed.
    void Changed();

    /// A job was read from or written to `path`.
    void Used(const QString& path);

    /// `path` turned out to be unusable.
    void Failed(const QString& path);

    /// A sentence for the user.
    void Notice(const QString& text);

private:
    bool MayGo();
    bool SaveTo(const QString& path);
    QString Folder() const;

    EditedJob& job;
    QWidget& window;
    QString file;
    bool wasChanged = false; ///< before the history began
};

} // namespace BatchDesktop
