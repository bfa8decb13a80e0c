// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "FreeBytes.h"

#include <QFile>

#include <filesystem>
#include <system_error>

namespace BatchDesktop {

/// Not QStorageInfo, which looks for the folder in the list of mounted file systems: in a container it need not be
/// there.
qint64 FreeBytes(const QString& folder)
{
#ifdef Q_OS_WIN
    const std::filesystem::path path(folder.toStdWString());
#else
    const std::filesystem::path path(QFile::encodeName(folder).toStdString());
#endif
    std::error_code error;
    const std::filesystem::space_info space = std::filesystem::space(path, error);
    return error ? -1 : qint64(space.available);
}

} // namespace BatchDesktop
