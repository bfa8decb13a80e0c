#pragma once

#include <QString>

namespace BatchHost {

/// Thrown where the arguments, or the job that they name, cannot be used. The command ends with exit code 2.
struct UsageError
{
    QString text; ///< for the user: what is wrong, what is allowed, and the nearest match where there is one
};

} // namespace BatchHost
