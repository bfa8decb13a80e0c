// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include "server/protocol/ServerLimits.h"

#include <QByteArray>
#include <QString>

namespace BatchWorker {

/// Whether the finished file `fileName` carries `profile`. Its header is read for it.
bool CarriesProfile(const QString& fileName, const QByteArray& profile, const BatchProtocol::ServerLimits& limits);

} // namespace BatchWorker
