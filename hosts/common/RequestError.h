// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

namespace BatchHost {

/// Thrown where a request of the user cannot be carried out: a value, a file or a job that cannot be used. Nothing has
/// been changed.
struct RequestError
{
    /// Problems for which a host can name a remedy in its own words.
    enum class Kind {
        Other,
        NoInputs,
        NoPictures,     ///< among the inputs
        NothingMatches, ///< the wildcards that say which files of folders to take
        NoOutputFolder,
        SavedJobAmongInputs,
        FileExists,             ///< and was not to be replaced
        OtherRunInterrupted,    ///< the interrupted run is of another job
        SeveralRunsInterrupted, ///< and none of them is of this job
        NoSuchRun,              ///< no interrupted run has the name
        NothingToResume,
        AlreadyRunning ///< the same run, in another process
    };

    QString text; ///< for the user: what is wrong, what is allowed, and the nearest match where there is one
    Kind kind = Kind::Other;
    QStringList choices = {}; ///< what the user can choose from, one in a line

    /// The same error behind "`context`: ".
    RequestError In(const QString& context) const { return {context + QStringLiteral(": ") + text, kind, choices}; }
};

} // namespace BatchHost
