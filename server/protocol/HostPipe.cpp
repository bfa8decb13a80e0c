// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#include "HostPipe.h"

#include <QDir>

namespace BatchProtocol {

// As QLocalServer and QLocalSocket put it together.
QString HostPipe::SocketPath(const QString& name)
{
    return QDir::isAbsolutePath(name) ? name : QDir::cleanPath(QDir::tempPath()) + QLatin1Char('/') + name;
}

} // namespace BatchProtocol
