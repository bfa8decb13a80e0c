// SPDX-FileCopyrightText: 2026 The batchcore developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

namespace BatchHost {

/// The ICC profile in the file `path`. Throws RequestError if it cannot be read or is none.
QByteArray ReadProfile(const QString& path);

/// What `profile` calls itself, such as "sRGB IEC61966-2.1"; empty if it does not say.
QString NameOfProfile(const QByteArray& profile);

} // namespace BatchHost
