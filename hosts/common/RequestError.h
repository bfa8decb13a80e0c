#pragma once

#include <QString>

namespace BatchHost {

/// Thrown where a request of the user cannot be carried out: a value, a file or a job that cannot be used. Nothing has
/// been changed.
struct RequestError
{
    /// Problems for which a host can name a remedy in its own words.
    enum class Kind {
        Other,
        NoPictures,
        NoOutputFolder,
        SavedJobAmongInputs,
        FileExists,            ///< and was not to be replaced
        OtherRunInterrupted,   ///< the interrupted run is of another job
        SeveralRunsInterrupted ///< and none of them is of this job
    };

    QString text; ///< for the user: what is wrong, what is allowed, and the nearest match where there is one
    Kind kind = Kind::Other;

    /// The same error behind "`context`: ".
    RequestError In(const QString& context) const { return {context + QStringLiteral(": ") + text, kind}; }
};

} // namespace BatchHost
