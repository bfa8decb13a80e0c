// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "InstancePlace.h"

#include <QDir>

#include <qt_windows.h>

namespace BatchDesktop {

QString InstancePlace::Folder()
{
    return QDir::tempPath();
}

/// Pipes are in no folder.
QString InstancePlace::Socket(const QString& name)
{
    return name;
}

void InstancePlace::LetOthersComeToFront()
{
    AllowSetForegroundWindow(ASFW_ANY);
}

} // namespace BatchDesktop
