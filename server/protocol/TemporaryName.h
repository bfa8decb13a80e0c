#pragma once

#include <QString>

namespace BatchProtocol {

/// A name in `folder` that no temporary file has yet.
QString NewTemporaryName(const QString& folder);

/// Whether a file of this name, without its folder, is a temporary file.
bool IsTemporaryName(const QString& name);

} // namespace BatchProtocol
