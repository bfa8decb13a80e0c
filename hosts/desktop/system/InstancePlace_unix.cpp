// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InstancePlace.h"

#include <QDir>
#include <QStandardPaths>

namespace BatchDesktop {

QString InstancePlace::Folder()
{
    return QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
}

QString InstancePlace::Socket(const QString& name)
{
    return QDir(Folder()).filePath(name);
}

void InstancePlace::LetOthersComeToFront() {}

} // namespace BatchDesktop
