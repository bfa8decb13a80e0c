// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hosts/desktop/job/BackgroundWork.h"

#include <QObject>
#include <QStringList>

#include <memory>

namespace BatchDesktop {

class EditedJob;

/// Makes the command line that does what the window would do. Files are read and written on another thread.
///
/// The settings are said in options, and the inputs by the paths that were added, if the command line would find the
/// same files in them in the same order. Otherwise the job is put into a file, which the command names.
class CommandCopy : public QObject
{
    Q_OBJECT

public:
    /// Profiles and jobs that a command needs are kept in `folder`.
    CommandCopy(const EditedJob& job, const QString& folder);

    /// Makes the command of the job as it is now. Made() or Failed() follows, unless it is called again before.
    void Make();

Q_SIGNALS:
    /// The arguments, the program among them.
    void Made(const QStringList& arguments);

    /// A sentence for the user.
    void Failed(const QString& text);

private:
    struct Outcome;

    const EditedJob& job;
    const QString folder;
    std::shared_ptr<Outcome> outcome;
    BackgroundWork work; ///< destroyed first
};

} // namespace BatchDesktop
