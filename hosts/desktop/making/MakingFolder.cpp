// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "MakingFolder.h"

#include "FreeBytes.h"

#include <QDir>
#include <QFileInfo>

namespace BatchDesktop {

namespace {

/// Enough for some large results.
constexpr qint64 roomInMemory = qint64(1) << 30; // bytes

const QString nameStart = QStringLiteral("velkora-preview-");

QString ParentOfFiles()
{
    const QString ofUser = qEnvironmentVariable("XDG_RUNTIME_DIR");
    const bool isUsable =
        QDir::isAbsolutePath(ofUser) && QFileInfo(ofUser).isWritable() && FreeBytes(ofUser) >= roomInMemory;
    return isUsable ? ofUser : QDir::tempPath();
}

} // namespace

MakingFolder::MakingFolder()
    : files(ParentOfFiles(), nameStart)
    , temporary(QDir::tempPath(), nameStart)
{
}

QString MakingFolder::Error() const
{
    return files.Error().isEmpty() ? temporary.Error() : files.Error();
}

} // namespace BatchDesktop
