#pragma once

#include <QString>

namespace BatchHost {

/// The absolute, clean form of a path that a user gave, resolved against the current folder.
QString AbsolutePath(const QString& path);

} // namespace BatchHost
