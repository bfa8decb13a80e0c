#pragma once

#include <QString>

namespace BatchProtocol {

/// A path in `folder` for a new temporary file.
QString NewTemporaryName(const QString& folder);

/// Whether `name`, without a folder, is that of a temporary file.
bool IsTemporaryName(const QString& name);

} // namespace BatchProtocol
